// The command line: what was asked for, read from the arguments without side effects.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

inline constexpr char BLUETOOTH_SCAN[] = "bluetooth-scan";

struct cli_request {
    bool demo = false;
    std::string demo_car;                    // empty: the default car
    std::optional<std::string> adapter_host; // with adapter_port, as typed
    std::string adapter_port;
    std::optional<std::string> bluetooth; // an adapter's address, as typed
    std::optional<std::string> record;    // the conversation, to this file
    std::optional<std::string> settings;
    std::string screen; // "codes", "live", "prefs", "expert" or empty
    std::optional<std::string> screenshot;
    std::string command;                // empty: the window
    std::vector<std::string> arguments; // of the command
    bool yes = false;
    bool json = false;
    std::optional<double> timeout_seconds; // absent: the command's own bound
    std::vector<std::string> pids;         // of a live run; empty: the user's
    bool all_pids = false;                 // all that the car supports
    std::string run = "log";               // "log", "fuel", "o2" or "boost"
    double seconds = 0;                    // of a live run; 0: no end
    unsigned long long cycles = 0;         // likewise
    bool log = false;
    bool fast = false;
    bool quit_when_shown = false;
    bool help = false;
    bool version = false;

    bool without_display() const { return !command.empty() || screenshot; }
};

// Either what was asked for or, with `error` filled, why it makes no sense.
struct parsed_command_line {
    cli_request asked;
    std::string error;
};

// Commands that need no adapter and no window.
bool decodes(std::string_view command);

parsed_command_line parse_command_line(std::span<const std::string> arguments);
