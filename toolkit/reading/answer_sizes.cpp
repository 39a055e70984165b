#include "answer_sizes.h"

#include "hex_digits.h"
#include "text.h"

#include <array>

namespace {

// Data bytes by PID, 00 to 5F, a row for each sixteen. Beyond, those of the bitmaps are known here.
constexpr std::string_view PARAMETER_BYTES = "4422111111112111"
                                             "2111222222221112"
                                             "4222444444441111"
                                             "1221444444442222"
                                             "4422211111111224"
                                             "4112222222111221";

constexpr unsigned BITMAP_EVERY = 0x20;
constexpr std::size_t BITMAP_BYTES = 4;

enum class length { by_parameter, by_count, fixed };

struct size_row {
    std::string_view answer; // what it begins with
    bus_form bus;            // unknown: whichever
    length kind;
    std::size_t digits = 0;
};
constexpr size_row ROWS[] = {
    {"41", bus_form::unknown, length::by_parameter}, {"43", bus_form::can, length::by_count},
    {"43", bus_form::older, length::fixed, 14},      {"44", bus_form::unknown, length::fixed, 2},
    {"47", bus_form::can, length::by_count},         {"47", bus_form::older, length::fixed, 14},
    {"4902", bus_form::can, length::fixed, 40},      {"4902", bus_form::older, length::fixed, 14},
    {"4A", bus_form::can, length::by_count},         {"4A", bus_form::older, length::fixed, 14},
};

constexpr std::size_t PARAMETER_HEAD_DIGITS = 4; // "41" and the PID

} // namespace

std::optional<std::size_t> parameter_bytes(unsigned pid) {
    if (pid >= PARAMETER_BYTES.size())
        return pid % BITMAP_EVERY == 0 ? std::optional(BITMAP_BYTES) : std::nullopt;
    return static_cast<std::size_t>(PARAMETER_BYTES[pid] - '0');
}

std::optional<std::size_t> answer_digits(std::string_view data, bus_form bus) {
    for (const size_row& row : ROWS) {
        if (!data.starts_with(row.answer) || (row.bus != bus_form::unknown && row.bus != bus))
            continue;
        switch (row.kind) {
        case length::fixed:
            return row.digits;
        case length::by_count:
            return CODES_HEAD_DIGITS + CODE_DIGITS * hex_value(slice(data, 2, 2));
        case length::by_parameter:
            if (const auto bytes = parameter_bytes(hex_value(slice(data, 2, 2))))
                return PARAMETER_HEAD_DIGITS + 2 * *bytes;
            return std::nullopt;
        }
    }
    return std::nullopt;
}
