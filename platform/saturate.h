// Double to int without undefined behaviour.
#pragma once

#include <cmath>
#include <limits>

// Truncates toward zero; values outside int saturate at its ends, NaN gives 0.
inline int saturating_int(double value) {
    if (std::isnan(value))
        return 0;
    if (value >= static_cast<double>(std::numeric_limits<int>::max()))
        return std::numeric_limits<int>::max();
    if (value <= static_cast<double>(std::numeric_limits<int>::min()))
        return std::numeric_limits<int>::min();
    return static_cast<int>(value);
}
