// The reduced way of drawing a curve against drawing every segment.
#include "canvas.h"
#include "casing.h"
#include "curve_painter.h"
#include "drawing_fixture.h"
#include "literal_curve.h"

#include <QDir>

#include <limits>
#include <random>

namespace {

constexpr double NAN_VALUE = std::numeric_limits<double>::quiet_NaN();
const chart_area PLOT{38, 20, 372, 200};
const QSizeF CHART(420, 230);

enum class shape { smooth, noisy, spikes, gaps, half_gaps, jumps, levels, unfilled, mixed };

const std::pair<const char*, shape> SHAPES[] = {
    {"smooth", shape::smooth}, {"noisy", shape::noisy},         {"spikes", shape::spikes},
    {"gaps", shape::gaps},     {"half gaps", shape::half_gaps}, {"jumps", shape::jumps},
    {"levels", shape::levels}, {"unfilled", shape::unfilled},   {"mixed", shape::mixed}};

sample_rows samples_of(shape kind, std::size_t count) {
    std::mt19937 random(static_cast<unsigned>(count));
    sample_rows rows(1);
    for (std::size_t i = 0; i < count; ++i) {
        const double along = static_cast<double>(i) / static_cast<double>(count);
        const double wave = 50 + 40 * std::sin(along * 25);
        double value = wave;
        rows.append_fresh_row();
        switch (kind) {
        case shape::smooth:
            break;
        case shape::noisy:
            value = random() % 1000 / 10.0;
            break;
        case shape::spikes:
            value = random() % 50 == 0 ? 95 : 10 + 5 * std::sin(along * 9);
            break;
        case shape::gaps:
            value = random() % 500 == 0 ? NAN_VALUE : wave + random() % 100 / 20.0;
            break;
        case shape::half_gaps: // alternately nothing, so that there is no segment at all for a
                               // while
            value = along < 0.3 && i % 2 == 0 ? NAN_VALUE : random() % 1000 / 10.0;
            break;
        case shape::jumps:
            value = static_cast<int>(along * 20) % 2 == 0 ? 10 : 90;
            break;
        case shape::levels: // five of them, with a gap at every jump
            value = i % 3 == 0 ? NAN_VALUE : 10 + 20 * static_cast<double>(i / 3 % 5);
            break;
        case shape::unfilled:
            if (random() % 3 == 0)
                continue;
            break;
        case shape::mixed:
            if (const unsigned pick = random() % 4; pick == 0)
                continue;
            else if (pick == 1)
                value = NAN_VALUE;
            break;
        }
        rows.file(0, "x", {"", value});
    }
    return rows;
}

picture_difference draw_both_ways(const std::string& name, const sample_rows& rows, int shown,
                                  bool antialiased, double allowed_percent = 0.1) {
    const row_window window = window_of_rows(rows.rows(), shown);
    const chart_limits limits{static_cast<double>(window.first),
                              static_cast<double>(window.first + window.count), 0, 100};
    const QColor ink(223, 1, 1);
    const curve_style style{ink, casing_of(ink), 1.8, PLOT.y, antialiased};
    QImage whole = empty_image(CHART, 1);
    whole.fill(QColor(31, 31, 46));
    QImage reduced = whole.copy();
    {
        canvas target(whole);
        paint_every_segment(target, rows, 0, window, PLOT, limits, style);
    }
    {
        canvas target(reduced);
        paint_curve(target, reduce_curve(rows, 0, window, PLOT, limits), style);
    }
    const picture_difference found = compare_pictures(whole, reduced);
    if (antialiased ? found.strong_percent > allowed_percent : found.any > 0) {
        const QString base =
            QDir::temp().filePath(QStringLiteral("kestrom-curve-") + qstring(name));
        whole.save(base + QStringLiteral("-expected.png"));
        reduced.save(base + QStringLiteral("-actual.png"));
        ADD_FAILURE() << name << ": " << found.strong_percent << " % differ, " << found.any
                      << " pixels at all; see " << base.toStdString();
    }
    return found;
}

TEST(curve, looks_as_if_every_segment_were_drawn) {
    for (const auto& [name, kind] : SHAPES)
        for (const std::size_t count : {2U, 30U, 371U, 500U, 2500U, 20000U}) {
            const sample_rows rows = samples_of(kind, count);
            const std::string label = name + std::string("-") + std::to_string(count);
            draw_both_ways(label, rows, -1, false);
            // Where every few samples have a gap, many short lines end in one pixel each, which is
            // a shade weaker than the reduced curve's.
            draw_both_ways(label + "-smoothed", rows, -1, true, kind == shape::mixed ? 0.25 : 0.1);
        }
}

TEST(curve, looks_the_same_at_100000_rows_and_in_any_window) {
    for (const shape kind : {shape::smooth, shape::noisy, shape::gaps, shape::half_gaps,
                             shape::levels, shape::mixed}) {
        const sample_rows rows = samples_of(kind, 100000);
        draw_both_ways("large", rows, -1, false);
        draw_both_ways("large smoothed", rows, -1, true);
        draw_both_ways("window", rows, 33333, false);
        draw_both_ways("zoomed", rows, 20, true);
    }
}

TEST(curve, a_far_outlier_leaves_the_slopes_as_they_are) {
    for (const double outlier : {3e3, 1e5, -1e5}) {
        sample_rows rows(1);
        for (const double value : {20.0, outlier, 30.0, 70.0, 40.0}) {
            rows.append_fresh_row();
            rows.file(0, "x", {"", value});
        }
        draw_both_ways("outlier", rows, -1, true);
        draw_both_ways("outlier-hard", rows, -1, false);
    }
}

TEST(curve, reduces_to_the_columns_however_many_samples_and_gaps) {
    for (const auto& [name, kind] : SHAPES) {
        const sample_rows rows = samples_of(kind, 50000);
        const auto runs = reduce_curve(rows, 0, {0, rows.rows()}, PLOT, {0, 50000, 0, 100});
        EXPECT_LE(runs.size(), static_cast<std::size_t>(PLOT.width) * 8) << name;
    }
}

TEST(curve, a_segment_next_to_a_gap_is_left_out_and_an_unfilled_place_bridged) {
    sample_rows rows(1);
    for (const double value : {10.0, NAN_VALUE, 30.0, -1.0, 50.0}) {
        rows.append_fresh_row();
        if (value >= 0 || std::isnan(value))
            rows.file(0, "x", {"", value});
    }
    const auto runs = reduce_curve(rows, 0, {0, 5}, {0, 0, 50, 100}, {0, 5, 0, 100});
    ASSERT_EQ(runs.size(), 3U);
    EXPECT_FALSE(runs[1].joined);
    EXPECT_EQ(runs[1].x, 20);
    EXPECT_TRUE(runs[2].joined);
    EXPECT_EQ(runs[2].x, 40);
}

TEST(curve, columns_run_leftwards_where_the_plot_has_less_than_no_width) {
    const sample_rows rows = samples_of(shape::noisy, 1000);
    const auto runs = reduce_curve(rows, 0, {0, 1000}, {50, 0, -10, 100}, {0, 1000, 0, 100});
    ASSERT_EQ(runs.size(), 10U);
    EXPECT_EQ(runs.front().x, 50);
    EXPECT_EQ(runs.back().x, 41);
    EXPECT_EQ(runs.back().count, 100U);
}

TEST(curve, rubbish_numbers_and_areas_are_harmless) {
    const double huge = std::numeric_limits<double>::max();
    sample_rows rows(1);
    for (const double value :
         {huge, -huge, NAN_VALUE, std::numeric_limits<double>::infinity(), 1e10, 5.0, -1e10}) {
        rows.append_fresh_row();
        rows.file(0, "x", {"", value});
    }
    QImage image = empty_image(CHART, 1.5);
    canvas target(image);
    const chart_area areas[] = {
        PLOT, {0, 0, 0, 0}, {400, 20, -50, 200}, {5, 5, 1, 1}, {-500, -500, 5000, 5000}};
    const chart_limits limits[] = {{0, 7, 0, 100}, {0, 7, 100, 100},        {0, 7, 4000, 0},
                                   {3, 3, 0, 1},   {0, 7, NAN_VALUE, huge}, {0, 7, -huge, huge}};
    for (const chart_area& area : areas)
        for (const chart_limits& l : limits)
            paint_curve(target, reduce_curve(rows, 0, {0, 7}, area, l),
                        {QColor(0, 0, 0), Qt::white, 2.2, 0});
}

} // namespace
