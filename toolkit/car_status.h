// What the control units' answers to "01 01" say together: lamp, number of codes, monitors
// (SAE J1979).
#pragma once

#include "reading.h"

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

car_status read_status(std::string_view reply);
