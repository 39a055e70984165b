// The layout of a dial, without painting. Image units; y grows upwards; angles in radians,
// counter-clockwise from the positive x axis.
#pragma once

#include <array>
#include <string>

struct dial_point {
    double x, y;
};

// Needle centre on the dial's picture, where its scale begins and ends (220 and -40 degrees).
inline constexpr int NEEDLE_X = 182;
inline constexpr int NEEDLE_Y = 104;
inline constexpr double NEEDLE_START = 3.839724354387525;
inline constexpr double NEEDLE_END = -0.6981317007977318;
inline constexpr double NEEDLE_WIDTH = 20;
inline constexpr double NEEDLE_LENGTH = 140;

// The range a dial shows, in display units divided by the scaling.
struct dial_range {
    int low = 0, high = 100, scaling = 1;
    bool operator==(const dial_range&) const = default;
};
dial_range dial_range_of(unsigned pid, bool imperial);
// From 0, or below, to `high` or slightly more, so that the labels are round numbers.
dial_range dial_range_over(double low, double high);

// The texts of the dial's eleven labels.
std::array<std::string, 11> dial_labels(const dial_range& range);

struct dial_label_place {
    dial_point at;         // lower-left corner of the line box
    bool shift_half_width; // minus half the text's width
};
inline constexpr std::array<dial_label_place, 11> DIAL_LABEL_PLACES = {{
    {{100, 24}, false},
    {{75, 66}, false},
    {{70, 118}, false},
    {{88, 150}, false},
    {{125, 180}, false},
    {{160, 200}, false},
    {{205, 180}, false},
    {{255, 150}, true},
    {{275, 118}, true},
    {{272, 66}, true},
    {{245, 24}, true},
}};

// Not clamped: a value beyond the range turns the needle past the scale's end. Only a negative low
// shifts the zero. Without a span, or for a number that is not finite, the needle stays at the
// start.
double needle_angle(double value, double start, double end, double low, double high);

struct needle_points {
    dial_point centre, tip, left, right;
};
// An angle that is not finite counts as the dial's start.
needle_points needle_shape(dial_point centre, double angle, double width, double length);
