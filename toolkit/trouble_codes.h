// The codes in a reply to service 03, 07 or 0A, and what of it could not be read.
#pragma once

#include "reading.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What to do with an older bus's line truncated inside a code: padded, it would be a code that no
// car sent.
enum class half_codes { left_unread, padded };

struct codes_reading {
    std::vector<std::string> codes; // in the order of the reply, duplicates kept
    std::vector<std::string> units; // that sent each: "Engine (7E8)"; empty without headers
    bool answered = false;
    bool no_data = false;
    std::vector<std::string> others; // as in a reading
    unread_pieces unread;
};

// `service`: two digits. `known`: evidence of the bus besides the reply itself. `announced`: the
// number of codes, if the car has reported it, which decides when there is no other evidence of the
// bus.
codes_reading read_codes(std::string_view service, std::string_view reply, bus_evidence known,
                         std::optional<int> announced = std::nullopt,
                         half_codes halves = half_codes::left_unread);
