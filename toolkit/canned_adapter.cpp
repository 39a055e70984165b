#include "mac_toolies.h"
#include "notification_center.h"

namespace {

struct canned_answer {
    std::string_view command;
    std::string_view answer;
};

// A car on ISO 9141-2 with its lamp on, one code announced and two sent.
constexpr canned_answer CANNED_ANSWERS[] = {
    {"AT Z\r", "OK\r\r>"},
    {"AT E0\r", "OK\r\r>"},
    {"AT I\r", "QRV 001\r\r>"},
    {"AT DP\r", "ISO 9141-2\r\r>"},
    {"01 01\r", "41 01 81 07 6D 00\r\r>"},
    {"03\r", "43 04 10 00 00 00 00\r43 04 17 00 00 00 00\r\r>"},
};

std::string_view answer_to(std::string_view command) {
    for (const canned_answer& entry : CANNED_ANSWERS)
        if (entry.command == command)
            return entry.answer;
    return "?\r\r>";
}

} // namespace

void mac_toolies::emulate_OBD(std::string_view command) const {
    doors_.notifications->post(OBD_EVENT, std::string(answer_to(command)));
}
