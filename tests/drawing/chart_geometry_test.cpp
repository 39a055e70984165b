#include "axis_limit.h"
#include "chart_geometry.h"

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

using testing::ElementsAre;

namespace {

constexpr double INF = std::numeric_limits<double>::infinity();
constexpr double NAN_VALUE = std::numeric_limits<double>::quiet_NaN();

TEST(axis_limit, moves_one_step_of_the_decade) {
    const struct {
        double value;
        double upper, lower;
    } cases[] = {{37, 40, 20},
                 {-37, -20, -40},
                 {40, 50, 30},
                 {5, 6, 4},
                 {0, 0, 0},
                 {0.37, 0.4, 0.2},
                 {1.0, 2, 0},
                 {1.5, 2, 0},
                 {150000, 0, 0},
                 {100000, 0, 0},
                 {99999, 100000, 80000},
                 {0.095, 0, 0},
                 {0.995, 0, 0},
                 {0.05, 0.06, 0.04},
                 {-0.37, -0.2, -0.4},
                 {9.99, 10, 8},
                 {16383.75, 20000, 0},
                 {0.004, 0, 0},
                 {NAN_VALUE, 0, 0},
                 {INF, 0, 0},
                 {-INF, 0, 0},
                 {1e300, 0, 0},
                 {-215, -100, -300}};
    for (const auto& c : cases) {
        EXPECT_DOUBLE_EQ(get_ceiling_or_floor(c.value, true), c.upper) << c.value;
        EXPECT_DOUBLE_EQ(get_ceiling_or_floor(c.value, false), c.lower) << c.value;
    }
    EXPECT_FALSE(std::signbit(get_ceiling_or_floor(-1.5, true)));
}

TEST(chart_geometry, scales_samples_into_the_area) {
    const chart_area area{40, 20, 370, 200};
    const chart_limits limits{0, 100, -10, 90};
    constexpr int MOST = std::numeric_limits<int>::max();
    const struct {
        int x;
        double y;
        chart_limits limits;
        chart_point expected;
    } cases[] = {
        {0, -10, limits, {40, 20}},
        {100, 90, limits, {410, 220}},
        {50, 40, limits, {225, 120}},
        {1, 0.4, limits, {43, 40}},       // 3.7 and 20.8 truncated
        {0, -10.9, limits, {40, 19}},     // toward zero: -1.8 becomes -1
        {7, 5, {0, 100, 5, 5}, {65, 0}},  // no span of values
        {7, 5, {7, 7, 0, 10}, {40, 120}}, // no span of samples
        {0, NAN_VALUE, limits, {40, 20}},
        {0, 1e300, limits, {40, static_cast<float>(MOST)}},
        {0, -INF, limits, {40, static_cast<float>(-MOST)}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(scale_point(c.x, c.y, area, c.limits), c.expected) << c.x << " " << c.y;
}

TEST(chart_geometry, plot_lies_beside_its_axes) {
    const chart_layout one = layout_of(420, 230, 36.9, std::nullopt);
    EXPECT_EQ(one.plot, (chart_area{38, 20, 374, 200}));
    const chart_layout two = layout_of(420, 230, 36.9, 22.3);
    EXPECT_EQ(two.plot, (chart_area{38, 20, 342, 200}));
    EXPECT_EQ(two.second_axis_x, 387);
}

TEST(chart_geometry, window_holds_the_last_rows) {
    const struct {
        std::size_t rows;
        int shown;
        row_window expected;
    } cases[] = {{50, -1, {0, 50}}, {50, 20, {30, 20}}, {20, 20, {0, 20}}, {19, 20, {0, 19}},
                 {50, 0, {50, 0}},  {50, -7, {0, 50}},  {0, 20, {0, 0}}};
    for (const auto& c : cases)
        EXPECT_EQ(window_of_rows(c.rows, c.shown), c.expected) << c.rows << " " << c.shown;
}

TEST(chart_geometry, axis_values_take_decimals_below_ten) {
    const chart_area plot{30, 20, 300, 200};
    const axis_marks small = marks_of_axis(0, 10, plot);
    EXPECT_THAT(small.texts,
                ElementsAre("  0.00", "  2.00", "  4.00", "  6.00", "  8.00", " 10.00"));
    EXPECT_THAT(small.y, ElementsAre(17, 57, 97, 137, 177, 208));
    EXPECT_THAT(marks_of_axis(0, 5000, plot).texts,
                ElementsAre("0", "1000", "2000", "3000", "4000", "5000"));
    // The integer part of lower + 3 steps decides: -9.8 counts as 9.
    EXPECT_EQ(marks_of_axis(-20, -3, plot).texts[3], " -9.80");
    EXPECT_EQ(marks_of_axis(-40, 10, plot).texts[3], "-10");
    marks_of_axis(-1e300, 1e300, plot);
    marks_of_axis(NAN_VALUE, INF, plot);
}

TEST(chart_geometry, level_counts_whole_segments) {
    const struct {
        double value, min, max;
        int expected;
    } cases[] = {{0, 0, 100, 0},       {50, 0, 100, 6},           {99.9, 0, 100, 11},
                 {100, 0, 100, 12},    {-5, 0, 100, 0},           {5, 7, 7, 0},
                 {NAN_VALUE, 0, 1, 0}, {1e300, 0, 1, 2147483647}, {-1e300, 0, 1, 0}};
    for (const auto& c : cases)
        EXPECT_EQ(level_of(c.value, c.min, c.max, 12), c.expected) << c.value;
}

} // namespace
