// The contrast of every curve and figure with its background: KESTROM_CONTRAST_TABLE=FILE writes
// the figures of docs/look.md.
#include "casing.h"
#include "drawChartyItem.h"
#include "drawing_fixture.h"

#include <fstream>
#include <iomanip>
#include <sstream>

namespace {

constexpr double CURVE_READS = 3, FIGURE_READS = 4.5;

struct ink {
    const char* name;
    QColor colour;
    double needed;
};

class casing_test : public drawing_test {
  protected:
    // The plot as it is painted, at its left and its right end.
    std::pair<QColor, QColor> ends_of_plot() {
        drawChartyItem chart(doors);
        chart.initWitdim({420, 230}, "main");
        chart.setThumbnail(false);
        chart.use_this_pids({"0C"});
        chart.draw_grid({{"", "", "9", "1"}}, "");
        const chart_area plot = chart.plot_area();
        const double y = plot.y + plot.height / 2.0 + 10;
        return {pixel_at(chart.image(), plot.x + 2, y),
                pixel_at(chart.image(), plot.x + plot.width - 3, y)};
    }
};

// By its casing, which parts it from the ground, or where the casing is lost in the ground by
// itself.
double reads_at(const ink& each, const QColor& ground) {
    const QColor casing = casing_of(each.colour);
    return std::max(std::min(contrast(each.colour, casing), contrast(casing, ground)),
                    contrast(each.colour, ground));
}

TEST_F(casing_test, every_colour_reads_over_both_ends_of_the_plot) {
    const auto [left, right] = ends_of_plot();
    EXPECT_GT(contrast(left, right), 2.5) << "two ends";
    std::vector<ink> inks;
    const char* names[] = {"0 dark red", "1 green", "2 magenta", "3 yellow",     "4 brown",
                           "5 purple",   "6 gray",  "7 blue",    "beyond: black"};
    for (int i = 0; i < 9; ++i)
        inks.push_back({names[i], drawChartyItem::setMyColor(i), CURVE_READS});
    inks.push_back({"axis figures", drawChartyItem::axis_figures(), FIGURE_READS});
    std::ostringstream table;
    table << std::fixed << std::setprecision(1);
    for (const ink& each : inks) {
        const QColor casing = casing_of(each.colour);
        EXPECT_GE(contrast(each.colour, casing), each.needed) << each.name;
        table << "| " << each.name << " | " << each.colour.name().toStdString() << " | "
              << casing.name().toStdString() << " | " << contrast(each.colour, casing);
        for (const QColor& ground : {left, right}) {
            const double best = reads_at(each, ground);
            EXPECT_GE(best, CURVE_READS) << each.name << " over " << ground.name().toStdString();
            table << " | " << contrast(casing, ground) << " | " << contrast(each.colour, ground)
                  << " | " << best;
        }
        table << " |\n";
    }
    if (const char* file = std::getenv("KESTROM_CONTRAST_TABLE"))
        std::ofstream(file) << "ends: " << left.name().toStdString() << ' '
                            << right.name().toStdString() << '\n'
                            << table.str();
}

// The casing is painted, not only worked out.
TEST_F(casing_test, a_curve_has_its_casing_above_and_below) {
    drawChartyItem chart(doors);
    chart.initWitdim({420, 230}, "main");
    chart.setThumbnail(false);
    chart.set_pixel_scale(4);
    chart.use_this_pids({"04", "04"});
    for (const int index : {0, 1}) { // a dark and a light one
        sample_rows rows(2);
        for (int i = 0; i < 30; ++i) {
            rows.append_fresh_row();
            file(rows, static_cast<std::size_t>(index), i == 1 ? "4104FF" : "410480");
        }
        chart.set_item_2_plot(index);
        const label_records labels = chart.work_out_labels(rows);
        chart.draw_grid(labels, "");
        chart.plot_array_list(rows, labels);
        const chart_area plot = chart.plot_area();
        const QColor ink = drawChartyItem::setMyColor(index);
        const double share =
            (rows.value(9, static_cast<std::size_t>(index)) -
             drawChartyItem::lower_limit(labels[static_cast<std::size_t>(index)])) /
            (drawChartyItem::upper_limit(labels[static_cast<std::size_t>(index)]) -
             drawChartyItem::lower_limit(labels[static_cast<std::size_t>(index)]));
        const double y = plot.y + std::trunc(share * plot.height), x = plot.x + 150;
        EXPECT_TRUE(near_colour(pixel_at(chart.image(), x, y), ink, 20)) << index;
        EXPECT_TRUE(near_colour(pixel_at(chart.image(), x, y + 1.4), casing_of(ink), 40)) << index;
    }
}

} // namespace
