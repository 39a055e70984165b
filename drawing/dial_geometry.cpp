#include "dial_geometry.h"

#include "fixed_decimals.h"
#include "saturate.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

// PIDs in decimal, as in the standard's tables; the asymmetries are deliberate.
struct range_row {
    unsigned first_pid, last_pid;
    dial_range imperial, metric;
};

constexpr range_row RANGES[] = {
    {5, 5, {-40, 560, 1}, {-40, 260, 1}},     {6, 9, {-100, 100, 1}, {-100, 100, 1}},
    {10, 10, {0, 800, 1}, {0, 800, 1}},       {11, 11, {0, 300, 1}, {0, 100, 1}},
    {12, 12, {0, 10, 1000}, {0, 10, 1000}},   {13, 13, {0, 200, 1}, {0, 300, 1}},
    {14, 14, {-100, 100, 1}, {-100, 100, 1}}, {15, 15, {-40, 560, 1}, {-40, 260, 1}},
    {16, 16, {0, 300, 1}, {0, 200, 1}},       {20, 27, {0, 2, 1}, {0, 2, 1}},
    {34, 34, {0, 2, 1000}, {0, 10, 1000}},    {35, 35, {0, 500, 1000}, {0, 1000, 1000}},
    {36, 43, {0, 10, 1}, {0, 10, 1}},         {45, 45, {-100, 100, 1}, {-100, 100, 1}},
    {50, 50, {-50, 50, 1}, {-10, 10, 1000}},  {51, 51, {0, 300, 1}, {0, 100, 1}},
    {52, 59, {-150, 150, 1}, {-150, 150, 1}}, {60, 63, {0, 10, 1000}, {0, 10, 1000}},
    {67, 67, {0, 50, 1000}, {0, 50, 1000}},   {70, 70, {-40, 560, 1}, {-40, 260, 1}},
    {229, 229, {-20, 30, 1}, {-160, 240, 1}},
};

constexpr double DECIMALS_UP_TO = 9;

} // namespace

dial_range dial_range_of(unsigned pid, bool imperial) {
    for (const range_row& row : RANGES)
        if (pid >= row.first_pid && pid <= row.last_pid)
            return imperial ? row.imperial : row.metric;
    return {};
}

dial_range dial_range_over(double low, double high) {
    constexpr double MOST_UNSCALED = 9999;
    constexpr double ROUND_STEPS[] = {1, 1.2, 1.5, 2, 2.5, 3, 4, 5, 6, 8, 10, 12, 15, 20};
    if (!(low < high))
        return {};
    const int scaling = std::max(std::fabs(low), std::fabs(high)) > MOST_UNSCALED ? 1000 : 1;
    const double from = std::min(0.0, low / scaling), to = high / scaling;
    if (to - from <= DECIMALS_UP_TO)
        return {saturating_int(std::floor(from)), saturating_int(std::ceil(to)), scaling};
    const double decade = std::pow(10, std::floor(std::log10((to - from) / 10)));
    for (const double round : ROUND_STEPS)
        if (const double step = round * decade, start = std::floor(from / step) * step;
            step == std::floor(step) && start + 10 * step >= to)
            return {saturating_int(start), saturating_int(start + 10 * step), scaling};
    return {saturating_int(std::floor(from)), saturating_int(std::ceil(to)), scaling};
}

std::array<std::string, 11> dial_labels(const dial_range& range) {
    const double step = (range.high - range.low) / 10.0;
    const bool with_decimal = range.high - range.low <= DECIMALS_UP_TO;
    std::array<std::string, 11> labels;
    for (std::size_t i = 0; i < labels.size(); ++i) {
        const double value = range.low + static_cast<double>(i) * step;
        labels[i] = with_decimal ? fixed_decimals(value, 1) : std::to_string(saturating_int(value));
    }
    return labels;
}

double needle_angle(double value, double start, double end, double low, double high) {
    if (high == low || !std::isfinite(value))
        return start;
    const double per_unit = std::fabs((start - end) / (high - low));
    const double zero = low < 0 ? start - std::fabs((start - end) * low / (high - low)) : start;
    return zero - per_unit * value;
}

needle_points needle_shape(dial_point centre, double angle, double width, double length) {
    const double turn = std::isfinite(angle) ? angle : NEEDLE_START;
    const double base = width * 0.7;
    constexpr double QUARTER = std::numbers::pi / 2;
    const auto away = [&](double direction, double distance) {
        return dial_point{centre.x + std::cos(direction) * distance,
                          centre.y + std::sin(direction) * distance};
    };
    return {centre, away(turn, length), away(turn - QUARTER, base), away(turn + QUARTER, base)};
}
