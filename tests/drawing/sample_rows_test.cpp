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

// Row by row, by what the words of sample_stretch mean.
sample_stretch added_up(const sample_rows& rows, std::size_t parameter, std::size_t first,
                        std::size_t end) {
    sample_stretch sum;
    for (std::size_t row = first; row < end; ++row) {
        const double value = rows.value(row, parameter);
        if (!std::isnan(value)) {
            (sum.gapped ? sum.tail : sum.head).add(value);
            sum.last_row = row;
        } else if (rows.filled(row, parameter)) {
            if (sum.gapped && sum.tail.count > 1) {
                sum.inner.add(sum.tail);
                ++sum.inner_runs;
            }
            sum.tail = {};
            sum.gapped = true;
        }
    }
    return sum;
}

void expect_same(const number_run& found, const number_run& expected) {
    ASSERT_EQ(found.count, expected.count);
    ASSERT_EQ(found.lowest, expected.lowest);
    ASSERT_EQ(found.highest, expected.highest);
}

void expect_same(const sample_stretch& found, const sample_stretch& expected) {
    expect_same(found.head, expected.head);
    expect_same(found.tail, expected.tail);
    ASSERT_EQ(found.gapped, expected.gapped);
    ASSERT_EQ(found.inner_runs, expected.inner_runs);
    expect_same(found.inner, expected.inner);
    if (found.open_end().count > 0) {
        ASSERT_EQ(found.last_row, expected.last_row);
    }
}

TEST_F(sample_rows_test, stretches_add_up_to_the_rows_of_any_window_in_any_mixture) {
    constexpr std::size_t COUNT = 9000;
    // Of a thousand rows so many are gaps, and so many unfilled.
    const struct {
        unsigned gaps, unfilled;
    } mixtures[] = {{0, 0}, {2, 1}, {400, 0}, {0, 400}, {300, 300}, {1000, 0}, {0, 1000}};
    std::mt19937 random(7);
    sample_rows rows(std::size(mixtures));
    for (std::size_t i = 0; i < COUNT; ++i) {
        rows.append_fresh_row();
        for (std::size_t p = 0; p < std::size(mixtures); ++p) {
            const unsigned dice = random() % 1000;
            if (dice < mixtures[p].gaps)
                rows.file(p, "y", number(NAN_VALUE));
            else if (dice >= mixtures[p].gaps + mixtures[p].unfilled)
                rows.file(p, "x", number(random() % 1000));
        }
    }
    for (int i = 0; i < 40; ++i) {
        const std::size_t first = i == 0 ? 0 : random() % COUNT;
        const std::size_t end = i == 0 ? COUNT : first + random() % (COUNT - first + 1);
        for (std::size_t p = 0; p < std::size(mixtures); ++p) {
            const sample_stretch expected = added_up(rows, p, first, end);
            expect_same(rows.summary(p, first, end), expected);
            for (const unsigned taken : {100U, 50U, 0U}) { // the others are asked for in pieces
                sample_stretch sum;
                std::size_t stretches = 0;
                rows.for_each_stretch(p, first, end, [&](const sample_stretch& next) {
                    if (next.inner_runs > 0 && random() % 100 >= taken)
                        return false;
                    sum.append(next);
                    ++stretches;
                    return true;
                });
                expect_same(sum, expected);
                if (taken == 100) {
                    EXPECT_LE(stretches, 2 * sample_rows::BLOCK * 5) << p;
                }
            }
        }
    }
}

#if !defined(__SANITIZE_ADDRESS__)
TEST_F(sample_rows_test, a_sample_takes_less_than_48_bytes_with_gaps_too) {
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
            if (p < 2 || i % 3 != 0)
                rows.file(p, "410C1AF8", {"1726.00 RPM", 1726});
            else
                rows.file(p, "NODATA", {"~", NAN_VALUE});
    }
    EXPECT_LE((in_use() - before) / (ROWS * PARAMETERS), 48U);
}
#endif

} // namespace
