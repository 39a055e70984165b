#include "live_pictures.h"

#include "live_view.h"
#include "sample_rows.h"
#include "thumbnail_strip.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

constexpr QSizeF THUMBNAIL_SIZE(200, 200);
constexpr char NO_READING[] = "-";

} // namespace

live_pictures::live_pictures(const mac_toolies& toolies, const bundle& resources)
    : doors_(toolies.doors()),
      cur_zoom_chart(toolies.doors()), dials_{{myGauge(resources, toolies)},
                                              {myGauge(resources, toolies)}} {
    cur_zoom_chart.initWitdim(chart_size(), "main");
    cur_zoom_chart.setThumbnail(false);
}

void live_pictures::rebuild(const std::vector<std::string>& pids) {
    pids_ = pids;
    for (dial& each : dials_)
        each.put_back = true;
    images_4_top.clear();
    images_4_top.reserve(pids.size());
    for (std::size_t i = 0; i < pids.size(); ++i) {
        images_4_top.push_back({drawChartyItem(doors_)});
        drawChartyItem& item = images_4_top.back().chart;
        item.initWitdim(THUMBNAIL_SIZE, pids[i]);
        item.set_item_2_plot(static_cast<int>(i));
        item.use_this_pids(pids);
        item.set_thumb_selected(i == 0);
    }
    cur_zoom_chart.use_this_pids(pids);
    set_large_chart(0, {});
    for (int i = 0; i < 2; ++i)
        reset_dial(i, 0, true);
    forget_samples();
}

void live_pictures::set_large_chart(int shown_index, const std::set<int>& indices_plotted) {
    cur_zoom_chart.set_item_2_plot(shown_index);
    cur_zoom_chart.updateNoOfPlots(indices_plotted);
    large_chart_changed_ = true;
}

void live_pictures::set_title(const std::string& title) {
    cur_chart_title = title;
    large_chart_changed_ = true;
}

void live_pictures::set_points_shown(int count) {
    cur_zoom_chart.setNumberPointsToPlot(count);
    large_chart_changed_ = true;
}

void live_pictures::select_thumbnail(int index, bool selected) {
    thumbnail& at = images_4_top[static_cast<std::size_t>(index)];
    at.changed = at.changed || at.realtime_labels || at.chart.isSelectedThumb() != selected;
    at.realtime_labels = false;
    at.chart.set_thumb_selected(selected);
}

void live_pictures::reset_dial(int which, int index, bool moves) {
    dial& at = dials_[which];
    at.put_back = at.put_back || at.index != index;
    at.changed = true;
    at.index = index;
    at.moves = moves;
}

void live_pictures::sample(int index, double value) {
    const auto place = static_cast<std::size_t>(index);
    if (place >= images_4_top.size())
        return;
    reading& latest = readings_[place];
    latest.replied = true;
    latest.stale = std::isnan(value);
    if (!latest.stale)
        latest.value = value;
    images_4_top[place].changed = true;
    images_4_top[place].realtime_labels = false;
    if (is_plotting(index)) {
        large_chart_changed_ = true;
        realtime_labels_ = false;
    }
    for (dial& each : dials_)
        each.changed = each.changed || (each.moves && each.index == index);
}

void live_pictures::forget_samples() {
    readings_.assign(pids_.size(), {});
    realtime_labels_ = true;
    cur_zoom_chart.forget_widths();
    for (thumbnail& at : images_4_top) {
        at.chart.forget_widths();
        at.realtime_labels = &at != &images_4_top.front();
    }
    all_changed();
}

void live_pictures::all_changed() {
    for (dial& each : dials_)
        each.changed = true;
    for (thumbnail& at : images_4_top)
        at.changed = true;
    large_chart_changed_ = true;
}

void live_pictures::draw_dial(dial& shown, picture_view& view) {
    const double scale = view.pixel_scale();
    const auto place = static_cast<std::size_t>(shown.index);
    if (scale <= 0 || place >= pids_.size())
        return;
    const bool resized = scale != shown.scale;
    shown.scale = scale;
    if (!resized && !shown.put_back && !shown.changed)
        return;
    view.let_go();
    shown.gauge.set_pixel_scale(scale);
    if (shown.put_back)
        shown.gauge.swapCurGaugeBack(pids_[place]);
    const reading& latest = readings_[place];
    if (!shown.moves)
        shown.gauge.draw_without_needle(face::dimmed);
    else if (latest.value)
        shown.gauge.draw_cur_needle_value(*latest.value,
                                          latest.stale ? needle::greyed : needle::lit);
    else
        shown.gauge.draw_without_needle(face::awaiting);
    view.set_image(shown.gauge.imageRepresentation(), shown.gauge.take_changed_pixels());
    shown.put_back = shown.changed = false;
}

// A parameter without a reply has no value.
sample_set live_pictures::texts_of(sample_set samples) const {
    for (std::size_t i = 0; i < std::min(samples.size(), readings_.size()); ++i)
        if (!readings_[i].replied)
            samples[i][1] = NO_READING;
    return samples;
}

void live_pictures::draw(live_view& view, const sample_rows& rows, const sample_set& samples) {
    if (pids_.empty())
        return;
    const sample_set texts = texts_of(samples);
    std::optional<label_records> kinds[2]; // computed when the first picture needs them
    const auto labels_of = [&](bool realtime) -> const label_records& {
        std::optional<label_records>& kind = kinds[realtime ? 1 : 0];
        if (!kind)
            kind = realtime ? cur_zoom_chart.work_out_labels_4_realtime()
                            : cur_zoom_chart.work_out_labels(rows);
        return *kind;
    };
    const auto paint = [&](drawChartyItem& chart, double scale, const std::string& title,
                           bool realtime) {
        const label_records& labels = labels_of(realtime);
        chart.set_pixel_scale(scale);
        chart.update_cur_sample(texts);
        chart.draw_grid(labels, title);
        chart.plot_array_list(rows, labels);
    };

    thumbnail_strip& strip = view.thumbiesMtrx();
    // As the longer side of a cell needs; the other is shrunk.
    const QSizeF cell = strip.cell_size() * strip.devicePixelRatioF();
    const double thumbnail_scale =
        std::max(cell.width() / THUMBNAIL_SIZE.width(), cell.height() / THUMBNAIL_SIZE.height());
    const QColor cell_ground = strip.ground();
    const bool other_cells = thumbnail_scale != thumbnail_scale_ || cell_ground != cell_ground_;
    for (std::size_t i = 0; i < images_4_top.size(); ++i) {
        thumbnail& at = images_4_top[i];
        if (!(at.changed || other_cells))
            continue;
        at.changed = !strip.in_sight(static_cast<int>(i));
        if (at.changed)
            continue; // drawn once visible
        at.chart.set_ground(cell_ground);
        at.chart.set_stretch(cell.width() / cell.height());
        paint(at.chart, thumbnail_scale, "", at.realtime_labels);
        strip.set_picture(static_cast<int>(i), at.chart.imageRepresentation());
    }
    thumbnail_scale_ = thumbnail_scale;
    cell_ground_ = cell_ground;

    const QColor ground = view.chartFull().palette().color(QPalette::Window);
    if (const double scale = view.chartFull().pixel_scale();
        scale > 0 && (large_chart_changed_ || scale != chart_scale_ || ground != chart_ground_)) {
        view.chartFull().let_go();
        cur_zoom_chart.set_ground(ground);
        paint(cur_zoom_chart, scale, cur_chart_title, realtime_labels_);
        view.chartFull().set_image(cur_zoom_chart.imageRepresentation());
        chart_scale_ = scale;
        chart_ground_ = ground;
        large_chart_changed_ = false;
    }
    draw_dial(dials_[0], view.gauge_uno());
    draw_dial(dials_[1], view.gauge_dos());
}
