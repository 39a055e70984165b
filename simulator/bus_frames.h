// Turns the units' messages into frames on the bus, and these into the lines that the adapter
// shows. Headers and checksums: SAE J1850, ISO 9141-2, ISO 14230-2; frames of long messages: ISO
// 15765-2.
#pragma once

#include "adapter_state.h"
#include "vehicle.h"

#include <chrono>
#include <string>
#include <vector>

struct bus_frame {
    std::chrono::milliseconds at{0}; // after the request
    std::uint32_t address = 0;       // of the unit
    byte_string data; // CAN: with its protocol control bytes; else service data alone
    bool ends_message = true;
    bool damaged = false;
    std::uint8_t fill = 0; // padding of the unit's CAN frames
};

// In order of time, continuation frames padded; each unit answers `unit_gap` after the one before.
// Without flow control a long CAN message ends after its first frame.
std::vector<bus_frame> frames_on_bus(const std::vector<unit_answer>& answers,
                                     const bus_protocol& bus, std::uint8_t fill, bool flow_control,
                                     std::chrono::milliseconds unit_gap);

// The complete message on the bus, with header and checksum.
byte_string raw_frame(const bus_frame& frame, const bus_protocol& bus);

// The frame's lines as the settings show them, separated by "\r" (a first frame without headers has
// two).
std::string shown_frame(const bus_frame& frame, const bus_protocol& bus,
                        const adapter_settings& settings, bool padding);

// SAE J1850: polynomial 1D, start FF, result inverted.
std::uint8_t j1850_crc(const byte_string& bytes);
