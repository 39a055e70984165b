// Lays out the live-data instruments as one block that fills the panel: the strip of thumbnails,
// the large chart and two dials, scaled together. The dials are beside the chart, in a wide panel
// beside strip and chart, in a narrow one below. There is always room for two dials, so that the
// chart keeps its size when the second one is chosen; until then a hint may take its place.
#pragma once

#include <QSizeF>
#include <QWidget>

#include <array>
#include <functional>

inline constexpr int DIAL_PLACES = 2;

// The block in units: the chart and a dial; the strip is as high as one of its cells.
struct block_units {
    QSizeF chart, dial;
    int strip_height;
};

// In pixels, at `scale` pixels per unit for strip and chart. Each rectangle, except the switch and
// the width of the strip, has the aspect ratio of its picture.
struct block_layout {
    double scale = 0;
    QRect strip, chart, under_dials;
    std::array<QRect, DIAL_PLACES> dials;
};
// `gap` pixels between the parts; the switch below the dials is `switch_height` high.
block_layout lay_out_block(QSize room, const block_units& units, int gap, int switch_height);

class instrument_panel final : public QWidget {
  public:
    instrument_panel(const block_units& units, QWidget* parent);

    struct parts {
        QWidget *strip, *chart;
        std::array<QWidget*, DIAL_PLACES> dials;
        QWidget *hint, *under_dials; // the hint is in place of the last dial
    };
    // Children of this panel.
    void set_parts(const parts& all);
    const block_layout& layout_now() const { return now_; }
    std::function<void()> rearranged;

    QSize sizeHint() const override { return {640, 420}; }
    QSize minimumSizeHint() const override { return {320, 240}; }

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void rearrange();

    block_units units_;
    block_layout now_;
    parts parts_{};
};
