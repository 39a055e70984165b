// The diagnostic buses of cars and adapter: one row per protocol, with the adapter's numbers (1 to
// 9; 0 means automatic).
#pragma once

#include <chrono>
#include <span>
#include <string_view>

enum class bus_kind { j1850_pwm, j1850_vpw, iso_9141, kwp_slow, kwp_fast, can };

struct bus_protocol {
    int number;
    std::string_view name;        // as car files and --protocol write it
    std::string_view description; // the answer to "AT DP"
    bus_kind kind;
    bool extended_ids; // CAN with 29-bit identifiers
    int kilobits;      // CAN only: 250 or 500
    // Times of a real exchange.
    std::chrono::milliseconds try_time;   // how long a search waits here when no unit answers
    std::chrono::milliseconds init_time;  // waking the bus
    std::chrono::milliseconds first_byte; // from request to the first unit's answer
    std::chrono::milliseconds per_frame;  // each further frame
    std::chrono::milliseconds unit_gap;   // each further unit
    std::chrono::milliseconds pause;      // from the last message to the next request

    bool is_can() const { return kind == bus_kind::can; }
    bool is_iso() const {
        return kind == bus_kind::iso_9141 || kind == bus_kind::kwp_slow ||
               kind == bus_kind::kwp_fast;
    }
    bool is_kwp() const { return kind == bus_kind::kwp_slow || kind == bus_kind::kwp_fast; }
};

std::span<const bus_protocol> bus_protocols();
// Null for an unknown number or name.
const bus_protocol* protocol_numbered(int number);
const bus_protocol* protocol_named(std::string_view name);
// What "AT DP" answers for a number from 0 to 12, "AUTO" for 0. The adapter knows three buses that
// no car here has.
std::string_view protocol_description(int number);
