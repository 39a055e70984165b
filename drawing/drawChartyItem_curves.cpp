#include "canvas.h"
#include "casing.h"
#include "curve_painter.h"
#include "drawChartyItem.h"
#include "fixed_decimals.h"
#include "parameters.h"
#include "saturate.h"
#include "system_log.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double LARGE_LINE_WIDTH = 1.8;
constexpr double THUMBNAIL_LINE_WIDTH = 2.2;

constexpr std::size_t REDRAW_EVERY = 20;
constexpr std::size_t THIN_FROM = 200;
constexpr std::size_t THINNED = 100;
constexpr std::size_t MARKED_BELOW = 30;
constexpr int REALTIME_SPAN = 20;
constexpr double NO_NUMBER = std::numeric_limits<double>::quiet_NaN();

// The number of a value text; NaN for "~" and the like.
translated value_of_text(const std::string& text) {
    const bool number = text.find('~') == text.npos && !text.empty();
    return {text, number ? leading_number(text) : NO_NUMBER};
}

} // namespace

bool drawChartyItem::is_drawn(int index) const {
    return has_two_axes() ? cur_ITEMS_2_PLOT.contains(index) : index == cur_item_2_PLOT;
}

bool drawChartyItem::plot_array_list(const sample_rows& points, const label_records& these_labels) {
    if (points.empty()) {
        qCDebug(log_drawing, "plot_array_list::[no rows]");
        return false;
    }
    canvas target(image_);
    for (std::size_t i = 0; i < points.parameters(); ++i) {
        if (!is_drawn(static_cast<int>(i)))
            continue;
        if (i >= these_labels.size()) {
            qCWarning(log_drawing, "plot_array_list::[no label for parameter %zu]", i);
            return false;
        }
        plot_one_curve(target, points, i, these_labels[i]);
    }
    if (is_thumbnail)
        display_value_4_thumbnail(target);
    else
        display_value(target);
    return true;
}

void drawChartyItem::plot_one_curve(canvas& target, const sample_rows& points,
                                    std::size_t parameter, const label_record& label) {
    const row_window window = window_of_rows(points.rows(), SHOW_THESE_MANY_LAST_POINTS);
    if (window.count == 0)
        return;
    const std::size_t end = window.first + window.count;
    const chart_limits limits{static_cast<double>(window.first), static_cast<double>(end),
                              lower_limit(label), upper_limit(label)};
    const std::vector<column_run> runs = reduce_curve(points, parameter, window, drawSizes, limits);
    const QColor ink = setMyColor(static_cast<int>(parameter));
    paint_curve(target, runs,
                {ink, casing_of(ink), is_thumbnail ? THUMBNAIL_LINE_WIDTH : LARGE_LINE_WIDTH,
                 scale_y(limits.min_y, drawSizes, limits)});
    const sample_stretch all = points.summary(parameter, window.first, end);
    last_OBD_val = all.open_end().count > 0 ? points.value(all.last_row, parameter) : NO_NUMBER;
}

// --- the real-time chart

void drawChartyItem::replot_realtime_chart(int) {
    draw_empty_background();
    r_these_labels = work_out_labels_4_realtime();
    draw_grid(r_these_labels, "");
    sample_rows points(_pid_logitems_list.size());
    for (const std::vector<std::string>& texts : l_val_points) {
        points.append_fresh_row();
        for (std::size_t i = 0; i < std::min(texts.size(), points.parameters()); ++i)
            points.file(i, texts[i], value_of_text(texts[i]));
    }
    plot_array_list(points, r_these_labels);
}

void drawChartyItem::plot_this_point_realtime(int index) {
    const std::size_t count = l_val_points.size();
    if (count == 0)
        return;
    if (count % REDRAW_EVERY == 0) {
        if (count >= THIN_FROM)
            l_val_points.erase(l_val_points.begin() + 1, l_val_points.begin() + 1 + THINNED);
        replot_realtime_chart(static_cast<int>(l_val_points.size()));
        return;
    }
    const auto parameter = static_cast<std::size_t>(index);
    if (index < 0 || parameter >= l_val_points.back().size() ||
        parameter >= _pid_logitems_list.size()) {
        qCWarning(log_drawing, "plot_this_point_realtime::no parameter %d", index);
        return;
    }
    const std::string& text = l_val_points.back()[parameter];
    if (count == 1)
        start_realtime_curve(parameter, text);
    else
        extend_realtime_curve(parameter, value_of_text(text).value);
}

void drawChartyItem::start_realtime_curve(std::size_t parameter, const std::string& text) {
    r_these_labels = work_out_labels_4_realtime();
    label_record& record = r_these_labels[parameter];
    const std::string& pid = _pid_logitems_list[parameter];
    label_record limits = record;
    if (limits.upper == "max")
        limits.upper = fixed_decimals(parameter_range(toolies, pid).high, 6);
    if (limits.lower == "min")
        limits.lower = fixed_decimals(parameter_range(toolies, pid).low, 6);
    r_cur_maxY = upper_limit(limits);
    r_cur_minY = lower_limit(limits);
    const double value = value_of_text(text).value;
    const bool below = value < r_cur_minY;
    const bool above = value > r_cur_maxY;
    if (below)
        record.lower = text;
    if (above)
        record.upper = text;
    if (below)
        r_cur_minY = lower_limit(record);
    if (above)
        r_cur_maxY = upper_limit(record);
    if (below || above) {
        draw_empty_background();
        draw_grid(r_these_labels, "");
    }
    const chart_point start = realtime_point(0, value);
    r_prev_x = saturating_int(start.x);
    r_prev_y = saturating_int(start.y);
    r_prev_is_gap = std::isnan(value);
    r_cur_maxX = REALTIME_SPAN;
    some_sampling_done = true;
}

chart_point drawChartyItem::realtime_point(std::size_t sample, double value) const {
    return ::scale_point(static_cast<int>(sample), value, drawSizes,
                         {0, static_cast<double>(r_cur_maxX), r_cur_minY, r_cur_maxY});
}

void drawChartyItem::extend_realtime_curve(std::size_t parameter, double value) {
    const std::size_t count = l_val_points.size();
    const bool inside = parameter < r_these_labels.size() &&
                        value >= leading_number(r_these_labels[parameter].lower) &&
                        value <= leading_number(r_these_labels[parameter].upper);
    if (!inside) {
        r_prev_is_gap = r_prev_is_gap || std::isnan(value);
        replot_realtime_chart(static_cast<int>(count));
        return;
    }
    const chart_point point = realtime_point(count - 1, value);
    canvas target(image_);
    const QColor ink = setMyColor(static_cast<int>(parameter));
    target.painter().setPen(QPen(ink, 1.0));
    const QPointF to = target.flipped(static_cast<double>(point.x), static_cast<double>(point.y));
    if (!r_prev_is_gap)
        target.painter().drawLine(target.flipped(r_prev_x, r_prev_y), to);
    if (count < MARKED_BELOW)
        target.fill(
            QRectF(static_cast<double>(point.x) - 2, static_cast<double>(point.y) - 2, 4, 4), ink);
    r_prev_x = saturating_int(point.x);
    r_prev_y = saturating_int(point.y);
    r_prev_is_gap = false;
}
