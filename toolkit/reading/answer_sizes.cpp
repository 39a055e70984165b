#include "answer_sizes.h"

#include "hex_digits.h"
#include "text.h"

#include <algorithm>

namespace {

// Data bytes by PID, 00 to 5F, sixteen to a row. Beyond that, only the bitmaps' are known here.
constexpr std::string_view PARAMETER_BYTES = "4422111111112111"
                                             "2111222222221112"
                                             "4222444444441111"
                                             "1221444444442222"
                                             "4422211111111224"
                                             "4112222222111221";

constexpr unsigned BITMAP_EVERY = 0x20;
constexpr std::size_t BITMAP_BYTES = 4;

constexpr std::size_t RECORD_AT = 2, RECORD_DIGITS = 18; // of service 06 on CAN
constexpr std::size_t MASK_DIGITS = 12;                  // "46", the group, four bytes

enum class length { by_parameter, by_count, by_record, fixed };

struct size_row {
    std::string_view answer; // what it begins with
    bus_form bus;            // unknown: any
    length kind;
    std::size_t digits = 0; // of the answer, or of its head if more follows
    std::size_t each = 0;   // of each item that the head's last byte counts
};
constexpr bus_form CAN = bus_form::can, OLDER = bus_form::older, EITHER = bus_form::unknown;
// The first matching row applies.
constexpr size_row ROWS[] = {
    {"41", EITHER, length::by_parameter, 4},
    {"42", EITHER, length::by_parameter, 6}, // the frame number after the PID
    {"43", CAN, length::by_count, CODES_HEAD_DIGITS, CODE_DIGITS},
    {"43", OLDER, length::fixed, 14},
    {"44", EITHER, length::fixed, 2},
    {"46", CAN, length::by_record},
    {"46", OLDER, length::fixed, 14},
    {"47", CAN, length::by_count, CODES_HEAD_DIGITS, CODE_DIGITS},
    {"47", OLDER, length::fixed, 14},
    {"4900", CAN, length::fixed, 12},
    {"4902", CAN, length::fixed, 40},
    {"4904", CAN, length::by_count, 6, 32}, // calibrations
    {"4906", CAN, length::by_count, 6, 8},  // their verification numbers
    {"4908", CAN, length::by_count, 6, 4},  // counters
    {"490A", CAN, length::fixed, 46},       // the unit's name
    {"490B", CAN, length::by_count, 6, 4},
    {"4901", OLDER, length::fixed, 6}, // how many messages the next type has
    {"4903", OLDER, length::fixed, 6},
    {"4905", OLDER, length::fixed, 6},
    {"4907", OLDER, length::fixed, 6},
    {"4909", OLDER, length::fixed, 6},
    {"49", OLDER, length::fixed, 14},
    {"4A", CAN, length::by_count, CODES_HEAD_DIGITS, CODE_DIGITS},
    {"4A", OLDER, length::fixed, 14},
};

std::size_t digits_of_records(std::string_view data) {
    if (hex_value(slice(data, RECORD_AT, 2)) % BITMAP_EVERY == 0)
        return MASK_DIGITS;
    const std::size_t records =
        data.size() > RECORD_AT ? (data.size() - RECORD_AT) / RECORD_DIGITS : 0;
    return RECORD_AT + RECORD_DIGITS * std::max<std::size_t>(records, 1);
}

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
            return row.digits + row.each * hex_value(slice(data, row.digits - 2, 2));
        case length::by_record:
            return digits_of_records(data);
        case length::by_parameter:
            if (const auto bytes = parameter_bytes(hex_value(slice(data, 2, 2))))
                return row.digits + 2 * *bytes;
            return std::nullopt;
        }
    }
    return std::nullopt;
}
