// The combined answers to "01 01": lamp, number of codes, monitors (SAE J1979).
#pragma once

#include "reading.h"

#include <map>
#include <string>
#include <string_view>

struct car_status {
    bool reported = false; // by any unit
    bool all_read = false; // no part was unreadable
    bool lamp_known = false;
    bool lamp_on = false;
    int codes = 0;                    // of the units whose lamp bit is set
    std::string monitors;             // bytes B, C, D as hex digits; empty if no unit answered
    bus_form bus = bus_form::unknown; // by the headers
    unread_pieces unread;
};

// `expected`: the units that have a status; one that did not answer is reported, if headers are on.
car_status read_status(std::string_view reply,
                       const std::map<std::string, std::string>& expected = {});

// The units that support PID 01, by an answer to "01 00" with headers on: names by address.
std::map<std::string, std::string> units_with_status(const reading& pids);
