// One car as its file describes it: the bus, the control units and their data, the engine. Plain
// data; the caller that loads a car owns it, and a virtual adapter changes it when a client clears
// codes.
#pragma once

#include "bus_protocols.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

using byte_string = std::vector<std::uint8_t>;

enum class fuel_kind { petrol, diesel, hybrid };

// What the drive cycle needs. SI units unless the name says otherwise.
struct engine_data {
    fuel_kind fuel = fuel_kind::petrol;
    double displacement_litres = 1.6;
    double mass_kg = 1300;
    double drag_area_m2 = 0.65;
    double ambient_celsius = 15;
    double start_coolant_celsius = 15;
    double fuel_trim_percent = 0; // where the engine's fault makes the long-term trim settle
};

// Bytes B, C and D of service 01 PID 01 (SAE J1979): the available monitors, and those not
// complete.
struct readiness_bytes {
    std::uint8_t continuous =
        0; // B: available in bits 0-2, not complete in bits 4-6, bit 3 compression ignition
    std::uint8_t available = 0;    // C
    std::uint8_t not_complete = 0; // D
};

struct freeze_frame {
    std::string code;
    std::map<int, byte_string> values; // by PID
};

// One result record of service 06 on CAN.
struct test_result {
    std::uint8_t monitor = 0;
    std::uint8_t test = 0;
    std::uint8_t unit = 0;
    std::uint16_t value = 0;
    std::uint16_t lowest = 0;
    std::uint16_t highest = 0;
};

struct control_unit {
    std::string name;
    // The source address on the bus: 7E8 to 7EF with 11-bit CAN identifiers, else one byte (10 is
    // the engine).
    std::uint32_t address = 0;
    std::vector<int> pids; // service 01 PIDs above 01 that it supports, without the masks
    std::map<int, byte_string> fixed; // PIDs whose answer never changes
    bool lamp = false;
    readiness_bytes readiness;
    std::vector<std::string> stored, pending, permanent;
    std::optional<freeze_frame> frozen;
    std::vector<std::string> calibrations;
    std::vector<std::string> verification_numbers; // of the calibrations, eight hex digits each
    std::vector<int> counters;                     // service 09 type 08, or 0B of a diesel
    std::string short_name; // first part of service 09 type 0A: "ECM", "Engine"
    std::vector<test_result> tests;
    std::vector<int> silent_services; // services it never answers, as with some old units
    // By the digits of the request: answers that replace those derived from the rest of its data.
    std::map<std::string, std::vector<byte_string>> answers;
    std::map<std::string, int> later; // seconds during which it only answers "pending"
    int delay_ms = 0;                 // beyond a unit's usual time
    bool clears_with_engine_off_only = false;
};

struct car {
    std::string name;
    std::string title;
    int protocol = 6;           // a bus_protocols() number
    std::uint8_t fill_byte = 0; // of CAN frames
    std::string vin;            // 17 characters, or empty for a car that does not report it
    engine_data engine;
    std::vector<control_unit> units;
};

// Moves a car to another bus; its units' addresses follow.
void change_protocol(car& the_car, const bus_protocol& protocol);
