// Charts and dials by the rows of data/geometry.rows.
#include "axis_limit.h"
#include "chart_geometry.h"
#include "dial_geometry.h"
#include "rows.h"
#include "test_paths.h"

#include <cmath>
#include <limits>
#include <numbers>

namespace {

using F = const std::vector<std::string>&;
using numbers = std::vector<double>;
constexpr double HALF_TURN = 180, DEGREES = HALF_TURN / std::numbers::pi;

double at(F f, std::size_t place) {
    return std::stod(f[place]);
}
template <class texts>
std::string listed(const texts& all) {
    std::string text;
    for (const auto& one : all)
        text += (&one == &all.front() ? "" : ";") + one;
    return text;
}
std::string text_of(const dial_range& range) {
    return numbers_text(numbers{double(range.low), double(range.high), double(range.scaling)});
}
std::string point(F f, int) {
    const numbers limits = numbers_in(f[2]);
    const chart_point found = scale_point(std::stoi(f[0]), at(f, 1), {40, 20, 370, 200},
                                          {limits[0], limits[1], limits[2], limits[3]});
    return numbers_text({found.x, found.y});
}
std::string layout(F f, int) {
    const auto second = f[3] == "-" ? std::nullopt : std::optional(at(f, 3));
    const chart_layout found = layout_of(at(f, 0), at(f, 1), at(f, 2), second);
    const chart_area& plot = found.plot;
    return numbers_text({double(plot.x), double(plot.y), double(plot.width), double(plot.height),
                         second ? double(found.second_axis_x) : 0});
}
std::string window(F f, int) {
    const row_window found = window_of_rows(std::stoul(f[0]), std::stoi(f[1]));
    return numbers_text({double(found.first), double(found.count)});
}
std::string places(F f, int) {
    std::vector<std::string> texts;
    for (const double y : marks_of_axis(at(f, 0), at(f, 1), {30, 20, 300, 200}).y)
        texts.push_back(numbers_text({y}));
    return listed(texts);
}
std::string needle(F f, int) {
    const needle_points n = needle_shape({182, 104}, at(f, 0) / DEGREES, 20, 140);
    return numbers_text({n.tip.x, n.tip.y, n.left.x, n.left.y, n.right.x, n.right.y});
}

const row_operations<int> OPERATIONS{
    {"ceiling", [](F f, int) { return numbers_text({get_ceiling_or_floor(at(f, 0), true)}); }},
    {"floor", [](F f, int) { return numbers_text({get_ceiling_or_floor(at(f, 0), false)}); }},
    {"scale_point", point},
    {"layout", layout},
    {"window_of_rows", window},
    {"axis_texts",
     [](F f, int) {
         return listed(marks_of_axis(at(f, 0), at(f, 1), {30, 20, 300, 200}).texts);
     }},
    {"axis_places", places},
    {"level_of",
     [](F f, int) { return std::to_string(level_of(at(f, 0), at(f, 1), at(f, 2), 12)); }},
    {"imperial_dial", [](F f, int) { return text_of(dial_range_of(unsigned(at(f, 0)), true)); }},
    {"metric_dial", [](F f, int) { return text_of(dial_range_of(unsigned(at(f, 0)), false)); }},
    {"dial_over", [](F f, int) { return text_of(dial_range_over(at(f, 0), at(f, 1))); }},
    {"dial_labels",
     [](F f, int) {
         return listed(dial_labels({std::stoi(f[0]), std::stoi(f[1]), 1}));
     }},
    {"needle_degrees",
     [](F f, int) {
         return numbers_text(
             {DEGREES * needle_angle(at(f, 0), NEEDLE_START, NEEDLE_END, at(f, 1), at(f, 2))});
     }},
    {"needle", needle},
};

TEST(geometry, is_as_the_rows_say) {
    for (const table_row& row : read_rows(test_data("geometry.rows")))
        expect_row(OPERATIONS, row, 0);
}

TEST(geometry, needle_and_axis_of_no_number_are_harmless) {
    constexpr double INF = std::numeric_limits<double>::infinity();
    constexpr double NAN_VALUE = std::numeric_limits<double>::quiet_NaN();
    for (const double angle : {NAN_VALUE, INF, 1e300}) {
        const needle_points lost = needle_shape({0, 0}, angle, 20, 140);
        EXPECT_LE(std::hypot(lost.tip.x, lost.tip.y), 141);
    }
    EXPECT_NEAR(needle_shape({0, 0}, INF, 20, 140).tip.x, 140 * std::cos(NEEDLE_START), 1e-9);
    EXPECT_FALSE(std::signbit(get_ceiling_or_floor(-1.5, true)));
    marks_of_axis(-1e300, 1e300, {30, 20, 300, 200});
    marks_of_axis(NAN_VALUE, INF, {30, 20, 300, 200});
}

} // namespace
