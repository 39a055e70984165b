// Everything the adapter remembers: what a reset restores, what survives a reset, and the state of
// the bus.
#pragma once

#include "bus_protocols.h"
#include "car.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

// Restored by AT Z, AT WS and AT D.
struct adapter_settings {
    bool echo = true;
    bool line_feeds = false;
    bool headers = false;
    bool spaces = true;
    bool memory = true;
    bool long_messages = false;
    bool responses = true;
    int adaptive_timing = 1;
    int timeout = 0x32; // in steps of 4 ms
    bool can_formatting = true;
    bool flow_control = true;
    bool show_length = false;
    std::optional<byte_string> header;       // AT SH; absent: the protocol's default
    std::optional<std::uint32_t> can_filter; // AT CF, CRA
    std::optional<std::uint32_t> can_mask;   // AT CM, CRA
};

struct programmable_parameter {
    std::uint8_t value = 0xFF;
    bool on = false;
};

// Survives a reset and a lost connection.
struct adapter_memory {
    int protocol = 0; // 0: search
    bool automatic = true;
    std::string identifier; // AT @3
    std::uint8_t stored_byte = 0;
    double voltage_factor = 1;
    std::array<programmable_parameter, 48> parameters{};
};

struct adapter_state {
    adapter_settings settings;
    adapter_memory memory;
    int protocol = 0;      // chosen or found
    bool automatic = true; // a search for another is allowed
    bool bus_open = false;
    byte_string last_message; // as received, for AT BD
    bool clone = false;

    void reset();
    // Defaults; the bus stays as it is.
    void defaults();
    void choose_protocol(int number, bool search_others, bool remember);
    // Survives a reset, unless AT M0 forbids.
    void remember_protocol();
    void close_bus() { bus_open = false; }

    const bus_protocol* bus() const { return bus_open ? protocol_numbered(protocol) : nullptr; }
    std::string protocol_text() const;   // AT DP
    std::string protocol_number() const; // AT DPN
};
