// What each service 01 parameter means: one row per PID, as data. translation.cpp turns a row and a
// reply into display text.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

// The data bytes of one reply, as used by the formulas.
struct reply_data {
    std::uint32_t whole = 0;  // all digits as one number
    std::uint32_t a = 0;      // first byte
    std::uint32_t b = 0;      // second byte
    std::uint32_t first = 0;  // first four digits
    std::uint32_t second = 0; // next four digits
};

// One number of a display text and the literal text around it.
struct number_part {
    double (*value)(const reply_data&);
    int decimals;
    std::string_view after;
    std::string_view before = {};
    bool (*stands)(const reply_data&) = nullptr; // omitted if it returns false
};

// The text of one code.
struct status_text {
    std::uint32_t code;
    std::string_view text;
};

struct translation_row {
    // Numbers, in the order of the text. Both empty: not a numeric row.
    std::span<const number_part> imperial = {};
    std::span<const number_part> metric = {};
    // Texts for the codes of byte A, and the text for any other code.
    std::span<const status_text> statuses = {};
    std::string_view other_status = {};
    // A shipped table whose line n - 1 is the text of code n.
    std::string_view table = {};
    std::uint32_t reply_data::*table_code = nullptr;
};

// Nothing for a PID without a row.
const translation_row* translation_row_of(std::uint32_t pid);
