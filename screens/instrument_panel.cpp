#include "instrument_panel.h"

#include "chrome.h"

#include <algorithm>

namespace {

// The part of the room's width or height that the dials take, at most.
constexpr double DIALS_SHARE_BESIDE = 0.4;
constexpr double DIALS_SHARE_BELOW = 0.42;

double scale_in(QSizeF units, double width, double height) {
    return std::min(width / units.width(), height / units.height());
}

} // namespace

panel_layout lay_out_panel(QSize room, QSizeF chart, QSizeF dial, int dials, int gap) {
    const int columns_below = std::max(dials, 1);
    // Beside: dials in one column at the right.
    const double dial_height = (room.height() - gap * (dials - 1)) / double(columns_below);
    const double beside_width =
        std::min(room.width() * DIALS_SHARE_BESIDE, dial_height / dial.height() * dial.width());
    const double beside =
        dials == 0 ? 0 : scale_in(chart, room.width() - beside_width - gap, room.height());
    // Below: dials in one row.
    const double below_width = (room.width() - gap * (dials - 1)) / double(columns_below);
    const double below_height =
        std::min(room.height() * DIALS_SHARE_BELOW, below_width / dial.width() * dial.height());
    const double below = scale_in(chart, room.width(), room.height() - below_height - gap);

    panel_layout layout;
    if (dials == 0) {
        layout.chart = QRect(QPoint(0, 0), room);
    } else if (beside >= below) {
        const int width = static_cast<int>(beside_width);
        layout.chart = QRect(0, 0, room.width() - width - gap, room.height());
        const int each = static_cast<int>(dial_height);
        for (int i = 0; i < dials; ++i)
            layout.dials.emplace_back(room.width() - width, i * (each + gap), width, each);
    } else {
        const int height = static_cast<int>(below_height);
        layout.chart = QRect(0, 0, room.width(), room.height() - height - gap);
        const int each = static_cast<int>(below_width);
        for (int i = 0; i < dials; ++i)
            layout.dials.emplace_back(i * (each + gap), room.height() - height, each, height);
    }
    return layout;
}

instrument_panel::instrument_panel(QSizeF chart_units, QSizeF dial_units, QWidget* parent)
    : QWidget(parent), chart_units_(chart_units), dial_units_(dial_units) {}

void instrument_panel::set_instruments(QWidget* chart, std::vector<QWidget*> dials) {
    chart_ = chart;
    dials_ = std::move(dials);
    rearrange();
}

void instrument_panel::rearrange() {
    std::vector<QWidget*> shown;
    std::copy_if(dials_.begin(), dials_.end(), std::back_inserter(shown),
                 [](const QWidget* dial) { return !dial->isHidden(); });
    const panel_layout layout = lay_out_panel(size(), chart_units_, dial_units_,
                                              static_cast<int>(shown.size()), 2 * GRID);
    chart_->setGeometry(layout.chart);
    for (std::size_t i = 0; i < shown.size(); ++i)
        shown[i]->setGeometry(layout.dials[i]);
    if (rearranged)
        rearranged();
}

void instrument_panel::resizeEvent(QResizeEvent*) {
    if (chart_)
        rearrange();
}
