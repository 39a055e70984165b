// The command line: the request, parsed from the arguments without side effects.
#pragma once

#include "option_table.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

struct cli_request {
    std::string command;                // empty: the window
    std::vector<std::string> arguments; // of the command
    bool help = false;
    bool version = false;

    // The adapter, and files.
    bool demo = false;
    std::string demo_car;                    // empty: the default car
    std::optional<std::string> adapter_host; // with adapter_port, as typed
    std::string adapter_port;
    std::optional<std::string> serial_port; // path of an adapter's device file
    int serial_speed = 0;                   // 0: found by trying
    std::optional<std::string> bluetooth;   // an adapter's address, as typed
    std::optional<std::string> record;      // the conversation, to this file
    std::optional<std::string> settings;

    // Window
    std::string screen; // "codes", "live", "prefs", "expert" or empty
    std::optional<std::string> screenshot;
    bool quit_when_shown = false;

    // Commands
    bool json = false;
    bool yes = false;
    std::optional<double> timeout_seconds; // absent: the command's own limit
    std::vector<std::string> pids;         // of a live run; empty: the user's
    bool all_pids = false;                 // all that the car supports
    std::string run = "log";               // "log", "fuel", "o2" or "boost"
    double seconds = 0;                    // of a live run; 0: no end
    unsigned long long cycles = 0;         // likewise
    bool log = false;
    bool fast = false;
    std::string units; // "metric", "imperial"; empty: those of the settings
    bool standard = false;
    std::vector<std::string> chart_pids;
    std::string picture;
    double scale = 1;
    bool dial = false;
    std::string report_html, report_pdf, report_opened; // files; empty: not requested
    bool report_text = false, hide_vin = false, compare = false;
    std::string paper;                        // "a4", "letter"; empty: the country's
    std::vector<std::string> report_sections; // empty: all
    bool as_txt = false;
    bool with_time = false;

    bool without_display() const { return !command.empty() || screenshot; }
};

// Either the request or, in `error`, why the arguments are invalid.
struct parsed_command_line {
    cli_request asked;
    std::string error;
};

parsed_command_line parse_command_line(std::span<const std::string> arguments);

// The message about invalid arguments, complete lines.
std::string complaint_about(const parsed_command_line& senseless);

// The table of options.
std::span<const option_text> all_options();
