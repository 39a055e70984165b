// A number in as few digits as tell it from its neighbours, "." whatever the locale.
#pragma once

#include <charconv>
#include <cmath>
#include <string>

// "nan" for what is no finite number.
inline std::string number_text(double number) {
    if (!std::isfinite(number))
        return "nan";
    char digits[32];
    return {digits, std::to_chars(digits, digits + sizeof digits, number).ptr};
}
