#include "fixed_decimals.h"

#include <algorithm>
#include <charconv>
#include <cmath>

char* write_fixed_decimals(char* out, double value, int decimals) {
    char* const end =
        std::to_chars(out, out + FIXED_DECIMALS_ROOM, value, std::chars_format::fixed, decimals)
            .ptr;
    // Only what lies this near to zero can read "-0.00".
    if (std::signbit(value) && value > -1 &&
        std::all_of(out + 1, end, [](char c) { return c == '0' || c == '.'; }))
        return std::copy(out + 1, end, out);
    return end;
}
