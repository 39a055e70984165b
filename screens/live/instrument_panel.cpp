#include "instrument_panel.h"

#include "chrome.h"

#include <QEvent>

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace {

enum class arrangement { beside_chart, beside_all, below };

struct solution {
    arrangement how;
    double scale = 0, dial_width = 0, drawn = 0;
};

double area(QSizeF size) {
    return size.width() * size.height();
}

// The largest size of that arrangement: strip and chart fill the height, or the width.
solution solve(arrangement how, QSizeF room, const block_units& units, double gap, double foot) {
    const QSizeF chart = units.chart;
    const double aspect = units.dial.width() / units.dial.height();
    const double stack = units.strip_height + chart.height();
    solution found{how};
    if (how == arrangement::below) {
        found.scale =
            std::min(room.width() / chart.width(), (room.height() - 2 * gap - foot) / stack);
        const double height = room.height() - found.scale * stack - 2 * gap - foot;
        found.dial_width = std::min((room.width() - gap) / DIAL_PLACES, height * aspect);
    } else {
        found.scale = (room.height() - gap) / stack;
        const double height =
            how == arrangement::beside_chart ? found.scale * chart.height() : room.height();
        found.dial_width = std::min(room.width() - gap - found.scale * chart.width(),
                                    (height - gap - foot) / DIAL_PLACES * aspect);
    }
    const double strip_width =
        how == arrangement::beside_all ? found.scale * chart.width() : room.width();
    if (found.scale > 0 && found.dial_width > 0)
        found.drawn = area(chart) * found.scale * found.scale +
                      DIAL_PLACES * found.dial_width * found.dial_width / aspect +
                      strip_width * units.strip_height * found.scale;
    return found;
}

int whole(double pixels) {
    return static_cast<int>(std::floor(pixels));
}

} // namespace

block_layout lay_out_block(QSize room, const block_units& units, int gap, int switch_height) {
    const int foot = switch_height + GRID;
    solution best;
    for (const arrangement how :
         {arrangement::beside_chart, arrangement::beside_all, arrangement::below})
        if (const solution each = solve(how, room, units, gap, foot); each.drawn > best.drawn)
            best = each;
    block_layout layout;
    if (best.drawn <= 0)
        return layout;
    layout.scale = best.scale;
    const QSize chart(whole(units.chart.width() * best.scale),
                      whole(units.chart.height() * best.scale));
    const QSize dial(whole(best.dial_width),
                     whole(best.dial_width * units.dial.height() / units.dial.width()));
    const bool below = best.how == arrangement::below;
    const int width = below ? std::max(chart.width(), DIAL_PLACES * dial.width() + gap)
                            : chart.width() + gap + dial.width();
    const int left = (room.width() - width) / 2; // equal edges
    const int strip_height = whole(units.strip_height * best.scale);
    layout.strip = {left, 0, best.how == arrangement::beside_all ? chart.width() : width,
                    strip_height};
    layout.chart = {{below ? (room.width() - chart.width()) / 2 : left, strip_height + gap}, chart};
    const int bottom = below ? room.height() : layout.chart.bottom() + 1;
    if (below) {
        const int top = layout.chart.bottom() + 1 + gap;
        const int row = (room.width() - DIAL_PLACES * dial.width() - gap) / 2;
        for (int i = 0; i < DIAL_PLACES; ++i)
            layout.dials[static_cast<std::size_t>(i)] = {
                QPoint(row + i * (dial.width() + gap), top), dial};
    } else { // from the top of their column to the switch at the bottom
        const int column = left + chart.width() + gap;
        const int top = best.how == arrangement::beside_all ? 0 : layout.chart.top();
        layout.dials = {QRect(QPoint(column, top), dial),
                        QRect(QPoint(column, bottom - foot - dial.height()), dial)};
    }
    const QRect first = layout.dials.front();
    layout.under_dials = {first.left(), bottom - switch_height,
                          layout.dials.back().right() + 1 - first.left(), switch_height};
    return layout;
}

instrument_panel::instrument_panel(const block_units& units, QWidget* parent)
    : QWidget(parent), units_(units) {}

void instrument_panel::set_parts(const parts& all) {
    parts_ = all;
    rearrange();
}

void instrument_panel::rearrange() {
    constexpr int GAP = 2 * GRID;
    now_ = lay_out_block(size(), units_, GAP, parts_.under_dials->sizeHint().height());
    // The strip's scroll bar, if any, is in the gap below it.
    parts_.strip->setGeometry(now_.strip.adjusted(0, 0, 0, GAP));
    parts_.chart->setGeometry(now_.chart);
    for (std::size_t i = 0; i < parts_.dials.size(); ++i)
        parts_.dials[i]->setGeometry(now_.dials[i]);
    parts_.hint->setGeometry(now_.dials.back());
    parts_.under_dials->setGeometry(now_.under_dials);
    if (rearranged)
        rearranged();
}

// The pictures include the palette's background.
void instrument_panel::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && rearranged)
        rearranged();
}

void instrument_panel::resizeEvent(QResizeEvent*) {
    if (parts_.chart)
        rearrange();
}
