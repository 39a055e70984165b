#include "bus_protocols.h"

#include <array>

namespace {

using std::chrono::milliseconds;

constexpr auto ms(int count) {
    return milliseconds(count);
}

constexpr milliseconds P3{59}; // ISO 9141-2, ISO 14230-2: at least 55; the chip uses 59
constexpr milliseconds J1850_PAUSE{100};

// ISO 9141-2 and ISO 14230-4 wake their bus at 5 baud (about two seconds) or with one fast pulse.
constexpr std::array PROTOCOLS = {
    bus_protocol{1, "j1850_pwm", "SAE J1850 PWM", bus_kind::j1850_pwm, false, 0, ms(120), ms(0),
                 ms(35), ms(14), ms(14), J1850_PAUSE},
    bus_protocol{2, "j1850_vpw", "SAE J1850 VPW", bus_kind::j1850_vpw, false, 0, ms(150), ms(0),
                 ms(45), ms(22), ms(22), J1850_PAUSE},
    bus_protocol{3, "iso_9141_2", "ISO 9141-2", bus_kind::iso_9141, false, 0, ms(2600), ms(2400),
                 ms(85), ms(45), ms(45), P3},
    bus_protocol{4, "iso_14230_slow", "ISO 14230-4 (KWP 5BAUD)", bus_kind::kwp_slow, false, 0,
                 ms(2600), ms(2400), ms(80), ms(40), ms(40), P3},
    bus_protocol{5, "iso_14230_fast", "ISO 14230-4 (KWP FAST)", bus_kind::kwp_fast, false, 0,
                 ms(400), ms(120), ms(80), ms(40), ms(40), P3},
    bus_protocol{6, "can_11_500", "ISO 15765-4 (CAN 11/500)", bus_kind::can, false, 500, ms(150),
                 ms(30), ms(9), ms(2), ms(4), ms(0)},
    bus_protocol{7, "can_29_500", "ISO 15765-4 (CAN 29/500)", bus_kind::can, true, 500, ms(150),
                 ms(30), ms(9), ms(2), ms(4), ms(0)},
    bus_protocol{8, "can_11_250", "ISO 15765-4 (CAN 11/250)", bus_kind::can, false, 250, ms(150),
                 ms(30), ms(11), ms(3), ms(4), ms(0)},
    bus_protocol{9, "can_29_250", "ISO 15765-4 (CAN 29/250)", bus_kind::can, true, 250, ms(150),
                 ms(30), ms(11), ms(3), ms(4), ms(0)},
};

} // namespace

std::span<const bus_protocol> bus_protocols() {
    return PROTOCOLS;
}

const bus_protocol* protocol_numbered(int number) {
    for (const bus_protocol& protocol : PROTOCOLS)
        if (protocol.number == number)
            return &protocol;
    return nullptr;
}

const bus_protocol* protocol_named(std::string_view name) {
    for (const bus_protocol& protocol : PROTOCOLS)
        if (protocol.name == name)
            return &protocol;
    return nullptr;
}

std::string_view protocol_description(int number) {
    switch (number) {
    case 0:
        return "AUTO";
    case 10:
        return "SAE J1939 (CAN 29/250)";
    case 11:
        return "USER1 (CAN 11/125)";
    case 12:
        return "USER2 (CAN 11/50)";
    default:
        break;
    }
    const bus_protocol* const protocol = protocol_numbered(number);
    return protocol ? protocol->description : "";
}
