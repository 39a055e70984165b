#include "car_status.h"

#include "hex_digits.h"
#include "text.h"

#include <algorithm>

namespace {

constexpr std::size_t A_AT = 4, BCD_AT = 6, WHOLE = 12; // digits of "4101AABBCCDD", "4100.."
constexpr unsigned LAMP_BIT = 0x80, COUNT_BITS = 0x7F;
constexpr unsigned STATUS_BIT = 0x80; // of a mask: PID 01

bool is_engine(const ecu_answer& one) {
    return one.unit == "Engine";
}

void add_silent_units(reading& read, std::map<std::string, std::string> expected) {
    for (const ecu_answer& one : read.answers)
        expected.erase(unit_address(one.form, one.header));
    for (const unread_piece& one : read.unread)
        if (one.kind == unread_kind::refused)
            expected.erase(one.unit);
        else
            return; // this may be their answer, and is reported as unread
    for (const auto& [address, name] : expected)
        read.unread.push_back({unread_kind::silent_unit, name, address});
}

} // namespace

std::map<std::string, std::string> units_with_status(const reading& pids) {
    std::map<std::string, std::string> units;
    for (const ecu_answer& one : pids.answers)
        if (one.form != header_form::none && one.data.size() >= WHOLE &&
            (hex_value(slice(std::string_view(one.data), A_AT, 2)) & STATUS_BIT) != 0)
            units[unit_address(one.form, one.header)] = one.unit;
    return units;
}

// Lamp and monitors come from the engine's answer, or the only one. If several units answer without
// the engine, any unit's lamp counts, and the first unit's monitors.
car_status read_status(std::string_view reply, const std::map<std::string, std::string>& expected) {
    reading read = read_reply("0101", reply);
    if (read.bus.source == bus_source::headers)
        add_silent_units(read, expected);
    read.forget_refusals();
    std::erase_if(read.answers, [](const auto& one) { return one.data.size() < WHOLE; });
    const bool engine_reported = std::ranges::any_of(read.answers, is_engine);

    car_status status;
    status.reported = read.answered();
    status.all_read = read.unread.empty();
    status.lamp_known = status.reported && (status.all_read || engine_reported);
    if (read.bus.source == bus_source::headers)
        status.bus = read.bus.form;
    for (const ecu_answer& one : read.answers) {
        const std::string_view data = one.data;
        const unsigned byte_a = hex_value(slice(data, A_AT, 2));
        const bool unit_lamp = (byte_a & LAMP_BIT) != 0;
        if (!engine_reported || is_engine(one))
            status.lamp_on = status.lamp_on || unit_lamp;
        if (engine_reported ? is_engine(one) : status.all_read && status.monitors.empty())
            status.monitors = slice(data, BCD_AT);
        // Deliberately: the count of a unit whose lamp bit is clear is ignored.
        if (unit_lamp)
            status.codes += static_cast<int>(byte_a & COUNT_BITS);
    }
    status.unread = std::move(read.unread);
    return status;
}
