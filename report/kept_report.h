// The report last read or opened, kept across changes of screen.
#pragma once

#include "car_report.h"

#include <cstdint>
#include <optional>

struct kept_report {
    std::optional<car_report> report;
    std::optional<std::uint64_t> link{}; // the link it was read over; nothing if from a file
    bool saved = false;
};
inline kept_report& last_report() {
    static kept_report kept;
    return kept;
}

// Settings: do not offer to save it before codes are cleared; hide the end of the VIN in everything
// saved, printed or copied.
inline constexpr char NO_OFFER_KEY[] = "no_report_offer", HIDE_VIN_KEY[] = "report_hides_vin";
