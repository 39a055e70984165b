// The layout of a chart, without painting. Image units; y grows upwards.
#pragma once

#include "saturate.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>

struct chart_area {
    int x = 0, y = 0, width = 0, height = 0;
    bool operator==(const chart_area&) const = default;
};

struct chart_limits {
    double min_x = 0, max_x = 0, min_y = 0, max_y = 0;
};

struct chart_point {
    float x, y;
    bool operator==(const chart_point&) const = default;
};

// Positions of numbers on one axis, truncated to whole units. NaN counts as 0; values outside int
// saturate. The division is done once for all numbers.
class axis_scale {
  public:
    // `flat` is the position of every number if the axis has no span.
    axis_scale(double min, double max, int length, int origin, int flat)
        : min_(min), factor_(max == min ? 0 : length / (max - min)), origin_(origin),
          flat_(max == min), flat_place_(flat) {}
    int operator()(double number) const {
        return flat_ ? flat_place_ : moved(saturating_int((number - min_) * factor_));
    }

  private:
    int moved(int place) const { return saturating_int(static_cast<double>(place) + origin_); }

    double min_, factor_;
    int origin_;
    bool flat_;
    int flat_place_;
};
// Without a span of samples x is the area's left edge; without a span of values y is 0.
axis_scale scale_of_x(const chart_area& area, const chart_limits& limits);
axis_scale scale_of_y(const chart_area& area, const chart_limits& limits);

int scale_x(double x, const chart_area& area, const chart_limits& limits);
int scale_y(double y, const chart_area& area, const chart_limits& limits);
chart_point scale_point(int x, double y, const chart_area& area, const chart_limits& limits);

// The plot rectangle beside one value axis, or between two, and the position of the second axis.
struct chart_layout {
    chart_area plot;
    int second_axis_x = 0;
};
chart_layout layout_of(double image_width, double image_height, double axis_width,
                       std::optional<double> second_axis_width);

// The rows to draw: the last `shown` of `rows`, or all if `shown` is negative or too large.
struct row_window {
    std::size_t first = 0, count = 0;
    bool operator==(const row_window&) const = default;
};
row_window window_of_rows(std::size_t rows, int shown);

// A value axis: the texts at its six marks and the lower edges of their line boxes.
struct axis_marks {
    std::array<std::string, 6> texts;
    std::array<double, 6> y;
};
axis_marks marks_of_axis(double lower, double upper, const chart_area& plot);

// The number of the bar's segments that a value fills, from 0; 0 without a span.
int level_of(double value, double min, double max, int segments);
