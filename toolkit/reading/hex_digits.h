// Hex digits as numbers, and bytes that only pad a frame.
#pragma once

#include <charconv>
#include <string_view>

// For at most eight hex digits; 0 for anything else.
inline unsigned hex_value(std::string_view digits) {
    unsigned value = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
    return read.ec == std::errc() && read.ptr == digits.data() + digits.size() ? value : 0;
}

// Whether these are equal bytes, as padding is; true for none.
inline bool is_fill(std::string_view digits) {
    if (digits.size() % 2 != 0)
        return false;
    for (std::size_t at = 2; at < digits.size(); at += 2)
        if (digits.substr(at, 2) != digits.substr(0, 2))
            return false;
    return true;
}
