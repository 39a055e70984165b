#include "bundle.h"
#include "canvas.h"
#include "casing.h"
#include "curve_reduction.h"
#include "drawChartyItem.h"
#include "fixed_decimals.h"
#include "literal_curve.h"
#include "myGauge.h"
#include "ratio_table.h"
#include "rows.h"
#include "user_defaults.h"

#include <benchmark/benchmark.h>
#include <cmath>
#include <cstdio>
#include <malloc.h>
#include <map>
#include <memory>
#include <random>

namespace {

constexpr QSizeF LARGE(420, 230);
constexpr QSizeF THUMBNAIL(200, 200);
const std::vector<std::string> PIDS{"0C", "0D", "05", "04"};

enum class data { smooth, noisy, half_gapped };
constexpr data ALL_DATA[] = {data::smooth, data::noisy, data::half_gapped};

std::string name_of(data kind) {
    switch (kind) {
    case data::smooth:
        return "smooth";
    case data::noisy:
        return "noisy";
    default:
        return "half gapped";
    }
}

// A drive of four parameters: smooth, as noisy as a parameter can be, or that with every other
// reply unusable.
std::vector<std::string> replies_of(std::size_t row, std::size_t rows, data kind,
                                    std::mt19937& random) {
    const bool noisy = kind != data::smooth;
    const double along = 20 * static_cast<double>(row) / static_cast<double>(rows);
    const auto reply = [&](const char* format, double smooth, unsigned most) {
        if (kind == data::half_gapped && random() % 2 == 0)
            return std::string("NODATA");
        const unsigned value = noisy ? random() % (most + 1) : static_cast<unsigned>(smooth);
        char text[16];
        std::snprintf(text, sizeof text, format, value);
        return std::string(text);
    };
    return {reply("410C%04X", 10000 + 6000 * std::sin(along), 20000),
            reply("410D%02X", 60 + 40 * std::sin(along / 2), 160),
            reply("4105%02X", 40 + 90 * (1 - std::exp(-along)), 255),
            reply("4104%02X", 100 + 90 * std::cos(along), 255)};
}

struct drawing_bench {
    bundle resources;
    user_defaults settings{"/nonexistent/kestrom-bench.conf"};
    toolkit_doors doors{&resources, &settings, nullptr, nullptr};
    mac_toolies decoder{doors};
    std::map<std::pair<std::size_t, data>, sample_rows> runs;

    // The same rows for every benchmark of that size.
    const sample_rows& rows(std::size_t count, data kind) {
        const auto [found, made] = runs.try_emplace({count, kind}, PIDS.size());
        if (made)
            fill(found->second, count, kind);
        return found->second;
    }
    void fill(sample_rows& rows, std::size_t count, data kind) const {
        std::mt19937 random(1);
        for (std::size_t row = 0; row < count; ++row) {
            rows.append_fresh_row();
            const std::vector<std::string> replies = replies_of(row, count, kind, random);
            for (std::size_t p = 0; p < replies.size(); ++p)
                rows.file(p, replies[p], decoder.translate_once(replies[p]));
        }
    }
};

std::unique_ptr<drawChartyItem> make_chart(const drawing_bench& bench, bool thumbnail, int item,
                                           double scale = 1) {
    auto chart = std::make_unique<drawChartyItem>(bench.doors);
    chart->initWitdim(thumbnail ? THUMBNAIL : LARGE, "main");
    chart->set_pixel_scale(scale);
    chart->setThumbnail(thumbnail);
    chart->set_item_2_plot(item);
    chart->use_this_pids(PIDS);
    return chart;
}

sample_set values_of(int frame) {
    const std::string number = std::to_string(1000 + frame % 900);
    return {{"0C", number + ".25 RPM", "0.0", "0.0"},
            {"0D", number.substr(2) + ".50 mph", "0.0", "0.0"},
            {"05", number.substr(1) + ".20 ° F", "0.0", "0.0"},
            {"04", number.substr(2) + ".10  %", "0.0", "0.0"}};
}

// New limits each frame, so that no cached grid fits.
void change_limits(label_records& labels, int frame) {
    constexpr int LIMITS = 6;
    for (label_record& label : labels) {
        const double decade = std::pow(10, std::floor(std::log10(leading_number(label.upper))));
        label.upper = fixed_decimals((3 + frame % LIMITS) * decade, 6);
    }
}

enum class limits { stay, change };

void draw(drawChartyItem& chart, const sample_rows& rows, int frame, limits axes = limits::stay) {
    chart.update_cur_sample(values_of(frame));
    label_records labels = chart.work_out_labels(rows);
    if (axes == limits::change)
        change_limits(labels, frame);
    chart.draw_grid(labels, "All sampling points");
    chart.plot_array_list(rows, labels);
    benchmark::DoNotOptimize(chart.image().constBits());
}

using shared_bench = std::shared_ptr<drawing_bench>;

// Each call files one reply in a run of `rows` rows and computes the labels.
timed_work filing(const shared_bench& bench, std::size_t rows) {
    struct state {
        sample_rows samples{PIDS.size()};
        std::unique_ptr<drawChartyItem> chart;
        std::size_t next = 0;
    };
    const auto s = std::make_shared<state>();
    return {[bench, s, rows] {
        if (s->samples.empty()) {
            bench->fill(s->samples, rows, data::noisy);
            s->chart = make_chart(*bench, false, 0);
        }
        const std::size_t parameter = s->next++ % PIDS.size();
        if (parameter == 0)
            s->samples.append_fresh_row();
        constexpr std::string_view REPLIES[] = {"410C1AF8", "410D64", "41057B", "4104FF"};
        s->samples.file(parameter, REPLIES[parameter],
                        bench->decoder.translate_once(REPLIES[parameter]));
        benchmark::DoNotOptimize(s->chart->work_out_labels(s->samples));
    }};
}

timed_work large_chart(const shared_bench& bench, std::size_t rows, data kind, double scale = 1,
                       limits axes = limits::stay) {
    const std::shared_ptr<drawChartyItem> chart = make_chart(*bench, false, 0, scale);
    return {[bench, chart, rows, kind, axes, frame = 0]() mutable {
        draw(*chart, bench->rows(rows, kind), ++frame, axes);
    }};
}

// The first curve over the grid: every segment, or reduced.
enum class way { literal, reduced };

QImage curve_picture(drawing_bench& bench, drawChartyItem& chart, std::size_t rows, data kind,
                     way how, bool antialiased = true) {
    const sample_rows& samples = bench.rows(rows, kind);
    const label_records labels = chart.work_out_labels(samples);
    chart.draw_grid(labels, "All sampling points");
    QImage image = chart.image();
    canvas target(image);
    const row_window window{0, rows};
    const chart_area plot = chart.plot_area();
    const chart_limits axes{0, static_cast<double>(rows), drawChartyItem::lower_limit(labels[0]),
                            drawChartyItem::upper_limit(labels[0])};
    const curve_style style{drawChartyItem::setMyColor(0), casing_of(drawChartyItem::setMyColor(0)),
                            1.8, plot.y, antialiased};
    if (how == way::literal)
        paint_every_segment(target, samples, 0, window, plot, axes, style);
    else
        paint_curve(target, reduce_curve(samples, 0, window, plot, axes), style);
    return image;
}

timed_work literal_chart(const shared_bench& bench, std::size_t rows, data kind) {
    const std::shared_ptr<drawChartyItem> chart = make_chart(*bench, false, 0);
    return {[bench, chart, rows, kind] {
        benchmark::DoNotOptimize(
            curve_picture(*bench, *chart, rows, kind, way::literal).constBits());
    }};
}

// How the reduced curve of 100,000 rows differs from every segment drawn.
picture_difference difference_at(drawing_bench& bench, data kind, double scale, bool antialiased) {
    constexpr std::size_t ROWS = 100000;
    const auto chart = make_chart(bench, false, 0, scale);
    return compare_pictures(curve_picture(bench, *chart, ROWS, kind, way::literal, antialiased),
                            curve_picture(bench, *chart, ROWS, kind, way::reduced, antialiased));
}

std::string described(const picture_difference& found) {
    char text[160];
    const int written = std::snprintf(
        text, sizeof text, "%.4f %% of the pixels by more than 24 of 255 (%d at all, most by %d)",
        found.strong_percent, found.any, found.most);
    if (!found.where.isEmpty())
        std::snprintf(text + written, sizeof text - static_cast<std::size_t>(written),
                      ", in x %d to %d, y %d to %d", found.where.left(), found.where.right(),
                      found.where.top(), found.where.bottom());
    return text;
}

void add_picture_rows(ratio_table& table, const shared_bench& bench) {
    for (const data kind : ALL_DATA) {
        const std::string rows = ", 100,000 rows, " + name_of(kind);
        table.add_figure(
            "same picture, % of pixels differ" + rows,
            [bench, kind] { return difference_at(*bench, kind, 1, true).strong_percent; },
            reach::at_most, 0.1);
        table.add_figure(
            "same picture, not smoothed, pixels" + rows,
            [bench, kind] { return difference_at(*bench, kind, 1, false).any; }, reach::at_most, 0);
        table.add_remark("at scale 2 differ" + rows,
                         [bench, kind] { return described(difference_at(*bench, kind, 2, true)); });
    }
}

// Four thumbnails, the chart and both dials, as a reply to every parameter changes them.
timed_work whole_frame(const shared_bench& bench, std::size_t rows, double scale) {
    struct state {
        std::vector<std::unique_ptr<drawChartyItem>> charts;
        std::unique_ptr<myGauge> dials[2];
        int frame = 0;
    };
    const auto s = std::make_shared<state>();
    s->charts.push_back(make_chart(*bench, false, 0, scale));
    for (int i = 0; i < 4; ++i)
        s->charts.push_back(make_chart(*bench, true, i, scale));
    for (int i = 0; i < 2; ++i) {
        s->dials[i] = std::make_unique<myGauge>(bench->resources, bench->decoder);
        s->dials[i]->set_pixel_scale(scale);
        s->dials[i]->initGauge(PIDS[static_cast<std::size_t>(i)]);
    }
    return {[bench, s, rows] {
        ++s->frame;
        for (const auto& chart : s->charts)
            draw(*chart, bench->rows(rows, data::smooth), s->frame, limits::change);
        for (const auto& dial : s->dials)
            dial->draw_cur_needle_value(s->frame % 200);
    }};
}

double bytes_a_sample(const drawing_bench& bench, data kind) {
    const auto in_use = [] {
        const struct mallinfo2 info = mallinfo2();
        return info.uordblks + info.hblkhd;
    };
    constexpr std::size_t ROWS = 250000;
    const std::size_t before = in_use();
    sample_rows rows(PIDS.size());
    bench.fill(rows, ROWS, kind);
    return static_cast<double>(in_use() - before) / static_cast<double>(ROWS * PIDS.size());
}

} // namespace

void add_drawing_rows(ratio_table& table) {
    const auto bench = std::make_shared<drawing_bench>();
    table.add_ratio("filing a reply and labels, 1,000,000 rows", filing(bench, 1000000),
                    "the same, 1,000 rows", filing(bench, 1000), reach::at_most, 1.2);
    for (const data kind : ALL_DATA) {
        const std::string name = ", " + name_of(kind);
        table.add_ratio("large chart of 1,000,000 rows" + name, large_chart(bench, 1000000, kind),
                        "the same of 10,000 rows", large_chart(bench, 10000, kind), reach::at_most,
                        1.2);
        table.add_ratio("large chart of 100,000 rows" + name, large_chart(bench, 100000, kind),
                        "every segment drawn", literal_chart(bench, 100000, kind), reach::at_least,
                        100, 3);
    }
    add_picture_rows(table, bench);
    for (const double scale : {1.0, 2.0})
        table.add_ratio("whole frame, scale " + std::to_string(static_cast<int>(scale)),
                        whole_frame(bench, 100000, scale), "the large chart once",
                        large_chart(bench, 100000, data::smooth, scale, limits::change),
                        reach::at_most, 5);
    for (const data kind : {data::noisy, data::half_gapped})
        table.add_figure(
            "bytes a sample in sample_rows, " + name_of(kind),
            [bench, kind] { return bytes_a_sample(*bench, kind); }, reach::at_most, 48);
}
