#include "instrument_panel.h"

#include "chrome.h"

#include <algorithm>
#include <cmath>

namespace {

// The part of the room's width or height that the dials take, at most.
constexpr double DIALS_SHARE_BESIDE = 0.28;
constexpr double DIALS_SHARE_BELOW = 0.42;

double scale_in(QSizeF units, double width, double height) {
    return std::min(width / units.width(), height / units.height());
}

// The picture's width counts; its height follows.
QRect place(QSizeF units, double width, int left, int top) {
    const int whole = static_cast<int>(width);
    return {left, top, whole, static_cast<int>(std::ceil(whole * units.height() / units.width()))};
}

} // namespace

panel_layout lay_out_panel(QSize room, QSizeF chart, QSizeF dial, int gap) {
    const double dial_aspect = dial.width() / dial.height();
    const double highest = (room.height() - gap) / double(DIAL_PLACES) * dial_aspect;
    const double column = std::min(room.width() * DIALS_SHARE_BESIDE, highest);
    const double beside = scale_in(chart, room.width() - column - gap, room.height());
    const double widest = (room.width() - gap) / double(DIAL_PLACES);
    const double row = std::min(room.height() * DIALS_SHARE_BELOW, widest / dial_aspect);
    const double below = scale_in(chart, room.width(), room.height() - row - gap);

    panel_layout layout;
    layout.chart = place(chart, std::max(beside, below) * chart.width(), 0, 0);
    for (int i = 0; i < DIAL_PLACES; ++i) {
        QRect& at = layout.dials[static_cast<std::size_t>(i)];
        if (beside >= below) { // together as high as the chart
            const double width =
                std::min(room.width() - layout.chart.width() - double(gap),
                         (layout.chart.height() - gap) / double(DIAL_PLACES) * dial_aspect);
            const int left = room.width() - static_cast<int>(width);
            const int step = static_cast<int>(width / dial_aspect) + gap;
            at = place(dial, width, left, i * step);
        } else {
            const double width = row * dial_aspect;
            const int step = static_cast<int>(width) + gap;
            at = place(dial, width, i * step, layout.chart.height() + gap);
        }
    }
    return layout;
}

instrument_panel::instrument_panel(QSizeF chart_units, QSizeF dial_units, QWidget* parent)
    : QWidget(parent), chart_units_(chart_units), dial_units_(dial_units) {}

void instrument_panel::set_instruments(QWidget* chart, std::array<QWidget*, DIAL_PLACES> dials,
                                       QWidget* hint) {
    chart_ = chart;
    dials_ = dials;
    hint_ = hint;
    rearrange();
}

void instrument_panel::rearrange() {
    const panel_layout layout = lay_out_panel(size(), chart_units_, dial_units_, 2 * GRID);
    chart_->setGeometry(layout.chart);
    for (std::size_t i = 0; i < dials_.size(); ++i)
        dials_[i]->setGeometry(layout.dials[i]);
    hint_->setGeometry(layout.dials.back());
    if (rearranged)
        rearranged();
}

void instrument_panel::resizeEvent(QResizeEvent*) {
    if (chart_)
        rearrange();
}
