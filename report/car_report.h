// The whole report of a car as data: what each control unit told, and of what it did not tell the
// reason. Worked out of a conversation; the JSON document and every sheet are renderings of it.
#pragma once

#include "conversation.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

class mac_toolies;

// What became of one thing that a unit was asked for.
enum class outcome {
    told,
    not_told, // by this unit, whether or not others did
    refused,
    unread,
    not_asked
};
std::string_view outcome_name(outcome one);

struct finding {
    outcome result = outcome::not_asked;
    // Why there is nothing: the refusal ("7F 0A 11"), or one of the WHY_ words.
    std::string why;
    unread_pieces unread;
    std::string request;
    std::string raw; // hex digits, messages parted by blanks

    bool told() const { return result == outcome::told; }
};
inline constexpr char WHY_NOT_LISTED[] = "not_listed"; // the unit's own list leaves it out
inline constexpr char WHY_LISTED[] = "listed";         // which makes its silence odd
inline constexpr char WHY_SILENT[] = "no_answer";
inline constexpr char WHY_TIME_OUT[] = "time_out";
inline constexpr char WHY_INCOMPLETE[] = "incomplete"; // messages are missing
inline constexpr char WHY_PUT_OFF[] = "put_off";       // and never answered
inline constexpr char WHY_ENDED[] = "ended";           // before it was asked

// Things that every unit is asked for, each with its finding.
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

struct told_value {
    unsigned pid = 0;
    std::string name, text;
    finding found;
};

struct told_code {
    std::string code, meaning;   // empty: not in the table
    std::array<bool, 3> kinds{}; // as in CODE_KINDS
    bool kept_frame = false;
};

struct told_monitor {
    std::string name;
    bool continuous = false, supported = false, complete = false;
    std::optional<bool> complete_this_drive; // nothing: not told, or not enabled
};

enum class verdict { failed, passed, no_result };

struct told_test {
    std::string id;                     // "21/A9", "30/11"
    std::string monitor, test;          // names; empty where there is none
    std::string value, lowest, highest; // empty limits: none on that side
    verdict result = verdict::no_result;
    std::optional<int> nearness; // percent of the way to the limit that is nearest
    std::string raw;
};

struct told_counter {
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
    int announced_codes = 0; // by its status
    bool compression = false;
    std::vector<told_monitor> monitors;
    std::vector<told_code> codes;
    std::string frame_code; // empty: no frame is kept
    std::vector<told_value> frame_values;
    std::vector<told_value> readings;
    std::string vin;
    bool vin_is_standard = false;
    std::vector<calibration> calibrations;
    std::vector<told_counter> counters;
    std::vector<told_test> tests;
    std::size_t stored_heard = 0; // with those told twice
    // What it lists or was asked for beside the parts, and did not tell.
    std::vector<finding> gaps;
};

struct monitor_count {
    int complete = 0, supported = 0;
};

struct car_report {
    conversation heard;
    std::vector<unit_report> units;
    std::string vin; // of the first unit that told one
    std::string adapter, adapter_volts, protocol, protocol_number;

    // Of all units; `whole` turns false where a unit's are missing.
    std::optional<bool> lamp(bool& whole) const; // nothing when nobody told; on when any says so
    std::optional<int> count(part kind, bool& whole) const;
    // Of the engine's unit, or the first that told.
    const unit_report* readiness_unit() const;
    std::optional<monitor_count> readiness() const;
    bool all_told() const;
};

car_report report_of(conversation heard, const mac_toolies& toolies);
