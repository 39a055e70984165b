// Lays out the large chart and the dials: the dials beside the chart in a wide panel, below it in a
// narrow one, all as large as they fit. There is always room for two dials: the chart keeps its
// size when the second one is chosen.
#pragma once

#include <QSizeF>
#include <QWidget>

#include <functional>
#include <vector>

struct panel_layout {
    QRect chart;
    std::vector<QRect> dials;
};

// Where `dials` dials of that size in units and the chart go; each rectangle has the aspect of its
// picture.
panel_layout lay_out_panel(QSize room, QSizeF chart, QSizeF dial, int dials, int gap);

class instrument_panel final : public QWidget {
  public:
    instrument_panel(QSizeF chart_units, QSizeF dial_units, QWidget* parent);

    // Children of this panel. A hidden dial takes no room.
    void set_instruments(QWidget* chart, std::vector<QWidget*> dials);
    // Lays out again after a dial was shown or hidden.
    void rearrange();
    std::function<void()> rearranged;

    QSize sizeHint() const override { return {640, 320}; }
    QSize minimumSizeHint() const override { return {320, 160}; }

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    QSizeF chart_units_, dial_units_;
    QWidget* chart_ = nullptr;
    std::vector<QWidget*> dials_;
};
