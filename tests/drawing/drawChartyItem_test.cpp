#include "drawChartyItem.h"
#include "drawing_fixture.h"
#include "fixed_decimals.h"
#include "qt_warnings.h"

namespace {

const QSizeF LARGE(420, 230);
const QColor BACKGROUND(46, 46, 46), INK(223, 1, 1);

class chart_test : public drawing_test {
  protected:
    chart_test() {
        chart.initWitdim(LARGE, "charts/main");
        chart.setThumbnail(false);
        chart.use_this_pids(pids);
        chart.update_cur_sample(samples);
    }

    // Rows of 0C and 0D.
    void fill(sample_rows& rows, int count) {
        for (int i = 0; i < count; ++i) {
            rows.append_fresh_row();
            file(rows, 0, i % 2 == 0 ? "410C0FA0" : "410C1F40"); // 1000, 2000
            file(rows, 1, "410D64");
        }
    }

    void draw(const sample_rows& rows) {
        const label_records labels = chart.work_out_labels(rows);
        chart.draw_grid(labels, "All sampling points");
        EXPECT_TRUE(chart.plot_array_list(rows, labels));
    }

    std::vector<std::string> pids{"0C", "0D", "05"};
    sample_set samples{{"0C", "2000.00 RPM", "9", "1"},
                       {"0D", "62.50 mph", "max", "min"},
                       {"05", "~", "0.0", "0.0"}};
    drawChartyItem chart{doors};
};

TEST_F(chart_test, plots_its_one_index_until_the_set_holds_two) {
    const struct {
        std::set<int> set;
        int asked;
        bool expected;
    } cases[] = {{{}, 1, true},   {{}, 0, false},    {{2}, 1, true},
                 {{2}, 2, false}, {{0, 2}, 2, true}, {{0, 2}, 1, false}};
    chart.set_item_2_plot(1);
    for (const auto& c : cases) {
        chart.updateNoOfPlots(c.set);
        EXPECT_EQ(chart.isPlottingThisIndex(c.asked), c.expected) << c.asked;
    }
}

TEST_F(chart_test, labels_come_from_the_catalogue_and_then_from_the_samples) {
    const auto limits = [](const label_records& labels) {
        return labels[0].lower + " " + labels[0].upper;
    };
    sample_rows rows(3);
    fill(rows, 1);
    EXPECT_EQ(chart.work_out_labels(rows)[0].units, "RPM");
    EXPECT_EQ(limits(chart.work_out_labels(rows)), "4095.937500 12287.812500");
    // A lower quarter first, before a run.
    EXPECT_EQ(limits(chart.work_out_labels_4_realtime()), "12287.812500 4095.937500");
    fill(rows, 3);
    for (const char* no_sample : {"410C0FA0", "", "NO DATA"}) {
        rows.append_fresh_row();
        if (*no_sample)
            file(rows, 0, no_sample);
        EXPECT_EQ(limits(chart.work_out_labels(rows)), "1000.000000 2000.000000") << no_sample;
    }
    EXPECT_EQ(drawChartyItem::upper_limit({"", "", "37.000000", "12.000000"}), 40);
    EXPECT_LT(chart.get_width_of_axis_label({"", "", "5", "2"}),
              chart.get_width_of_axis_label({"", "", "37.000000", "12.000000"}));
}

// A parked car's speed above all.
TEST_F(chart_test, a_value_that_never_changes_lies_inside_the_plot) {
    use_metric(true);
    for (const std::string reply : {"410D00", "410DFF", "410528", "4104FF", "41E40000", "41E403E8",
                                    "41230000", "4123C350", "4114FFFF"}) {
        chart.use_this_pids({reply.substr(2, 2)});
        sample_rows rows(1);
        for (int i = 0; i < 3; ++i) {
            rows.append_fresh_row();
            file(rows, 0, reply);
        }
        const label_record record = chart.work_out_labels(rows)[0];
        const double lower = drawChartyItem::lower_limit(record),
                     upper = drawChartyItem::upper_limit(record);
        EXPECT_TRUE(lower <= rows.value(2, 0) && rows.value(2, 0) <= upper && lower < upper)
            << reply;
        EXPECT_TRUE(reply != "410D00" || (lower == 0 && upper == 300));
    }
}

TEST_F(chart_test, paints_background_plot_curve_and_readout) {
    for (const double scale : {1.0, 2.0}) {
        chart.set_pixel_scale(scale);
        sample_rows rows(3);
        for (int i = 0; i < 400; ++i) {
            rows.append_fresh_row();
            file(rows, 0, i == 1 ? "410C0000" : "410C0FA0"); // 1000 of 0 to 2000
        }
        draw(rows);
        const QImage& image = chart.image();
        const chart_area plot = chart.plot_area();
        EXPECT_EQ(image.width(), 420 * scale);
        EXPECT_EQ(plot.x + plot.width, 412);
        EXPECT_TRUE(near_colour(pixel_at(image, 300, 8), BACKGROUND));
        EXPECT_GT(pixel_at(image, plot.x + 60, 70).red(),
                  pixel_at(image, plot.x + 60, 130).red() + 20)
            << "under the curve and over it";
        EXPECT_TRUE(near_colour(pixel_at(image, plot.x + 60, 120), INK, 30));
        // The bar's first segment is lit: 2000 of 16383.75 fills two.
        EXPECT_GT(pixel_at(image, 143, 218).red(), pixel_at(image, 143, 218).blue() + 40);
        EXPECT_LT(std::abs(pixel_at(image, 187, 218).red() - pixel_at(image, 187, 218).blue()), 40);
    }
}

TEST_F(chart_test, two_axes_and_selection_change_the_large_chart_and_the_thumbnail) {
    sample_rows rows(3);
    fill(rows, 50);
    chart.updateNoOfPlots({0, 1});
    draw(rows);
    const chart_area plot = chart.plot_area();
    EXPECT_LT(plot.x + plot.width, 400);
    const QColor band = pixel_at(chart.image(), plot.x + plot.width + 10, 100);
    EXPECT_GT(band.green(), band.red() + 60) << "the second curve's";
    chart.setThumbnail(true);
    draw(rows);
    EXPECT_EQ(chart.plot_area().x + chart.plot_area().width, 412);
    const QColor dark = pixel_at(chart.image(), 100, 10);
    chart.set_thumb_selected(true);
    draw(rows);
    EXPECT_GT(pixel_at(chart.image(), 100, 10).blue(), dark.blue() + 40);
}

TEST_F(chart_test, a_window_of_rows_moves_the_curve) {
    sample_rows rows(3);
    for (int i = 0; i < 100; ++i) {
        rows.append_fresh_row();
        file(rows, 0, i < 80 ? "410C0000" : "410C0FA0");
    }
    for (const int shown : {-1, 20, 0}) {
        chart.setNumberPointsToPlot(shown);
        draw(rows);
        const QColor early = pixel_at(chart.image(), chart.plot_area().x + 100, 120);
        EXPECT_EQ(near_colour(early, INK, 60), shown == 20) << shown;
    }
}

TEST_F(chart_test, what_did_not_change_is_drawn_from_the_kept_picture) {
    sample_rows rows(3);
    fill(rows, 5);
    const label_records labels = chart.work_out_labels(rows);
    const auto grid = [&](const char* title) {
        chart.draw_grid(labels, title);
        return chart.image().copy();
    };
    const QImage first = grid("All sampling points");
    chart.plot_array_list(rows, labels);
    EXPECT_NE(chart.image(), first);
    EXPECT_EQ(grid("All sampling points"), first);
    EXPECT_NE(grid("Charting last 20 sampling points"), first);
}

TEST_F(chart_test, the_last_value_is_that_of_the_last_place_filled) {
    const struct {
        std::vector<const char*> replies; // none: unfilled
        const char* expected;
    } cases[] = {{{"410C0FA0", "410C1F40"}, "2000"}, {{"410C0FA0", nullptr}, "1000"},
                 {{"410C0FA0", "NO DATA"}, "nan"},   {{"410C0FA0", "NO DATA", nullptr}, "nan"},
                 {{nullptr, nullptr}, "nan"},        {{"NO DATA", "410C0FA0", nullptr}, "1000"}};
    for (const auto& c : cases) {
        sample_rows rows(3);
        for (const char* reply : c.replies) {
            rows.append_fresh_row();
            if (reply != nullptr)
                file(rows, 0, reply);
        }
        draw(rows);
        EXPECT_EQ(fixed_decimals(chart.last_value(), 0), c.expected);
    }
}

TEST_F(chart_test, indices_and_replies_that_make_no_sense_are_harmless) {
    sample_rows rows(3);
    for (const std::string& reply : {std::string(5000, 'F'), std::string("410CFFFFFFFFFFFFFFFF"),
                                     std::string("\0\xff\x80>", 4), std::string("4104")}) {
        rows.append_fresh_row();
        for (std::size_t i = 0; i < 3; ++i)
            file(rows, i, reply);
    }
    for (const int index : {-1, 77, 0, 1, 2}) {
        chart.set_item_2_plot(index);
        draw(rows);
    }
    chart.updateNoOfPlots({1, 900});
    chart.update_cur_sample(
        {{"0C", std::string(4000, '9'), "nan", "inf"}, {"", "\xff\xfe", "", ""}});
    draw(rows);
    EXPECT_FALSE(chart.plot_array_list(sample_rows(3), chart.work_out_labels(rows)));
    expect_warning("plot_array_list::");
    chart.updateNoOfPlots({});
    EXPECT_FALSE(chart.plot_array_list(rows, {}));
    EXPECT_EQ(drawChartyItem::setMyColor(8), QColor(0, 0, 0));
}

class realtime_test : public chart_test {
  protected:
    void add(double value) {
        chart.val_points().push_back({fixed_decimals(value, 2)});
        chart.plot_this_point_realtime(0);
    }
    realtime_test() {
        chart.use_this_pids({"04"});
        chart.update_cur_sample({{"04", "50.00  %", "60", "40"}});
        chart.draw_grid(chart.work_out_labels_4_realtime(), "");
    }
    void add(const char* text) {
        chart.val_points().push_back({text});
        chart.plot_this_point_realtime(0);
    }
    // Once samples exist the axis runs from 30 (40 moved down) to 70 (60 moved up).
    void start_sampling(const char* first = "50.00  %") {
        chart.val_points().clear();
        add("75");
        chart.val_points().clear();
        chart.replot_realtime_chart(0);
        add(first);
    }
    double x_of(std::size_t sample) {
        return chart.plot_area().x +
               std::trunc(static_cast<double>(sample) * chart.plot_area().width / 20);
    }
    double y_of(double value) {
        return chart.plot_area().y + std::trunc((value - 30) * chart.plot_area().height / 40);
    }
};

TEST_F(realtime_test, values_up_to_the_limits_extend_and_those_beyond_redraw_the_curve) {
    start_sampling();
    const struct {
        const char* text;
        bool redraws;
    } cases[] = {{"50.00  %", false}, {"60.00  %", false}, {"40.00  %", false}, {"60.01  %", true},
                 {"39.99  %", true},  {"~", true},         {"55.50  %", false}};
    for (const auto& c : cases) {
        QImage image = chart.image();
        image.setPixelColor(410, 225, Qt::white);
        chart.setImage(image);
        add(c.text);
        EXPECT_EQ(pixel_at(chart.image(), 410, 4) != QColor(Qt::white), c.redraws) << c.text;
        if (c.redraws)
            continue;
        // A square of 4 on the newest point: its corners are off any line.
        const double x = x_of(chart.val_points().size() - 1);
        const double y = y_of(leading_number(c.text));
        for (const double dx : {-1.5, 1.5})
            for (const double dy : {-1.5, 1.5})
                EXPECT_EQ(pixel_at(chart.image(), x + dx, y + dy), INK) << c.text;
    }
}

TEST_F(realtime_test, no_segment_leads_on_from_an_unusable_value) {
    const struct {
        const char* name;
        std::vector<const char*> texts;
        bool joined; // the last point to the last number before it
    } cases[] = {{"from a number", {"50", "45"}, true},
                 {"from a gap at the start", {"~", "45"}, false},
                 {"after it", {"~", "50", "45"}, true},
                 {"from a gap", {"50", "50", "~", "45"}, false},
                 {"behind a gap", {"50", "~", "50", "45"}, true}};
    for (const auto& c : cases) {
        start_sampling(c.texts[0]);
        for (std::size_t i = 1; i < c.texts.size(); ++i)
            add(c.texts[i]);
        const std::size_t last = c.texts.size() - 1;
        const std::size_t from = c.texts[last - 1] == std::string("~") && last > 1 ? 1 : last - 1;
        const double y = c.texts[from] == std::string("~") ? y_of(30) : y_of(50);
        const QColor on_the_way =
            pixel_at(chart.image(), 0.7 * x_of(last) + 0.3 * x_of(from), 0.7 * y_of(45) + 0.3 * y);
        EXPECT_EQ(on_the_way.red() > 120, c.joined) << c.name;
    }
}

TEST_F(realtime_test, history_is_redrawn_every_20th_and_thinned_at_200) {
    for (int i = 0; i < 199; ++i)
        add(50);
    EXPECT_EQ(chart.val_points().size(), 199U);
    add(50);
    EXPECT_EQ(chart.val_points().size(), 100U);
    for (const double value : {1e300, -1e300, std::numeric_limits<double>::quiet_NaN()})
        add(value);
    chart.val_points().push_back({});
    expect_warning("plot_this_point_realtime::");
    chart.plot_this_point_realtime(0);
    chart.plot_this_point_realtime(-3);
}

} // namespace
