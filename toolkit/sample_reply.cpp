#include "sample_reply.h"

#include "mac_toolies.h"
#include "standard_values.h"
#include "text.h"

#include <algorithm>
#include <cctype>

namespace {

constexpr std::size_t HEAD = 4;         // "41" and the parameter
constexpr std::size_t WHOLE_FRAME = 14; // seven bytes follow the length of a CAN frame

// Data bytes by PID, 00 to 5F, a row for each sixteen. Beyond the table of standard values tells;
// what has no row there may have any number.
constexpr std::string_view DATA_BYTES = "4422111111112111"
                                        "2111222222221112"
                                        "4222444444441111"
                                        "1221444444442222"
                                        "4422211111111224"
                                        "4112222222111221";

// What adapters say instead of data, without blanks. "BUS" and "ERROR" stand in several notices.
constexpr std::string_view NOTICES[] = {"NODATA",   "SEARCHING", "UNABLETOCONNECT", "STOPPED",
                                        "BUS",      "ERROR",     "BUFFERFULL",      "LVRESET",
                                        "ACTALERT", "?"};

bool is_filling(std::string_view digits) {
    const std::string_view byte = digits.substr(0, 2);
    if (byte != "00" && byte != "55" && byte != "AA" && byte != "CC" && byte != "FF")
        return false;
    for (std::size_t at = 2; at < digits.size(); at += 2)
        if (digits.substr(at, 2) != byte)
            return false;
    return true;
}

// Fuel trims: with four banks of cylinders a car tells of two at a time, and the first counts.
bool may_tell_of_two_banks(unsigned number) {
    return number >= 0x06 && number <= 0x09;
}

} // namespace

bool answers_parameter(std::string_view reply, std::string_view pid) {
    return reply.starts_with("41") &&
           std::ranges::equal(slice(reply, 2, 2), pid, [](unsigned char a, unsigned char b) {
               return std::toupper(a) == std::toupper(b);
           });
}

std::string_view answer_in(std::string_view reply) {
    if (!reply.starts_with("41") || reply.size() <= HEAD || reply.size() % 2 != 0 || !is_hex(reply))
        return {};
    const unsigned number = mac_toolies::convertStr2Byte(reply.substr(2, 2));
    const answer_length standard = standard_length(number);
    if (number >= DATA_BYTES.size() && standard.bytes == 0)
        return reply;
    const std::size_t bytes = number < DATA_BYTES.size()
                                  ? static_cast<std::size_t>(DATA_BYTES[number] - '0')
                                  : standard.bytes;
    const std::size_t whole = HEAD + 2 * bytes;
    if (standard.or_bytes != 0 && reply.size() == HEAD + 2 * std::size_t{standard.or_bytes})
        return reply;
    const bool fits =
        reply.size() == whole || (reply.size() == whole + 2 && may_tell_of_two_banks(number)) ||
        (reply.size() == WHOLE_FRAME && whole < WHOLE_FRAME && is_filling(reply.substr(whole)));
    return fits ? reply.substr(0, whole) : std::string_view();
}

bool holds_notice(std::string_view reply) {
    return std::ranges::any_of(NOTICES, [&](std::string_view one) { return contains(reply, one); });
}
