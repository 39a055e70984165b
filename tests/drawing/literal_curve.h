// A curve drawn the long way, every segment by itself: what the reduced way is held to.
#pragma once

#include "curve_painter.h"
#include "sample_rows.h"

class canvas;

void paint_every_segment(canvas& target, const sample_rows& samples, std::size_t parameter,
                         const row_window& window, const chart_area& area,
                         const chart_limits& limits, const curve_style& style);
