#include "drawing_fixture.h"

#include <limits>
#include <malloc.h>
#include <random>

namespace {

constexpr double NAN_VALUE = std::numeric_limits<double>::quiet_NaN();

class sample_rows_test : public drawing_test {};

translated number(double value) {
    return {std::isnan(value) ? "~" : std::to_string(value), value};
}

TEST_F(sample_rows_test, keeps_texts_and_numbers_as_filed) {
    sample_rows rows(2);
    file(rows, 0, "410C1AF8"); // no row yet
    EXPECT_EQ(rows.rows(), 0U);
    rows.append_fresh_row();
    EXPECT_EQ(rows.text(0, 1), "-1");
    EXPECT_FALSE(rows.filled(0, 1));
    EXPECT_TRUE(std::isnan(rows.value(0, 1)));

    const std::string at_most_inline = "410C1AF80000000";
    const std::string too_long(70, 'z');
    for (const std::string& reply :
         {std::string("410C1AF8"), too_long, at_most_inline, too_long + "y", std::string("NODATA"),
          std::string(), std::string("~\0x", 3)}) {
        file(rows, 0, reply);
        EXPECT_EQ(rows.text(0, 0), reply);
        EXPECT_EQ(std::isnan(rows.value(0, 0)), !reply.starts_with("410C"));
    }
    file(rows, 2, "410C1AF8"); // no such parameter
    file(rows, 0, too_long);
    rows.append_fresh_row();
    file(rows, 0, "410C1AF8");
    EXPECT_EQ(rows.text(0, 0), too_long);
    EXPECT_EQ(rows.value(1, 0), 1726.0);
    EXPECT_EQ(rows.text(1, 1), "-1");
}

TEST_F(sample_rows_test, labels_count_an_unusable_reply_as_zero_and_plotting_as_none) {
    const struct {
        std::string_view display_text;
        double expected;
    } cases[] = {{"1726.00 RPM", 1726}, {"~", 0},        {"-16.0 Pa", -16}, {"N/A", 0},
                 {"Open Loop", 0},      {"1 'Hours'", 1}};
    for (const auto& c : cases)
        EXPECT_EQ(sample_rows::chart_number(c.display_text), c.expected) << c.display_text;
    EXPECT_TRUE(std::isnan(sample_rows::chart_number("-")));
    EXPECT_TRUE(std::isnan(sample_rows::chart_number("")));
}

TEST_F(sample_rows_test, extrema_leave_out_the_first_row_and_count_unfilled_places) {
    sample_rows rows(1);
    rows.append_fresh_row();
    rows.file(0, "a", number(900));
    EXPECT_TRUE(std::isnan(rows.highest(0)));
    rows.append_fresh_row();
    EXPECT_EQ(rows.highest(0), 0); // not filled yet
    rows.file(0, "b", number(20));
    EXPECT_EQ(rows.highest(0), 20);
    EXPECT_EQ(rows.lowest(0), 20);
    rows.file(0, "b", number(30)); // filed again
    rows.append_fresh_row();
    rows.file(0, "c", number(40));
    rows.append_fresh_row();
    rows.file(0, "d", {"-", 0}); // no number at all
    EXPECT_EQ(rows.highest(0), 40);
    EXPECT_EQ(rows.lowest(0), 30);
    rows.append_fresh_row();
    rows.append_fresh_row();
    rows.file(0, "e", number(35));
    EXPECT_EQ(rows.lowest(0), 0);
    rows.clear();
    EXPECT_TRUE(rows.empty());
    EXPECT_TRUE(std::isnan(rows.lowest(0)));
}

// Walks the pieces and compares them with the rows one by one.
void expect_pieces_hold_all(const sample_rows& rows, std::size_t parameter, std::size_t first,
                            std::size_t end) {
    std::size_t next = first;
    std::size_t pieces = 0;
    const auto skip_unfilled = [&] {
        while (next < end && !rows.filled(next, parameter))
            ++next;
    };
    rows.for_each_piece(parameter, first, end, [&](const sample_piece& piece) {
        ++pieces;
        skip_unfilled();
        ASSERT_EQ(piece.row, next);
        ASSERT_LE(next + piece.count, end);
        double lowest = rows.value(next, parameter);
        double highest = lowest;
        for (std::size_t row = next; row < next + piece.count; ++row) {
            const double value = rows.value(row, parameter);
            ASSERT_EQ(std::isnan(value), !piece.number());
            lowest = std::min(lowest, value);
            highest = std::max(highest, value);
        }
        if (piece.number()) {
            ASSERT_EQ(piece.lowest, lowest);
            ASSERT_EQ(piece.highest, highest);
        }
        next += piece.count;
    });
    skip_unfilled();
    EXPECT_EQ(next, end);
    if (parameter == 0) { // all numbers: few pieces
        EXPECT_LE(pieces, 2 * sample_rows::BLOCK * 4);
    }
}

TEST_F(sample_rows_test, pieces_hold_every_sample_of_any_window) {
    std::mt19937 random(7);
    sample_rows rows(2);
    constexpr std::size_t COUNT = 9000;
    for (std::size_t i = 0; i < COUNT; ++i) {
        rows.append_fresh_row();
        rows.file(0, "x", number(random() % 1000));
        if (const unsigned dice = random() % 400; dice > 1)
            rows.file(1, "y", number(dice == 2 ? NAN_VALUE : random() % 1000));
    }
    for (int i = 0; i < 60; ++i) {
        const std::size_t first = random() % COUNT;
        const std::size_t end = first + random() % (COUNT - first + 1);
        expect_pieces_hold_all(rows, 0, first, end);
        expect_pieces_hold_all(rows, 1, first, end);
    }
    expect_pieces_hold_all(rows, 0, 0, COUNT);
}

#if !defined(__SANITIZE_ADDRESS__)
TEST_F(sample_rows_test, a_sample_takes_less_than_48_bytes) {
    const auto in_use = [] {
        const struct mallinfo2 info = mallinfo2();
        return info.uordblks + info.hblkhd;
    };
    const std::size_t before = in_use();
    constexpr std::size_t ROWS = 100000;
    constexpr std::size_t PARAMETERS = 4;
    sample_rows rows(PARAMETERS);
    for (std::size_t i = 0; i < ROWS; ++i) {
        rows.append_fresh_row();
        for (std::size_t p = 0; p < PARAMETERS; ++p)
            rows.file(p, "410C1AF8", {"1726.00 RPM", 1726});
    }
    EXPECT_LE((in_use() - before) / (ROWS * PARAMETERS), 48U);
}
#endif

} // namespace
