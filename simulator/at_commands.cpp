#include "at_commands.h"

#include "hex_text.h"
#include "programmable_parameters.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace {

using answer = std::optional<std::string>;

struct call {
    adapter_state& state;
    const at_surroundings& car;
    std::string_view args; // what matched the pattern's "#" (hex digit) and "." (any character)

    adapter_settings& settings() const { return state.settings; }
    std::uint32_t number() const { return hex_number(args); }
    bool on() const { return args == "1"; }
};

std::string version(const adapter_state& state) {
    return state.clone ? "ELM327 v2.1" : "ELM327 v1.5";
}

answer ok(const call&) {
    return "OK";
}
answer unknown(const call&) {
    return std::nullopt;
}

// A switch: its letters, then 0 or 1.
template <bool adapter_settings::*setting>
answer toggle(const call& c) {
    if (c.args != "0" && c.args != "1")
        return std::nullopt;
    c.settings().*setting = c.on();
    return "OK";
}

answer restart(const call& c) {
    c.state.reset();
    return version(c.state);
}
answer identify(const call& c) {
    return version(c.state);
}
answer set_defaults(const call& c) {
    c.state.defaults();
    return "OK";
}

answer volts(const call& c) {
    char text[32];
    const int tenths = int(c.car.battery_volts * c.state.memory.voltage_factor * 10 + 0.5);
    std::snprintf(text, sizeof text, "%d.%dV", tenths / 10, tenths % 10);
    return text;
}
// CV dddd: the voltage is now dd.dd; 0000 restores the factory setting.
answer calibrate_volts(const call& c) {
    double wanted = 0;
    for (const char digit : c.args) {
        if (digit > '9')
            return std::nullopt;
        wanted = wanted * 10 + (digit - '0');
    }
    c.state.memory.voltage_factor = wanted > 0 ? wanted / 100 / c.car.battery_volts : 1;
    return "OK";
}
answer ignition(const call& c) {
    return c.car.ignition ? "ON" : "OFF";
}

answer protocol_text(const call& c) {
    return c.state.protocol_text();
}
answer protocol_number(const call& c) {
    return c.state.protocol_number();
}

template <bool search_others, bool remember>
answer choose_protocol(const call& c) {
    if (c.number() > 12)
        return std::nullopt;
    c.state.choose_protocol(int(c.number()), search_others, remember);
    return "OK";
}
answer forget_protocol(const call& c) {
    c.state.choose_protocol(0, true, true);
    return "OK";
}
answer close_protocol(const call& c) {
    c.state.close_bus();
    return "OK";
}

answer adaptive_timing(const call& c) {
    if (c.number() > 2)
        return std::nullopt;
    c.settings().adaptive_timing = int(c.number());
    return "OK";
}
// ST 00 restores the default of 200 ms.
answer timeout(const call& c) {
    c.settings().timeout = c.number() == 0 ? 0x32 : int(c.number());
    return "OK";
}

answer set_header(const call& c) {
    const std::string digits = (c.args.size() % 2 ? "0" : "") + std::string(c.args);
    c.settings().header = hex_bytes(digits);
    return "OK";
}
answer long_messages(const call& c) {
    c.settings().long_messages = true;
    return "OK";
}
answer normal_messages(const call& c) {
    c.settings().long_messages = false;
    return "OK";
}

answer filter(const call& c) {
    c.settings().can_filter = c.number();
    return "OK";
}
answer mask(const call& c) {
    c.settings().can_mask = c.number();
    return "OK";
}
answer receive_address(const call& c) {
    if (c.args.empty()) {
        c.settings().can_filter.reset();
        c.settings().can_mask.reset();
        return "OK";
    }
    c.settings().can_filter = c.number();
    c.settings().can_mask = 0x1FFFFFFF;
    return "OK";
}
answer receive_automatically(const call& c) {
    c.settings().can_filter.reset();
    c.settings().can_mask.reset();
    return "OK";
}
// Transmit and receive error counters of the CAN controller.
answer can_status(const call&) {
    return "T:00 R:00";
}

// The two key bytes of the last slow or fast initiation.
answer key_words(const call& c) {
    const bus_protocol* const bus = c.state.bus();
    if (!bus || !bus->is_iso())
        return std::nullopt;
    return bus->is_kwp() ? "1:E9 2:8F" : "1:08 2:08";
}
// Whether the chosen protocol has that initiation; the dialogue performs it.
template <bool fast>
answer initiate(const call& c) {
    const bus_protocol* const chosen = protocol_numbered(c.state.protocol);
    if (!chosen || !chosen->is_iso() || (chosen->kind == bus_kind::kwp_fast) != fast)
        return std::nullopt;
    return "";
}

answer dump_buffer(const call& c) {
    byte_string shown = c.state.last_message;
    const auto length = std::uint8_t(shown.size());
    shown.resize(12, 0);
    shown.insert(shown.begin(), length);
    return hex_text(shown, c.settings().spaces);
}

answer device_description(const call&) {
    return "OBDII to RS232 Interpreter";
}
answer device_identifier(const call& c) {
    return c.state.memory.identifier.empty() ? answer() : answer(c.state.memory.identifier);
}
answer set_identifier(const call& c) {
    if (!c.state.memory.identifier.empty()) // can be set only once
        return std::nullopt;
    c.state.memory.identifier = c.args;
    return "OK";
}
answer save_byte(const call& c) {
    c.state.memory.stored_byte = std::uint8_t(c.number());
    return "OK";
}
answer read_byte(const call& c) {
    return hex_text({c.state.memory.stored_byte}, false);
}

answer parameter_summary_of(const call& c) {
    return parameter_summary(c.state);
}
answer parameter_value(const call& c) {
    return set_parameter(c.state, c.args);
}
answer parameter_on(const call& c) {
    return switch_parameter(c.state, c.args, true);
}
answer parameter_off(const call& c) {
    return switch_parameter(c.state, c.args, false);
}

struct command_row {
    std::string_view pattern; // "#" a hex digit, "." any character
    answer (*run)(const call&);
    bool clones_know = true;
};

constexpr std::array COMMANDS = {
    // The chip
    command_row{"Z", restart},
    command_row{"WS", restart},
    command_row{"D", set_defaults},
    command_row{"I", identify},
    command_row{"@1", device_description},
    command_row{"@2", device_identifier, false},
    command_row{"@3............", set_identifier, false},
    command_row{"SD##", save_byte, false},
    command_row{"RD", read_byte, false},
    command_row{"FE", ok, false},
    command_row{"LP", ok},
    command_row{"E#", toggle<&adapter_settings::echo>},
    command_row{"L#", toggle<&adapter_settings::line_feeds>},
    command_row{"M#", toggle<&adapter_settings::memory>},
    command_row{"BRD##", ok, false},
    command_row{"BRT##", ok, false},
    command_row{"PPS", parameter_summary_of, false},
    command_row{"PP##SV##", parameter_value, false},
    command_row{"PP##ON", parameter_on, false},
    command_row{"PP##OFF", parameter_off, false},
    // Supply
    command_row{"RV", volts},
    command_row{"CV####", calibrate_volts},
    command_row{"IGN", ignition, false},
    // Protocols
    command_row{"DP", protocol_text},
    command_row{"DPN", protocol_number},
    command_row{"PC", close_protocol},
    command_row{"SP00", forget_protocol},
    command_row{"SP#", choose_protocol<false, true>},
    command_row{"SPA#", choose_protocol<true, true>},
    command_row{"SP#A", choose_protocol<true, true>},
    command_row{"TP#", choose_protocol<false, false>},
    command_row{"TPA#", choose_protocol<true, false>},
    command_row{"TP#A", choose_protocol<true, false>},
    command_row{"SS", ok, false},
    // Requests and answers
    command_row{"H#", toggle<&adapter_settings::headers>},
    command_row{"S#", toggle<&adapter_settings::spaces>},
    command_row{"R#", toggle<&adapter_settings::responses>},
    command_row{"AL", long_messages},
    command_row{"NL", normal_messages},
    command_row{"AT#", adaptive_timing},
    command_row{"ST##", timeout},
    command_row{"SH###", set_header},
    command_row{"SH######", set_header},
    command_row{"AR", receive_automatically},
    command_row{"SR##", ok},
    command_row{"RA##", ok, false},
    command_row{"TA##", ok, false},
    command_row{"BD", dump_buffer, false},
    // J1850
    command_row{"IFR#", ok},
    command_row{"IFRH", ok, false},
    command_row{"IFRS", ok, false},
    // K line
    command_row{"KW", key_words},
    command_row{"KW#", ok, false},
    command_row{"FI", initiate<true>, false},
    command_row{"SI", initiate<false>, false},
    command_row{"BI", ok, false},
    command_row{"IB10", ok},
    command_row{"IB48", ok, false},
    command_row{"IB96", ok},
    command_row{"IIA##", ok, false},
    command_row{"SW##", ok},
    command_row{"WM##", ok},
    command_row{"WM####", ok},
    command_row{"WM######", ok},
    command_row{"WM########", ok},
    command_row{"WM##########", ok},
    command_row{"WM############", ok},
    // CAN
    command_row{"CAF#", toggle<&adapter_settings::can_formatting>},
    command_row{"CFC#", toggle<&adapter_settings::flow_control>},
    command_row{"D#", toggle<&adapter_settings::show_length>, false},
    command_row{"CF###", filter},
    command_row{"CF########", filter},
    command_row{"CM###", mask},
    command_row{"CM########", mask},
    command_row{"CRA", receive_address, false},
    command_row{"CRA###", receive_address},
    command_row{"CRA########", receive_address},
    command_row{"CP##", ok},
    command_row{"CS", can_status},
    command_row{"V#", ok},
    command_row{"FCSM#", ok},
    command_row{"FCSH###", ok},
    command_row{"FCSH########", ok},
    command_row{"FCSD##", ok},
    command_row{"FCSD####", ok},
    command_row{"FCSD######", ok},
    command_row{"FCSD########", ok},
    command_row{"FCSD##########", ok},
    command_row{"CSM0", ok, false},
    command_row{"CSM1", ok, false},
    command_row{"CEA", ok, false},
    command_row{"CEA##", ok, false},
    command_row{"RTR", ok, false},
    command_row{"PB####", ok, false},
    command_row{"JE", ok, false},
    command_row{"JS", ok, false},
    command_row{"JHF#", ok, false},
    command_row{"JTM1", ok, false},
    command_row{"JTM5", ok, false},
    // Monitoring a bus is refused: a car's gateway hides its traffic anyway.
    command_row{"MA", unknown},
    command_row{"MR##", unknown},
    command_row{"MT##", unknown},
};

// The characters that match the pattern's placeholders; absent when the command does not match.
std::optional<std::string> match(std::string_view pattern, std::string_view command) {
    if (pattern.size() != command.size())
        return std::nullopt;
    std::string args;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        if (pattern[i] == '#' ? !is_hex_digit(command[i])
                              : pattern[i] != '.' && pattern[i] != command[i])
            return std::nullopt;
        if (pattern[i] == '#' || pattern[i] == '.')
            args += command[i];
    }
    return args;
}

} // namespace

bool is_restart(std::string_view command) {
    return command == "Z" || command == "WS";
}

bool is_initiation(std::string_view command) {
    return command == "FI" || command == "SI";
}

std::optional<std::string> run_at_command(adapter_state& state, const at_surroundings& car,
                                          std::string_view command) {
    for (const command_row& row : COMMANDS) {
        const std::optional<std::string> args = match(row.pattern, command);
        if (!args || (state.clone && !row.clones_know))
            continue;
        return row.run({state, car, *args});
    }
    return std::nullopt;
}
