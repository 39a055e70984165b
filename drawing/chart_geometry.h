// Where things of a chart lie, apart from painting. Image units; y grows upwards.
#pragma once

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

// A sample's place in the area, truncated to whole units. Without a span of values y is 0; without
// a span of samples x is the area's left edge. NaN counts as 0 and what no int holds as the nearest
// int.
chart_point scale_point(int x, double y, const chart_area& area, const chart_limits& limits);
int scale_x(double x, const chart_area& area, const chart_limits& limits);
int scale_y(double y, const chart_area& area, const chart_limits& limits);

// The plot rectangle beside one value axis, or between two, and where the second axis stands.
struct chart_layout {
    chart_area plot;
    int second_axis_x = 0;
};
chart_layout layout_of(double image_width, double image_height, double axis_width,
                       std::optional<double> second_axis_width);

// The rows to draw: the last `shown` of `rows`, or all when `shown` is negative or more than there
// are.
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

// How many of the bar's segments a value fills, counted from 0; 0 without a span.
int level_of(double value, double min, double max, int segments);
