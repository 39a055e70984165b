// The rows behind standard_values.h. Bytes of an answer count from 0, bits from the lowest.
#pragma once

#include "standard_values.h"

#include <cstdint>
#include <span>

struct quantity {
    std::string_view metric, imperial;
    double factor = 1, offset = 0; // from metric to imperial
};

struct scaling_rule {
    double factor, offset;
    int decimals;
    const quantity* unit;
    bool is_signed = false;
    std::uint32_t mask = 0xFFFFFFFF;
};

struct parameter_row {
    std::uint8_t pid;
    std::uint8_t bytes;
    value_range usual; // metric
    std::string_view name = {};
    std::uint8_t or_bytes = 0;
    std::string_view nothing = "-"; // the text if none of its values is present
};

constexpr int ALWAYS = -1;

// Consecutive numbers of the same scaling, one per label; labels are separated by bars.
struct number_row {
    std::uint8_t pid;
    std::uint8_t at, width;
    const scaling_rule* scaling;
    // Bit of byte A that says whether the first number is present; the next bit is for the next.
    int support_bit = ALWAYS;
    std::string_view labels = {};
    int numbers_a_bit = 1;
    int not_there = -1; // the value that means "none"
};

// Bits of one byte, the lowest first, with texts for a set and a clear bit, separated by bars; an
// empty text says nothing.
struct flag_row {
    std::uint8_t pid;
    std::uint8_t at, first_bit;
    std::string_view set, clear = {};
    int support_at = ALWAYS; // the byte whose bits, from `first_support` on, say which are present
    std::uint8_t first_support = 0;
};

struct word {
    std::uint8_t value;
    std::string_view text;
};

// The meaning of several bits of a byte together.
struct word_row {
    std::uint8_t pid;
    std::uint8_t at, mask;
    std::span<const word> words;
    int support_bit = ALWAYS; // of byte A
};

// Each in the order of PIDs.
std::span<const parameter_row> standard_parameters();
std::span<const number_row> standard_numbers();
std::span<const flag_row> standard_flags();
std::span<const word_row> standard_words();
