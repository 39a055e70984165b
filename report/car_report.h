// The report of a car as data: what each control unit reported, and why anything is missing.
// Derived from a conversation; the JSON document and every sheet are renderings of it.
#pragma once

#include "conversation.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

class mac_toolies;

// The outcome of one request to a unit.
enum class outcome {
    reported,
    not_reported, // by this unit, even if others did
    refused,
    unread,
    not_asked
};
std::string_view outcome_name(outcome one);

struct finding {
    outcome result = outcome::not_asked;
    // Why there is no data: the refusal ("7F 0A 11"), or one of the WHY_ words.
    std::string why;
    unread_pieces unread;
    std::string request;
    std::string raw; // hex digits, messages separated by blanks

    bool reported() const { return result == outcome::reported; }
};
inline constexpr char WHY_NOT_LISTED[] = "not_listed"; // not in the unit's own list
inline constexpr char WHY_LISTED[] = "listed";         // although in its list
inline constexpr char WHY_SILENT[] = "no_answer";
inline constexpr char WHY_TIME_OUT[] = "time_out";
inline constexpr char WHY_INCOMPLETE[] = "incomplete"; // messages are missing
inline constexpr char WHY_DEFERRED[] = "put_off";      // and never answered
inline constexpr char WHY_ENDED[] = "ended";           // the reading ended before

// What every unit is asked for, each with its finding.
enum class part {
    status,
    this_drive,
    stored,
    pending,
    permanent,
    frame,
    vin,
    unit_name,
    calibrations,
    verification_numbers,
    counters,
    tests,
};
inline constexpr std::size_t PARTS = 12;
std::string_view part_name(part one);
inline constexpr std::array<part, 3> CODE_KINDS{part::stored, part::pending, part::permanent};

struct reported_value {
    unsigned pid = 0;
    std::string name, text;
    finding found;
};

struct reported_code {
    std::string code, meaning;   // empty: not in the table
    std::array<bool, 3> kinds{}; // as in CODE_KINDS
    bool kept_frame = false;
};

struct reported_monitor {
    std::string name;
    bool continuous = false, supported = false, complete = false;
    std::optional<bool> complete_this_drive; // nothing: not reported, or not enabled
};

enum class verdict { failed, passed, no_result };

struct reported_test {
    std::string id;                     // "21/A9", "30/11"
    std::string monitor, test;          // names; empty if none
    std::string value, lowest, highest; // empty: no limit on that side
    verdict result = verdict::no_result;
    std::optional<int> nearness; // percent of the way to the nearest limit
    std::string raw;
};

struct reported_counter {
    std::string name;
    unsigned done = 0;
    std::optional<unsigned> conditions;
};

struct calibration {
    std::string id, verification_number; // either may be missing
};

struct unit_report {
    std::string address, name;
    std::array<finding, PARTS> findings;
    finding& of(part one) { return findings[static_cast<std::size_t>(one)]; }
    const finding& of(part one) const { return findings[static_cast<std::size_t>(one)]; }

    bool lamp_on = false;
    int announced_codes = 0; // from its status
    bool compression = false;
    std::vector<reported_monitor> monitors;
    std::vector<reported_code> codes;
    std::string frame_code; // empty: no frame stored
    std::vector<reported_value> frame_values;
    std::vector<reported_value> readings;
    std::string vin;
    bool vin_is_standard = false;
    std::vector<calibration> calibrations;
    std::vector<reported_counter> counters;
    std::vector<reported_test> tests;
    std::size_t stored_received = 0; // including duplicates
    // Other data that it lists or was asked for, but did not report.
    std::vector<finding> gaps;
};

struct monitor_count {
    int complete = 0, supported = 0;
};

struct car_report {
    conversation transcript;
    std::vector<unit_report> units;
    std::string vin; // from the first unit that reported one
    std::string adapter, adapter_volts, protocol, protocol_number;

    // Of all units; `whole` becomes false if one is missing.
    std::optional<bool> lamp(bool& whole) const; // nothing if no unit reported it; on if any is
    std::optional<int> count(part kind, bool& whole) const;
    // Of the engine's unit, or the first that reported.
    const unit_report* readiness_unit() const;
    std::optional<monitor_count> readiness() const;
    bool all_reported() const;
};

car_report report_of(conversation transcript, const mac_toolies& toolies);
