#include "chart_geometry.h"

#include "fixed_decimals.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace {

constexpr int BOTTOM_MARGIN = 20;
constexpr int VERTICAL_MARGINS = 30;
constexpr int AXIS_GAP = 2;
constexpr int SIDE_MARGIN = 10;
constexpr int SECOND_AXIS_GAP = 7;
constexpr std::size_t BLANK_PADDED_WIDTH = 6;

std::string mark_text(double value, bool with_decimals) {
    std::string text = fixed_decimals(value, with_decimals ? 2 : 0);
    if (with_decimals && text.size() < BLANK_PADDED_WIDTH)
        text.insert(0, BLANK_PADDED_WIDTH - text.size(), ' ');
    return text;
}

} // namespace

axis_scale scale_of_x(const chart_area& area, const chart_limits& limits) {
    return {limits.min_x, limits.max_x, area.width, area.x, area.x};
}

axis_scale scale_of_y(const chart_area& area, const chart_limits& limits) {
    return {limits.min_y, limits.max_y, area.height, area.y, 0};
}

int scale_x(double x, const chart_area& area, const chart_limits& limits) {
    return scale_of_x(area, limits)(x);
}

int scale_y(double y, const chart_area& area, const chart_limits& limits) {
    return scale_of_y(area, limits)(y);
}

chart_point scale_point(int x, double y, const chart_area& area, const chart_limits& limits) {
    return {static_cast<float>(scale_x(x, area, limits)),
            static_cast<float>(scale_y(y, area, limits))};
}

chart_layout layout_of(double image_width, double image_height, double axis_width,
                       std::optional<double> second_axis_width) {
    const int first = saturating_int(axis_width);
    chart_layout layout;
    layout.plot.x = first + AXIS_GAP;
    layout.plot.y = BOTTOM_MARGIN;
    double width = image_width - SIDE_MARGIN - first;
    if (second_axis_width) {
        width = width - SIDE_MARGIN - saturating_int(*second_axis_width);
        layout.second_axis_x = saturating_int(width + layout.plot.x + SECOND_AXIS_GAP);
    }
    layout.plot.width = saturating_int(width);
    layout.plot.height = saturating_int(image_height - VERTICAL_MARGINS);
    return layout;
}

row_window window_of_rows(std::size_t rows, int shown) {
    if (shown < 0 || rows < static_cast<std::size_t>(shown))
        return {0, rows};
    return {rows - static_cast<std::size_t>(shown), static_cast<std::size_t>(shown)};
}

axis_marks marks_of_axis(double lower, double upper, const chart_area& plot) {
    constexpr int STEPS = 5;
    const double step = (upper - lower) / STEPS;
    const bool with_decimals =
        std::abs(static_cast<std::int64_t>(saturating_int(lower + 3 * step))) < 10;
    axis_marks marks;
    for (int i = 0; i <= STEPS; ++i) {
        const auto place = static_cast<std::size_t>(i);
        marks.texts[place] = mark_text(lower + i * step, with_decimals);
        // The top one is lower, so that it stays inside the image.
        marks.y[place] = i < STEPS ? plot.y + static_cast<double>(i) * plot.height / STEPS - 3
                                   : plot.y + plot.height - 12;
    }
    return marks;
}

int level_of(double value, double min, double max, int segments) {
    if (max == min)
        return 0;
    return std::max(0, saturating_int((value - min) * segments / (max - min)));
}
