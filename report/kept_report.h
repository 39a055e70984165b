// The report that was read or opened last, whatever screen shows: a change of screen loses nothing.
#pragma once

#include "car_report.h"

#include <cstdint>
#include <optional>

struct kept_report {
    std::optional<car_report> report;
    std::optional<std::uint64_t> link{}; // over which it was read; nothing for one from a file
    bool saved = false;
};
inline kept_report& last_report() {
    static kept_report kept;
    return kept;
}

// Settings: no offer to save it before codes are cleared; the end of the VIN hidden in what leaves
// the program.
inline constexpr char NO_OFFER_KEY[] = "no_report_offer", HIDE_VIN_KEY[] = "report_hides_vin";
