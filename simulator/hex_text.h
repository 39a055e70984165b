// Hexadecimal text as the adapter reads and writes it.
#pragma once

#include "car.h"

#include <string>
#include <string_view>

inline bool is_hex_digit(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F');
}

// At most eight capital digits, and nothing else.
inline std::uint32_t hex_number(std::string_view digits) {
    std::uint32_t number = 0;
    for (const char c : digits)
        number = number << 4 | std::uint32_t(c <= '9' ? c - '0' : c - 'A' + 10);
    return number;
}

// Pairs of digits, separated by blanks if `spaces`.
inline std::string hex_text(const byte_string& bytes, bool spaces) {
    constexpr char DIGITS[] = "0123456789ABCDEF";
    std::string text;
    for (const std::uint8_t byte : bytes) {
        if (spaces && !text.empty())
            text += ' ';
        text += {DIGITS[byte >> 4], DIGITS[byte & 15]};
    }
    return text;
}

inline byte_string hex_bytes(std::string_view digits) {
    byte_string bytes;
    for (std::size_t at = 0; at + 2 <= digits.size(); at += 2)
        bytes.push_back(std::uint8_t(hex_number(digits.substr(at, 2))));
    return bytes;
}
