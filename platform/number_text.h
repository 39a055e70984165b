// A number in the fewest digits that distinguish it from its neighbours, "." whatever the locale.
#pragma once

#include <charconv>
#include <cmath>
#include <string>

// "nan" if it is not finite.
inline std::string number_text(double number) {
    if (!std::isfinite(number))
        return "nan";
    char digits[32];
    return {digits, std::to_chars(digits, digits + sizeof digits, number).ptr};
}
