// Lays out the large chart and the dials: the dials beside the chart in a wide panel, below it in a
// narrow one, all as large as they fit. There is always room for two dials: the chart keeps its
// size when the second one is chosen; until then a hint may stand in that place.
#pragma once

#include <QSizeF>
#include <QWidget>

#include <array>
#include <functional>

inline constexpr int DIAL_PLACES = 2;

struct panel_layout {
    QRect chart;
    std::array<QRect, DIAL_PLACES> dials;
};

// Where the chart and the dials of these sizes in units go; each rectangle has the aspect of its
// picture.
panel_layout lay_out_panel(QSize room, QSizeF chart, QSizeF dial, int gap);

class instrument_panel final : public QWidget {
  public:
    instrument_panel(QSizeF chart_units, QSizeF dial_units, QWidget* parent);

    // Children of this panel; the hint has the last dial's place.
    void set_instruments(QWidget* chart, std::array<QWidget*, DIAL_PLACES> dials, QWidget* hint);
    std::function<void()> rearranged;

    QSize sizeHint() const override { return {640, 320}; }
    QSize minimumSizeHint() const override { return {320, 160}; }

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void rearrange();

    QSizeF chart_units_, dial_units_;
    QWidget* chart_ = nullptr;
    std::array<QWidget*, DIAL_PLACES> dials_{};
    QWidget* hint_ = nullptr;
};
