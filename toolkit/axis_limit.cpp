#include "axis_limit.h"

#include <cmath>

namespace {

int step_of(double magnitude) {
    for (int step = 1; step <= 10000; step *= 10)
        if (magnitude >= step && magnitude < 10.0 * step)
            return step;
    return 0;
}

// For magnitudes up to 1, counted in hundredths.
int step_of_hundredths(int hundredths) {
    if (hundredths >= 1 && hundredths < 9)
        return 1;
    if (hundredths >= 10 && hundredths < 99)
        return 10;
    if (hundredths >= 100 && hundredths < 999)
        return 100;
    return 0;
}

} // namespace

double get_ceiling_or_floor(double value, bool ceiling) {
    const double magnitude = std::fabs(value);
    const bool positive = value > 0;
    const int direction = ceiling == positive ? 1 : -1;
    double moved = 0;
    if (magnitude > 1) {
        if (const int step = step_of(magnitude); step != 0)
            moved = (static_cast<int>(magnitude / step) + direction) * step;
    } else if (magnitude > 0) {
        const int hundredths = static_cast<int>(magnitude * 100);
        if (const int step = step_of_hundredths(hundredths); step != 0)
            moved = (hundredths / step + direction) * step / 100.0;
    }
    if (moved == 0)
        return 0;
    return positive ? moved : -moved;
}
