// Paints one reduced curve over a chart's grid.
#pragma once

#include "curve_reduction.h"

#include <QColor>

#include <vector>

class canvas;

struct curve_style {
    QColor ink, casing; // opaque
    double line_width;
    int base_y;              // the area under the curve ends here
    bool antialiased = true; // off only to compare pictures
};

// Paints the casing, the area under the curve, its pixel columns, and its segments across columns.
// The time depends on the number of runs, not of samples.
void paint_curve(canvas& target, const std::vector<column_run>& runs, const curve_style& style);
