#include "casing.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double DARK_UP_TO = 0.3; // luminance
const QColor LIGHT(236, 239, 244);
const QColor DARK(10, 12, 16);

double linear(double component) {
    return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

} // namespace

double relative_luminance(const QColor& colour) {
    return 0.2126 * linear(colour.red() / 255.0) + 0.7152 * linear(colour.green() / 255.0) +
           0.0722 * linear(colour.blue() / 255.0);
}

double contrast(const QColor& a, const QColor& b) {
    const auto [darker, lighter] = std::minmax({relative_luminance(a), relative_luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor casing_of(const QColor& ink) {
    return relative_luminance(ink) > DARK_UP_TO ? DARK : LIGHT;
}
