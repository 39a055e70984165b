#include "command_line.h"

#include "commands.h"
#include "mac_toolies.h"
#include "parameters.h"
#include "sheet.h"
#include "supported_scan.h"
#include "text.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdint>
#include <limits>

namespace {

// A path may contain colons; only digits after the last one are a speed.
void take_serial_port(cli_request& asked, const std::string& name, const std::string& text) {
    const std::size_t colon = text.rfind(':');
    const bool with_speed = colon != std::string::npos && colon + 1 < text.size() &&
                            text.find_first_not_of("0123456789", colon + 1) == std::string::npos;
    asked.serial_port = text.substr(0, with_speed ? colon : std::string::npos);
    if (with_speed)
        asked.serial_speed =
            read_number("the speed of " + name, text.substr(colon + 1), 300, 4'000'000);
}

// HOST:PORT; an IPv6 address stands in brackets. What begins like a path is a serial port.
void take_adapter(cli_request& asked, const std::string& name, const std::string& text) {
    if (text.starts_with('/'))
        return take_serial_port(asked, name, text);
    const std::size_t colon = text.rfind(':');
    if (colon == std::string::npos || colon == 0)
        throw usage_error(name + " needs HOST:PORT, such as 192.168.0.10:35000, or /dev/ttyUSB0");
    std::string host = text.substr(0, colon);
    if (host.size() > 2 && host.front() == '[' && host.back() == ']')
        host = host.substr(1, host.size() - 2);
    else if (host.find_first_of(":[]") != std::string::npos)
        throw usage_error(name + " needs an IPv6 address in brackets, such as [::1]:35000");
    asked.adapter_host = host;
    asked.adapter_port = text.substr(colon + 1);
    read_number<std::uint16_t>("the port of " + name, asked.adapter_port, 1, 65535);
}

// Six pairs of hexadecimal digits, with colons or dashes between them.
void take_bluetooth(cli_request& asked, const std::string& name, const std::string& text) {
    constexpr std::string_view FORM = "xx:xx:xx:xx:xx:xx";
    const auto fits = [](char c, char form) {
        return form == 'x' ? std::isxdigit(static_cast<unsigned char>(c)) != 0
                           : c == ':' || c == '-';
    };
    if (!std::ranges::equal(text, FORM, fits))
        throw usage_error(name + " needs an address such as 00:1D:A5:68:98:8B; see bluetooth-scan");
    asked.bluetooth = text;
}

double read_seconds(const std::string& name, const std::string& text) {
    return read_number(name, text, 0.001, 1e6);
}

// Two hex digits each, separated by commas, or "all".
void take_pids(cli_request& asked, const std::string& name, const std::string& text) {
    asked.pids.clear();
    asked.all_pids = text == "all";
    if (asked.all_pids)
        return;
    for (const std::string_view part : split(text, ",")) {
        std::string pid(part);
        std::ranges::transform(pid, pid.begin(), [](unsigned char c) { return std::toupper(c); });
        if (pid.size() != 2 || !is_hex(pid))
            throw usage_error(name +
                              " needs two hex digits for each parameter, such as 0D,0C, or all");
        if (!is_decoded(mac_toolies::convertStr2Byte(pid)))
            throw usage_error(name + ": " + pid + " is no parameter that is decoded");
        asked.pids.push_back(pid);
    }
}

void take_sections(cli_request& asked, const std::string& name, const std::string& text) {
    for (const std::string_view part : split(text, ",")) {
        if (std::ranges::find(section_names(), part) == section_names().end())
            throw usage_error(name + ": " + std::string(part) + " is no section of a report");
        asked.report_sections.emplace_back(part);
    }
}

// "c" and "0C" are the same PID.
void take_chart_pid(cli_request& asked, const std::string& name, const std::string& text) {
    if (!is_hex(text) || text.size() > 2)
        throw usage_error(name + " is two hex digits, such as 0C");
    asked.chart_pids.push_back(pid_text(mac_toolies::convertStr2Byte(text)));
}

using row = option_row<cli_request>;
using text = const std::string&;

// Options of single commands come first. "car" means every command that talks to a car.
constexpr std::array OPTIONS = {
    row{{"--yes", "", "confirm clearing", "clear"},
        [](cli_request& asked, text, text) { asked.yes = true; }},
    row{{"--pids", "PID,...|all",
         "parameters of service 01, two hex digits each, or all that the car\n"
         "supports; else the user's. Unsupported ones are reported and left out",
         "live"},
        take_pids},
    row{{"--run", "log|fuel|o2|boost",
         "what to sample: the parameters (log, the default), fuel economy, oxygen\nsensors or "
         "boost",
         "live"},
        [](cli_request& asked, text, text value) { asked.run = value; }},
    row{{"--seconds", "N", "end so many seconds after the first request of the run", "live",
         "--cycles"},
        [](cli_request& asked, text name, text value) {
            asked.seconds = read_seconds(name, value);
        }},
    row{{"--cycles", "N", "end after so many cycles; without either Ctrl+C ends it", "live"},
        [](cli_request& asked, text name, text value) {
            asked.cycles =
                read_number(name, value, 1ULL, std::numeric_limits<unsigned long long>::max());
        }},
    row{{"--log", "", "write a run log, as the window does", "live"},
        [](cli_request& asked, text, text) { asked.log = true; }},
    row{{"--fast", "",
         "request several values at once and wait no longer than needed, as far as the\n"
         "adapter and the car prove able to; some cars do not like it",
         "live"},
        [](cli_request& asked, text, text) { asked.fast = true; }},
    row{{"--units", "metric|imperial", "units of the texts; else those of the settings", "decode"},
        [](cli_request& asked, text, text value) { asked.units = value; }},
    row{{"--standard", "", "what the standard means where a run or the table misleads",
         "decode mode6"},
        [](cli_request& asked, text, text) { asked.standard = true; }},
    row{{"--pid", "PID", "parameter to draw, two hex digits; one or two", "chart"}, take_chart_pid},
    row{{"-o", "FILE.png", "the picture to write", "chart"},
        [](cli_request& asked, text, text value) { asked.picture = value; }},
    row{{"--scale", "N", "make the picture so many times as large, 0.1 to 8", "chart"},
        [](cli_request& asked, text name, text value) {
            asked.scale = read_number(name, value, 0.1, 8.0);
        }},
    row{{"--dial", "", "the last value on a dial instead", "chart"},
        [](cli_request& asked, text, text) { asked.dial = true; }},
    row{{"--txt", "", "name the table .txt", "export"},
        [](cli_request& asked, text, text) { asked.as_txt = true; }},
    row{{"--time", "",
         "add a first column with the time of each round, in seconds since the first\n"
         "request, from the log's companion file (LOG.times)",
         "export"},
        [](cli_request& asked, text, text) { asked.with_time = true; }},
    row{{"--html", "FILE", "write the sheet to an HTML file instead", "report",
         "--pdf --json --text"},
        [](cli_request& asked, text, text value) { asked.report_html = value; }},
    row{{"--pdf", "FILE", "write it to a PDF, ready to print", "report", "--json --text"},
        [](cli_request& asked, text, text value) { asked.report_pdf = value; }},
    row{{"--text", "", "print it as text (the default)", "report", "--json"},
        [](cli_request& asked, text, text) { asked.report_text = true; }},
    row{{"--paper", "a4|letter", "of the PDF; else the usual size in the user's country", "report"},
        [](cli_request& asked, text, text value) { asked.paper = value; }},
    row{{"--hide-vin", "", "hide the last six characters of the VIN, in the bytes too", "report"},
        [](cli_request& asked, text, text) { asked.hide_vin = true; }},
    row{{"--only", "SECTION,...",
         "leave out all other sections: vehicle, readings, adapter, units, codes,\n"
         "frames, readiness, cleared, tests, counters, unread",
         "report"},
        take_sections},
    row{{"--open", "FILE.json", "use a saved report instead of a car", "report",
         "--demo --adapter --bluetooth --compare"},
        [](cli_request& asked, text, text value) { asked.report_opened = value; }},
    row{{"--compare", "", "show what changed between two saved reports", "report",
         "--demo --adapter --bluetooth"},
        [](cli_request& asked, text, text) { asked.compare = true; }},
    row{{"--demo", "[=CAR]",
         "talk to the built-in virtual car; kestrom-virtual-car --list names the cars",
         "window car", "--adapter --bluetooth"},
        [](cli_request& asked, text, text value) {
            asked.demo = true;
            asked.demo_car = value;
        }},
    row{{"--adapter", "HOST:PORT|PATH[:SPEED]",
         "talk to this Wi-Fi adapter, or to the one at this serial port, such as\n"
         "/dev/ttyUSB0; without a speed, the usual ones are tried",
         "window car", "--bluetooth"},
        take_adapter},
    row{{"--bluetooth", "ADDRESS", "talk to this Bluetooth adapter, without asking", "window car"},
        take_bluetooth},
    row{{"--record", "FILE",
         "write the whole conversation with the adapter to FILE, for\n"
         "kestrom-virtual-car --replay FILE; it contains what the car reports,\n"
         "including its identification number (VIN)",
         "window car"},
        [](cli_request& asked, text, text value) { asked.record = value; }},
    row{{"--screen", "codes|live|report|prefs|expert", "open the window with this screen",
         "window"},
        [](cli_request& asked, text, text value) { asked.screen = value; }},
    row{{"--screenshot", "FILE.png", "save a picture of the window and exit", "window car"},
        [](cli_request& asked, text, text value) { asked.screenshot = value; }},
    row{{"--quit-when-shown", "", "exit once the window has been painted (to measure the start)",
         "window"},
        [](cli_request& asked, text, text) { asked.quit_when_shown = true; }},
    row{{"--json", "", "print JSON; docs/json holds the schemas",
         "car decode vin mode6 export lookup bluetooth-scan serial-ports"},
        [](cli_request& asked, text, text) { asked.json = true; }},
    row{{"--timeout", "SECONDS", "time limit for the whole command (default 60; none for live)",
         "car bluetooth-scan"},
        [](cli_request& asked, text name, text value) {
            asked.timeout_seconds = read_seconds(name, value);
        }},
    row{{"--settings", "FILE", "use this settings file"},
        [](cli_request& asked, text, text value) { asked.settings = value; }},
    row{{"--help", "", "show this text; after a command, more about it"},
        [](cli_request& asked, text, text) { asked.help = true; }},
    row{{"-h", "", "the same"}, [](cli_request& asked, text, text) { asked.help = true; }},
    row{{"--version", "", "the version"},
        [](cli_request& asked, text, text) { asked.version = true; }},
};

// "kestrom help COMMAND" is the same as "kestrom COMMAND --help".
void take_words(cli_request& asked, std::vector<std::string> words) {
    if (!asked.help && !words.empty() && words[0] == HELP) {
        if (words.size() > 2)
            throw usage_error("help does not take the argument " + words[2]);
        asked.help = true;
        words.erase(words.begin());
    }
    if (words.empty())
        return;
    asked.command = words[0];
    asked.arguments.assign(words.begin() + 1, words.end());
    if (!find_command(asked.command))
        throw usage_error("unknown command " + asked.command);
}

void check_command(const cli_request& asked, const words_read& words) {
    const command_row* command = find_command(asked.command);
    const auto subjects = subjects_of(command);
    check_belonging(all_options(), words, subjects,
                    command ? "the command " + asked.command : "the window, but with a command");
    if (!command)
        return;
    if (asked.arguments.size() < command->least)
        throw usage_error(asked.command + " needs " + std::string(command->arguments));
    if (asked.arguments.size() > command->most)
        throw usage_error(asked.command + " does not take the argument " +
                          asked.arguments[command->most]);
    if (command->check)
        command->check(asked);
}

} // namespace

std::span<const option_text> all_options() {
    static const std::vector<option_text> TEXTS = texts_of(std::span<const row>(OPTIONS));
    return TEXTS;
}

parsed_command_line parse_command_line(std::span<const std::string> arguments) {
    parsed_command_line read;
    try {
        const words_read words = read_words(all_options(), arguments);
        for (const auto& [number, value] : words.options)
            OPTIONS[number].take(read.asked, std::string(OPTIONS[number].text.name), value);
        take_words(read.asked, words.others);
        if (!read.asked.help && !read.asked.version)
            check_command(read.asked, words);
    } catch (const usage_error& why) {
        read.error = why.what();
        for (const std::string& word : arguments) // whose help is more specific
            if (read.asked.command.empty() && find_command(word))
                read.asked.command = word;
    }
    return read;
}

std::string complaint_about(const parsed_command_line& senseless) {
    const std::string& command = senseless.asked.command;
    return "kestrom: " + senseless.error + "\nTry 'kestrom " +
           (find_command(command) ? command + " " : "") + "--help'.\n";
}
