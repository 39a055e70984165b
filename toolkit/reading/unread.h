// What of a reply could not be read, and why.
#pragma once

#include <string>
#include <vector>

enum class unread_kind {
    adapter_notice, // the adapter said "CAN ERROR", "STOPPED" ... instead
    damaged_line,   // marked so by the adapter ("<DATA ERROR")
    not_understood, // neither data nor a known notice
    broken_off,     // fewer digits than it announces or than such an answer has
    too_long,       // digits behind a whole answer that do not belong to it
    frames_unclear, // frames that do not fit together in one way
    refused,        // a negative answer ("7F 03 11")
    no_answer,      // nothing came from the car
    silent_unit,    // one that has told the handshake of its status told none
    left_out,       // a code that stands where the table passes it over
};

struct unread_piece {
    unread_kind kind;
    std::string text; // as it came, in capitals without blanks; a notice as adapters print it
    std::string unit =
        {}; // the address of the one that refused or was silent; empty with headers off
    bool operator==(const unread_piece&) const = default;
};

using unread_pieces = std::vector<unread_piece>;
