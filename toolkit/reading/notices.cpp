#include "notices.h"

#include "text.h"

#include <algorithm>
#include <cctype>

namespace {

constexpr notice NOTICES[] = {
    {"NODATA", "NO DATA", notice_kind::no_data},
    {"OK", "OK", notice_kind::harmless},
    {"SEARCHING", "SEARCHING", notice_kind::harmless},
    {"?", "?", notice_kind::trouble},
    {"ACTALERT", "ACT ALERT", notice_kind::trouble},
    {"BUFFERFULL", "BUFFER FULL", notice_kind::trouble},
    {"BUSBUSY", "BUS BUSY", notice_kind::trouble},
    {"BUSERROR", "BUS ERROR", notice_kind::trouble},
    {"CANERROR", "CAN ERROR", notice_kind::trouble},
    {"DATAERROR", "DATA ERROR", notice_kind::trouble},
    {"ERROR", "BUS INIT: ERROR", notice_kind::trouble}, // what remains of it
    {"FBERROR", "FB ERROR", notice_kind::trouble},
    {"LPALERT", "LP ALERT", notice_kind::trouble},
    {"LVRESET", "LV RESET", notice_kind::trouble},
    {"OUTOFMEMORY", "OUT OF MEMORY", notice_kind::trouble},
    {"RXERROR", "RX ERROR", notice_kind::trouble},
    {"STOPPED", "STOPPED", notice_kind::trouble},
    {"UNABLETOCONNECT", "UNABLE TO CONNECT", notice_kind::trouble},
};
// Followed by a number of two digits.
constexpr notice NUMBERED[] = {
    {"ERR", "ERR", notice_kind::trouble},
    {"BUSBUSY", "BUS BUSY", notice_kind::trouble},
};
constexpr notice RESTARTED{"ELM", "ELM327", notice_kind::trouble}; // followed by anything

constexpr std::string_view SEARCH_NOTICES[] = {"SEARCHING", ".", "BUSINIT:", "BUSINIT", "OK"};

bool is_numbered(std::string_view line, const notice& one) {
    return line.size() == one.spaceless.size() + 2 && line.starts_with(one.spaceless) &&
           std::ranges::all_of(line.substr(one.spaceless.size()),
                               [](unsigned char c) { return std::isdigit(c); });
}

} // namespace

const notice* notice_in(std::string_view line) {
    const auto found = std::ranges::find(NOTICES, line, &notice::spaceless);
    if (found != std::end(NOTICES))
        return found;
    if (line.starts_with(RESTARTED.spaceless))
        return &RESTARTED;
    const auto numbered = std::ranges::find_if(
        NUMBERED, [line](const notice& one) { return is_numbered(line, one); });
    return numbered == std::end(NUMBERED) ? nullptr : numbered;
}

std::string_view behind_search_notices(std::string_view line) {
    bool bus_notice = false;
    for (bool removed = true; removed;) {
        removed = false;
        for (const std::string_view one : SEARCH_NOTICES)
            if (line.starts_with(one) && (one != "OK" || bus_notice)) {
                line.remove_prefix(one.size());
                removed = true;
                bus_notice = bus_notice || one.starts_with("BUSINIT");
            }
    }
    return line;
}

bool holds_notice(std::string_view text) {
    return contains(text, "BUS") || std::ranges::any_of(NOTICES, [&](const notice& one) {
               return one.spaceless != "OK" && contains(text, one.spaceless);
           });
}
