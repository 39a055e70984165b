// What of a reply could not be read, and why.
#pragma once

#include <string>
#include <vector>

enum class unread_kind {
    adapter_notice, // "CAN ERROR", "STOPPED" ... in place of data
    damaged_line,   // marked by the adapter ("<DATA ERROR")
    not_understood, // neither data nor a known notice
    broken_off,     // too few digits for its length or its kind
    too_long,       // extra digits after a complete answer
    frames_unclear, // the frames fit together in more than one way, or in none
    refused,        // a negative answer ("7F 03 11")
    no_answer,      // the car sent nothing
    silent_unit,    // supports PID 01, but did not report its status
    left_out,       // a code that the table deliberately leaves out
};

struct unread_piece {
    unread_kind kind;
    std::string text;      // as received, in capitals without blanks; a notice as adapters print it
    std::string unit = {}; // address of the unit that refused or was silent; empty with headers off
    bool operator==(const unread_piece&) const = default;
};

using unread_pieces = std::vector<unread_piece>;
