// Separates a curve or a figure from any background: a thin casing, light below dark colours and
// dark below light ones. Contrast as WCAG 2 defines it.
#pragma once

#include <QColor>

// 0 (black) to 1 (white), for an opaque colour.
double relative_luminance(const QColor& colour);
// 1 to 21.
double contrast(const QColor& a, const QColor& b);

// Image units to either side; with it a curve of the large chart is 4 wide.
inline constexpr double CASING_WIDTH = 1.1;
QColor casing_of(const QColor& ink);
