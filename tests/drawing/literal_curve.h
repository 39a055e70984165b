// A curve drawn the long way, every segment by itself: what the reduced way is held to.
#pragma once

#include "curve_painter.h"
#include "sample_rows.h"

#include <QImage>
#include <QRect>

class canvas;

void paint_every_segment(canvas& target, const sample_rows& samples, std::size_t parameter,
                         const row_window& window, const chart_area& area,
                         const chart_limits& limits, const curve_style& style);

struct picture_difference {
    double strong_percent =
        0;        // of the pixels: those that differ by more than 24 of 255 in a channel
    int any = 0;  // pixels that differ at all
    int most = 0; // the widest difference in a channel
    QRect where;  // around the strong ones
};
// Of two pictures of one size.
picture_difference compare_pictures(const QImage& a, const QImage& b);
