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
    std::string_view nothing = "-"; // the text when none of its values is there
};

constexpr int ALWAYS = -1;

// Numbers of the same scaling one after the other, as many as there are labels between bars.
struct number_row {
    std::uint8_t pid;
    std::uint8_t at, width;
    const scaling_rule* scaling;
    // Bit of byte A that says whether the first one is there; the next bit is for the next.
    int support_bit = ALWAYS;
    std::string_view labels = {};
    int numbers_a_bit = 1;
    int not_there = -1; // the value that stands for "none"
};

// Bits of one byte, the lowest first, with what is said of a set one and of a clear one, between
// bars; nothing is said where there is no text.
struct flag_row {
    std::uint8_t pid;
    std::uint8_t at, first_bit;
    std::string_view set, clear = {};
    int support_at = ALWAYS; // the byte whose bits, from `first_support` on, say which are there
    std::uint8_t first_support = 0;
};

struct word {
    std::uint8_t value;
    std::string_view text;
};

// What some bits of a byte mean together.
struct word_row {
    std::uint8_t pid;
    std::uint8_t at, mask;
    std::span<const word> words;
    int support_bit = ALWAYS; // of byte A
};

// In the order of their PIDs each.
std::span<const parameter_row> standard_parameters();
std::span<const number_row> standard_numbers();
std::span<const flag_row> standard_flags();
std::span<const word_row> standard_words();
