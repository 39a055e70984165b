// The requests to a car and its answers, piece by piece: the source of a report. Plain data; a
// saved report holds it, and everything else is derived from it again.
#pragma once

#include "constantes.h"
#include "unread.h"

#include <bitset>
#include <set>
#include <string>
#include <string_view>
#include <vector>

struct unit_reply {
    std::string unit; // its address: "7E8", "10"; empty without a header
    std::string data; // capital hex digits, the service byte first
    bool operator==(const unit_reply&) const = default;
};

// "7F0978" (answer pending) or 21 (busy): not a refusal.
bool is_deferral(const unit_reply& refusal);

struct asked_piece {
    std::string request;              // "0902", or the adapter's own: "ATRV"
    std::vector<unit_reply> answers;  // in order of arrival
    std::vector<unit_reply> refusals; // "7F0A11"
    unread_pieces unread;
    bus_form bus = bus_form::unknown;
    std::string text; // the adapter's answer to its own command
    bool timed_out = false;
    int milliseconds = 0;

    bool answered() const { return !answers.empty(); }
    // Those that answered or refused.
    std::set<std::string> units() const;
};

enum class reading_end { complete, cancelled, time_up, adapter_silent, link_lost };

struct conversation {
    std::string read_at;   // "2026-11-22T18:04:07+01:00"
    std::string program;   // name and version
    std::string named_bus; // the adapter's name of the bus during the handshake; may be empty
    std::vector<asked_piece> pieces;
    reading_end end = reading_end::complete;
    int milliseconds = 0;
    bool vin_hidden = false; // its end has been removed

    const asked_piece* find(std::string_view request) const;
    // Addresses of all units that answered or refused anything, in ascending order.
    std::vector<std::string> units() const;
    bool car_answered() const; // by the car
    // On the older buses the first message of an answer has some bytes at other positions.
    bool on_can() const;
    // The identifiers that a unit lists as supported in a service (01, 02, 06, 09).
    struct id_list {
        std::bitset<256> listed;
        std::bitset<256> reached; // covered by its lists, set or clear
    };
    id_list lists(std::string_view unit, std::string_view service) const;
    std::bitset<256> listed_by_anyone(std::string_view service) const;
};

// Whether the text is an adapter's command rather than a request to the car.
bool is_adapter_command(std::string_view request);
// "0120" of "01" and 20.
std::string request_of(std::string_view service, unsigned identifier);
// Identifiers are listed in groups of 32; the first of each asks for its list, "020000" of frame
// 00.
inline constexpr unsigned GROUP = 0x20;
std::string list_request(std::string_view service, unsigned group);

// More than any car has or sends; anything beyond is reported, but not stored.
inline constexpr std::size_t MOST_UNITS = 16, MOST_ANSWERS = 200, LONGEST_DATA = 8192;

// Removes the last six characters of the car's identification number from everything received.
conversation without_vin(conversation transcript);
