#include "car_status.h"

#include "hex_digits.h"
#include "text.h"

#include <algorithm>

namespace {

constexpr std::size_t A_AT = 4, BCD_AT = 6, WHOLE = 12; // digits of "4101AABBCCDD"
constexpr unsigned LAMP_BIT = 0x80, COUNT_BITS = 0x7F;

bool is_engine(const ecu_answer& one) {
    return one.unit == "Engine";
}

} // namespace

// The engine's answer, or the only one, tells lamp and monitors. When several units answer and none
// is the engine's, any lamp counts, and the first unit's monitors.
car_status read_status(std::string_view reply) {
    reading read = read_reply("0101", reply);
    read.forget_refusals();
    std::erase_if(read.answers, [](const auto& one) { return one.data.size() < WHOLE; });
    const bool engine_told = std::ranges::any_of(read.answers, is_engine);

    car_status status;
    status.told = read.answered();
    status.all_read = read.unread.empty();
    status.lamp_known = status.told && (status.all_read || engine_told);
    if (read.bus.source == bus_source::headers)
        status.bus = read.bus.form;
    for (const ecu_answer& one : read.answers) {
        const std::string_view data = one.data;
        const unsigned byte_a = hex_value(slice(data, A_AT, 2));
        const bool unit_lamp = (byte_a & LAMP_BIT) != 0;
        if (!engine_told || is_engine(one))
            status.lamp_on = status.lamp_on || unit_lamp;
        if (engine_told ? is_engine(one) : status.all_read && status.monitors.empty())
            status.monitors = slice(data, BCD_AT);
        // A unit whose lamp bit is clear adds nothing, whatever its count: on purpose.
        if (unit_lamp)
            status.codes += static_cast<int>(byte_a & COUNT_BITS);
    }
    status.unread = std::move(read.unread);
    return status;
}
