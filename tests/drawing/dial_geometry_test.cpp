#include "dial_geometry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <numbers>

using testing::ElementsAre;

namespace {

constexpr double INF = std::numeric_limits<double>::infinity();
constexpr double NAN_VALUE = std::numeric_limits<double>::quiet_NaN();

double degrees(double radians) {
    return radians * 180 / std::numbers::pi;
}

TEST(dial_geometry, ranges_keep_their_asymmetries) {
    const struct {
        unsigned pid;
        dial_range imperial, metric;
    } cases[] = {{0x05, {-40, 560, 1}, {-40, 260, 1}},
                 {0x0F, {-40, 560, 1}, {-40, 260, 1}},
                 {0x46, {-40, 560, 1}, {-40, 260, 1}},
                 {0x06, {-100, 100, 1}, {-100, 100, 1}},
                 {0x09, {-100, 100, 1}, {-100, 100, 1}},
                 {0x0E, {-100, 100, 1}, {-100, 100, 1}},
                 {0x2D, {-100, 100, 1}, {-100, 100, 1}},
                 {0x0A, {0, 800, 1}, {0, 800, 1}},
                 {0x0B, {0, 300, 1}, {0, 100, 1}},
                 {0x33, {0, 300, 1}, {0, 100, 1}},
                 {0x0C, {0, 10, 1000}, {0, 10, 1000}},
                 {0x3C, {0, 10, 1000}, {0, 10, 1000}},
                 {0x3F, {0, 10, 1000}, {0, 10, 1000}},
                 {0x0D, {0, 200, 1}, {0, 300, 1}},
                 {0x10, {0, 300, 1}, {0, 200, 1}},
                 {0x14, {0, 2, 1}, {0, 2, 1}},
                 {0x1B, {0, 2, 1}, {0, 2, 1}},
                 {0x22, {0, 2, 1000}, {0, 10, 1000}},
                 {0x23, {0, 500, 1000}, {0, 1000, 1000}},
                 {0x24, {0, 10, 1}, {0, 10, 1}},
                 {0x2B, {0, 10, 1}, {0, 10, 1}},
                 {0x32, {-50, 50, 1}, {-10, 10, 1000}},
                 {0x34, {-150, 150, 1}, {-150, 150, 1}},
                 {0x3B, {-150, 150, 1}, {-150, 150, 1}},
                 {0x43, {0, 50, 1000}, {0, 50, 1000}},
                 {0xE5, {-20, 30, 1}, {-160, 240, 1}},
                 {0x04, {0, 100, 1}, {0, 100, 1}},
                 {0x1C, {0, 100, 1}, {0, 100, 1}},
                 {0xFFFFFFFF, {0, 100, 1}, {0, 100, 1}}};
    for (const auto& c : cases) {
        EXPECT_EQ(dial_range_of(c.pid, true), c.imperial) << c.pid;
        EXPECT_EQ(dial_range_of(c.pid, false), c.metric) << c.pid;
    }
}

TEST(dial_geometry, a_range_without_a_row_gets_round_labels) {
    EXPECT_EQ(dial_range_over(-40, 160), (dial_range{-40, 160, 1}));
    EXPECT_EQ(dial_range_over(-40, 320), (dial_range{-40, 360, 1}));
    EXPECT_EQ(dial_range_over(0, 58), (dial_range{0, 60, 1}));
    EXPECT_EQ(dial_range_over(0, 300000), (dial_range{0, 300, 1000}));
    EXPECT_EQ(dial_range_over(32, 1832), (dial_range{0, 2000, 1})) << "a low end is no offset";
    EXPECT_EQ(dial_range_over(0, 4), (dial_range{0, 4, 1}));
    EXPECT_EQ(dial_range_over(0, 0), (dial_range{0, 100, 1}));
}

TEST(dial_geometry, labels_take_a_decimal_on_short_ranges) {
    EXPECT_THAT(dial_labels({0, 2, 1}), ElementsAre("0.0", "0.2", "0.4", "0.6", "0.8", "1.0", "1.2",
                                                    "1.4", "1.6", "1.8", "2.0"));
    EXPECT_THAT(dial_labels({0, 10, 1000}),
                ElementsAre("0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10"));
    EXPECT_THAT(dial_labels({-40, 260, 1}), ElementsAre("-40", "-10", "20", "50", "80", "110",
                                                        "140", "170", "200", "230", "260"));
}

TEST(dial_geometry, needle_turns_with_the_value) {
    const struct {
        double value, low, high, degrees;
    } cases[] = {
        {0, 0, 10, 220},       {10, 0, 10, -40},        {5, 0, 10, 90},
        {-40, -40, 260, 220},  {260, -40, 260, -40},    {0, -100, 100, 90},
        {15, 0, 10, -170},     {-1, 0, 10, 246}, // past the ends
        {5, 5, 15, 90}, // a range from above 0 is not shifted by its low end
        {3, 7, 7, 220},        {NAN_VALUE, 0, 10, 220}, {INF, 0, 10, 220},
        {-INF, -40, 260, 220},
    };
    for (const auto& c : cases)
        EXPECT_NEAR(degrees(needle_angle(c.value, NEEDLE_START, NEEDLE_END, c.low, c.high)),
                    c.degrees, 1e-9)
            << c.value << " on " << c.low << ".." << c.high;
}

TEST(dial_geometry, needle_is_a_triangle_about_its_centre) {
    const needle_points up = needle_shape({182, 104}, std::numbers::pi / 2, 20, 140);
    EXPECT_NEAR(up.tip.x, 182, 1e-9);
    EXPECT_NEAR(up.tip.y, 244, 1e-9);
    EXPECT_NEAR(up.left.x, 196, 1e-9);
    EXPECT_NEAR(up.left.y, 104, 1e-9);
    EXPECT_NEAR(up.right.x, 168, 1e-9);
    for (const double angle : {NAN_VALUE, std::numeric_limits<double>::infinity(), 1e300}) {
        const needle_points lost = needle_shape({0, 0}, angle, 20, 140);
        EXPECT_LE(std::abs(lost.tip.x), 141);
        EXPECT_LE(std::abs(lost.tip.y), 141);
    }
    EXPECT_NEAR(needle_shape({0, 0}, INF, 20, 140).tip.x, 140 * std::cos(NEEDLE_START), 1e-9);
}

} // namespace
