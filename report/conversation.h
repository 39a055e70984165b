// What was asked of a car and what came back, piece by piece: all that a report rests on. Plain
// data; a saved report holds it, and everything else is worked out of it anew.
#pragma once

#include "constantes.h"
#include "unread.h"

#include <bitset>
#include <string>
#include <string_view>
#include <vector>

struct unit_reply {
    std::string unit; // its address: "7E8", "10"; empty where no header told
    std::string data; // capital hex digits, the service byte first
    bool operator==(const unit_reply&) const = default;
};

// "7F0978", the answer is still to come; or 21, the unit is busy: no refusal.
bool puts_off(const unit_reply& refusal);

struct asked_piece {
    std::string request;              // "0902", or the adapter's own: "ATRV"
    std::vector<unit_reply> answers;  // in the order in which they came
    std::vector<unit_reply> refusals; // "7F0A11"
    unread_pieces unread;
    bus_form bus = bus_form::unknown;
    std::string text; // what the adapter said to a command of its own
    bool timed_out = false;
    int milliseconds = 0;

    bool answered() const { return !answers.empty(); }
};

enum class reading_end { complete, cancelled, time_up, adapter_silent, link_lost };

struct conversation {
    std::string read_at;   // "2026-11-22T18:04:07+01:00"
    std::string program;   // name and version
    std::string named_bus; // what the adapter called the bus while the link came up; may be empty
    std::vector<asked_piece> pieces;
    reading_end end = reading_end::complete;
    int milliseconds = 0;
    bool vin_hidden = false; // it is no longer in here

    const asked_piece* find(std::string_view request) const;
    // Addresses of all that answered or refused anything, the lowest first.
    std::vector<std::string> units() const;
    bool anything_told() const; // by the car
    // On the older buses the first message of an answer has other places for some bytes.
    bool on_can() const;
    // The identifiers that a unit says it answers to in a service (01, 02, 06, 09).
    struct id_list {
        std::bitset<256> listed;
        std::bitset<256> reached; // as far as its lists tell, either way
    };
    id_list lists(std::string_view unit, std::string_view service) const;
    std::bitset<256> listed_by_anyone(std::string_view service) const;
};

// Whether the text is an adapter's command rather than a request to the car.
bool is_adapter_command(std::string_view request);
// "0120" of "01" and 20.
std::string request_of(std::string_view service, unsigned identifier);

// More than any car has or says; what goes beyond is told of, and not kept.
inline constexpr std::size_t MOST_UNITS = 16, MOST_ANSWERS = 200, LONGEST_DATA = 8192;

// Takes the last six characters of the car's identification number out of all that was heard.
conversation without_vin(conversation heard);
