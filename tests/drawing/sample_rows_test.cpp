#include "drawing_fixture.h"

#include <limits>
#include <malloc.h>
#include <map>
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

TEST_F(sample_rows_test, extrema_leave_out_the_first_row_and_what_is_no_sample) {
    sample_rows rows(1);
    rows.append_fresh_row();
    rows.file(0, "a", number(900));
    EXPECT_TRUE(std::isnan(rows.highest(0)));
    rows.append_fresh_row();
    EXPECT_TRUE(std::isnan(rows.highest(0))); // not filled yet
    rows.file(0, "b", number(20));
    EXPECT_EQ(rows.highest(0), 20);
    EXPECT_EQ(rows.lowest(0), 20);
    rows.file(0, "b", number(30)); // filed again
    rows.append_fresh_row();
    rows.file(0, "c", number(40));
    rows.append_fresh_row();
    rows.file(0, "d", {"~", std::nan("")}); // no answer
    EXPECT_EQ(rows.lowest(0), 30);
    EXPECT_EQ(rows.highest(0), 40);
    EXPECT_EQ(rows.lowest(0), 30);
    rows.append_fresh_row();
    rows.append_fresh_row();
    rows.file(0, "e", number(35));
    EXPECT_EQ(rows.lowest(0), 30); // a whole row was passed over
    rows.clear();
    EXPECT_TRUE(rows.empty());
    EXPECT_TRUE(std::isnan(rows.lowest(0)));
}

// What a stretch adds up to, row by row.
struct long_sum {
    number_run head, tail;
    bool gapped = false;
    std::size_t last_row = 0;
    std::map<double, double> inner; // what is covered, from and to
    std::size_t inner_points = 0;

    void cover(double lowest, double highest) {
        for (auto i = inner.begin(); i != inner.end();) {
            if (i->first > highest || i->second < lowest) {
                ++i;
                continue;
            }
            lowest = std::min(lowest, i->first);
            highest = std::max(highest, i->second);
            i = inner.erase(i);
        }
        inner[lowest] = highest;
    }
};

long_sum added_up(const sample_rows& rows, std::size_t parameter, std::size_t first,
                  std::size_t end) {
    long_sum sum;
    for (std::size_t row = first; row < end; ++row) {
        const double value = rows.value(row, parameter);
        if (!std::isnan(value)) {
            (sum.gapped ? sum.tail : sum.head).add(value);
            sum.last_row = row;
        } else if (rows.filled(row, parameter)) {
            if (sum.gapped && sum.tail.count > 1) {
                sum.cover(sum.tail.lowest, sum.tail.highest);
                sum.inner_points += sum.tail.count;
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

void expect_same(const sample_stretch& found, const long_sum& expected) {
    expect_same(found.head, expected.head);
    expect_same(found.tail, expected.tail);
    ASSERT_EQ(found.gapped, expected.gapped);
    if (found.open_end().count > 0) {
        ASSERT_EQ(found.last_row, expected.last_row);
    }
    ASSERT_EQ(found.inner_points, expected.inner_points);
    // Every span begins and ends with what is covered, and bridges no gap wider than it says.
    auto covered = expected.inner.begin();
    for (const value_span& span : found.inner) {
        ASSERT_NE(covered, expected.inner.end());
        ASSERT_EQ(covered->first, span.lowest);
        double reached = covered->second;
        for (++covered; covered != expected.inner.end() && covered->first <= span.highest;
             ++covered) {
            ASSERT_LE(covered->first - reached, span.bridged);
            reached = covered->second;
        }
        ASSERT_EQ(reached, span.highest);
    }
    ASSERT_EQ(covered, expected.inner.end());
}

// Collects what it visits, and requests some blocks in pieces.
struct piece_adder {
    unsigned percent_taken;
    std::mt19937& random;
    sample_stretch sum;
    std::size_t count = 0;

    void add(const sample_stretch& next) {
        sum.append(next);
        ++count;
    }
    void numbers(const number_run& run, std::size_t first_row, std::size_t end_row) {
        add(sample_stretch::of_numbers(run, first_row, end_row));
    }
    void gap() { add(sample_stretch::of_gap()); }
    bool block(const value_span& all, const sample_stretch& stretch) {
        EXPECT_EQ(all.lowest, stretch.all().lowest);
        EXPECT_EQ(all.highest, stretch.all().highest);
        if (random() % 100 >= percent_taken)
            return false;
        add(stretch);
        return true;
    }
};

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
            const unsigned pick = random() % 1000;
            if (pick < mixtures[p].gaps)
                rows.file(p, "y", number(NAN_VALUE));
            else if (pick >= mixtures[p].gaps + mixtures[p].unfilled)
                rows.file(p, "x", number(random() % 1000 / (p == 4 ? 1 : 7) + i / 3 % 5 * 200));
        }
    }
    for (int i = 0; i < 40; ++i) {
        const std::size_t first = i == 0 ? 0 : random() % COUNT;
        const std::size_t end = i == 0 ? COUNT : first + random() % (COUNT - first + 1);
        for (std::size_t p = 0; p < std::size(mixtures); ++p) {
            const long_sum expected = added_up(rows, p, first, end);
            expect_same(rows.summary(p, first, end), expected);
            for (const unsigned taken : {100U, 50U, 0U}) { // the others are asked for in pieces
                piece_adder pieces{taken, random, {}};
                rows.for_each_piece(p, first, end, pieces);
                expect_same(pieces.sum, expected);
                if (taken == 100) {
                    EXPECT_LE(pieces.count, 2 * sample_rows::BLOCK * 5) << p;
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
