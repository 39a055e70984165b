// What the control units' answers to "01 01" say together: lamp, number of codes, monitors
// (SAE J1979).
#pragma once

#include "reading.h"

#include <map>
#include <string>
#include <string_view>

struct car_status {
    bool told = false;     // by any unit
    bool all_read = false; // nothing of it was left unread
    bool lamp_known = false;
    bool lamp_on = false;
    int codes = 0;                    // of the units whose lamp bit is set
    std::string monitors;             // bytes B, C, D as hex digits; empty when nobody told
    bus_form bus = bus_form::unknown; // by the headers
    unread_pieces unread;
};

// `expected`: the units that have a status; told only where headers say who answers.
car_status read_status(std::string_view reply,
                       const std::map<std::string, std::string>& expected = {});

// The units that told, in an answer to "01 00" with headers on, that they have a status: names by
// addresses.
std::map<std::string, std::string> units_with_status(const reading& pids);
