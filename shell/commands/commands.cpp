#include "commands.h"

#include "command_functions.h"
#include "text.h"

#include <algorithm>

namespace {

constexpr std::size_t MANY = 10'000;

// A new command is a row here and a function; options of its own are rows in command_line.cpp.
constexpr command_row COMMANDS[] = {
    {"codes", 0, 0, "", "read lamp, trouble codes and readiness monitors",
     R"(With --json: one object, described in docs/json/codes.schema.json.
Exit status: 0 when the car reported its codes, 1 when it did not or a part could not be read.

Examples
  kestrom codes                                       the adapter of the settings
  kestrom --adapter 192.168.0.10:35000 codes --json
  kestrom --bluetooth 00:1D:A5:68:98:8B codes
  kestrom --adapter /dev/ttyUSB0:115200 codes
  kestrom --demo=diesel codes                         a car of kestrom-virtual-car --list
  kestrom --demo --screenshot codes.png codes
)",
     nullptr, nullptr, begin_codes},
    {"clear", 0, 0, "--yes", "clear the trouble codes",
     R"(Clears the codes and the results of the readiness monitors, which the car collects again over the
next drives. With --json: the object of the command codes.
Exit status: 0 when the car confirmed it, 1 when it did not.

Example
  kestrom --adapter 192.168.0.10:35000 clear --yes
)",
     check_clear, nullptr, begin_codes},
    {"send", 1, MANY, "COMMAND...", "send each command and print the raw reply",
     R"(A command is 1 to 38 plain characters: the adapter's own (AT ...) or a request to the car in hex
digits. With --json: one object, described in docs/json/send.schema.json.
Exit status: 0 when each was answered with a prompt, 1 when one was not.

Examples
  kestrom --adapter 192.168.0.10:35000 send "AT RV" "01 0C"
  kestrom --demo send "AT E0" "09 02" --json
)",
     check_send, nullptr, begin_send},
    {"pids", 0, 0, "", "list the parameters that the car supports, with names and units",
     R"(Asks every unit of the car for its parameters. One that Kestrom cannot decode is marked.
With --json: one object, described in docs/json/pids.schema.json.
Exit status: 0 when the car answered, 1 when it did not.

Examples
  kestrom --demo=hybrid pids
  kestrom --adapter 192.168.0.10:35000 pids --json
)",
     nullptr, nullptr, begin_pids},
    {"report", 0, 2, "[--compare A.json B.json]",
     "read everything the car reports about itself, on one sheet",
     R"(Lamp, codes of every kind by control unit, freeze frames, readiness, test results, identity and
counters, and what was not reported, with the reason. By default the sheet is printed as text. With
--json: one object, described in docs/json/report.schema.json, which --open and --compare take.
Exit status: 0 when the car reported anything, with a note on standard error when something is
missing; 1 when nothing could be read or written, 2 invalid arguments.

Examples
  kestrom --demo=diesel report
  kestrom report --pdf report.pdf --hide-vin
  kestrom report --json >before.json
  kestrom report --open before.json --html before.html
  kestrom report --compare before.json after.json
)",
     check_report, run_saved_report, begin_report},
    {"live", 0, 0, "", "sample continuously and print the values of each cycle",
     R"(Prints CSV: a header, then a line for each cycle as it completes. A summary follows on standard
error. Its seconds, and those of --seconds, count from the first request, not from connecting.
With --json: a line of JSON for each cycle and one for the summary (docs/json/live.schema.json).
Exit status: 0 when it ended as requested after at least one cycle, else 1.

Examples
  kestrom --demo live --pids 0C,0D --cycles 20
  kestrom --demo=diesel live --pids all --cycles 2
  kestrom --adapter 192.168.0.10:35000 live --seconds 60 --log >values.csv
  kestrom live --run boost --json | grep cycle
)",
     check_live, nullptr, begin_live},
    {"decode", 1, MANY, "REPLY...", "what replies to service 01 requests mean: text and number",
     R"(A line for each reply: the text, a tab, the number. A reply may write its line ends as \r and \n.
A run shows some parameters misleadingly (the
pressure of the evaporative system, catalyst temperatures, the commanded ratio, "V" after trims);
--standard gives their true values. With --json: docs/json/decode.schema.json.
Exit status: 0 success, 1 when a reply holds no value or is not a reply, 2 invalid arguments.

Examples
  kestrom decode "41 0C 1A F8" --units metric
  kestrom decode "41 05 7B" "NO DATA" --json
  kestrom decode "41 3C 11 94" --standard
)",
     check_decode, run_decode},
    {"vin", 1, 1, "REPLY", "the vehicle identification number in a reply to 09 02",
     R"(Prints N/A if there is none. With --json: docs/json/vin.schema.json.
Exit status: 0 success, 1 when it is incomplete, 2 invalid arguments.

Example
  kestrom vin "014\r0:490201314731\r1:4A4734554A35\r2:3643313132323330\r>"
)",
     nullptr, run_vin},
    {"mode6", 2, 2, "ID VALUE", "a test result scaled by its unit-and-scaling identifier",
     R"(Both are hex: two digits, and up to eight. With --standard the value has up to four, and identifiers
from 80 on are signed. With --json: docs/json/mode6.schema.json.
Exit status: 0 success, 2 invalid arguments.

Example
  kestrom mode6 16 01F4
)",
     check_mode6, run_mode6},
    {"chart", 1, 1, "LOG.gol --pid PID [--pid PID] -o FILE.png",
     "draw a run log as a chart, or its last value on a dial",
     R"(Prints the limits of the axes. A plain name that is not a file
here names a log in the log folder. A dial shows one parameter.
Exit status: 0 success, 1 the log or the picture failed, 2 invalid arguments.

Examples
  kestrom chart run.gol --pid 0C --pid 0D -o run.png --scale 2
  kestrom chart run.gol --pid 0C --dial -o dial.png
)",
     check_chart, run_chart},
    {"export", 1, 1, "LOG.gol", "turn a run log into a table (CSV) beside it",
     R"(A plain name that is not a file here names a log in the log folder. An existing export is never
overwritten. With --json: docs/json/export.schema.json.
Exit status: 0 success, 1 the log or the export failed, 2 invalid arguments.

Examples
  kestrom export log_Nov_15_2026-0254_33.gol
  kestrom export ./run.gol --txt --time
)",
     nullptr, run_export},
    {"lookup", 1, MANY, "CODE|TEXT", "what a trouble code means, or which codes mention some words",
     R"(A code's description, or every code whose description contains all of the words, in either case.
With --json: docs/json/lookup.schema.json.
Exit status: 0 success, 1 nothing was found, 2 invalid arguments.

Examples
  kestrom lookup P0301
  kestrom lookup "oil pressure"
)",
     check_lookup, run_lookup},
    {"bluetooth-scan", 0, 0, "", "list the Bluetooth devices that are paired or in range",
     R"(With --json: docs/json/bluetooth-scan.schema.json.
Exit status: 0 when a search was made, 1 when Bluetooth cannot be used.

Examples
  kestrom bluetooth-scan
  kestrom bluetooth-scan --timeout 5 --json
)",
     nullptr, run_bluetooth_scan},
    {"serial-ports", 0, 0, "", "list the serial ports, USB cables first",
     R"(With --json: docs/json/serial-ports.schema.json.
Exit status: 0, also when there is none.

Examples
  kestrom serial-ports
  kestrom --adapter /dev/ttyUSB0 codes
)",
     nullptr, run_serial_ports},
    {HELP, 0, 1, "[COMMAND]", "show what a command does, and its options",
     R"(The same as "kestrom COMMAND --help", or "kestrom --help" without a command.
Exit status: 0, or 2 when there is no such command.

Example
  kestrom help live
)"},
};

// In the help of the program: options of more than a few commands.
bool is_general(const option_text& option) {
    return goes_with(option, "window") || goes_with(option, "car");
}

std::vector<option_text> options_for(const command_row* command) {
    std::vector<option_text> listed;
    const auto subjects = subjects_of(command);
    for (const option_text& option : all_options())
        if (command
                ? std::ranges::any_of(subjects, [&](auto one) { return goes_with(option, one); })
                : is_general(option))
            listed.push_back(option);
    return listed;
}

// "live [--seconds N] [--log]": an option that the row's arguments name is no choice.
std::string synopsis(const command_row& command) {
    std::string line(command.name);
    line.append(command.arguments.empty() ? "" : " ").append(command.arguments);
    for (const option_text& option : options_for(&command))
        if (!option.belongs.empty() && !is_general(option) &&
            !contains(command.arguments, option.name))
            line.append(" [")
                .append(option.name)
                .append(option.value.empty() ? "" : " ")
                .append(option.value) += "]";
    return line;
}

std::string command_help(const command_row& command) {
    return "Usage: kestrom [OPTIONS] " + synopsis(command) + "\n\n" + std::string(command.summary) +
           "\n\n" + std::string(command.details) + "\nOptions\n" +
           option_lines(options_for(&command));
}

std::string command_list() {
    std::string text;
    for (const command_row& row : COMMANDS)
        text += help_line(std::string(row.name) + (row.arguments.empty() ? "" : " ") +
                              std::string(row.arguments),
                          row.summary);
    return text;
}

std::string program_help() {
    return R"(Usage: kestrom [OPTIONS] [COMMAND]

Reads a car's on-board diagnostics through an ELM327-type adapter. Without a command the window opens.

Commands (more: kestrom COMMAND --help)
)" + command_list() +
           R"(
Options
)" + option_lines(options_for(nullptr)) +
           R"(
Progress is shown on standard error if that is a terminal.

Exit status: 0 success, 1 the task failed or timed out, 2 invalid arguments (or a recording
that cannot be created or would overwrite a file).

Examples
  kestrom --demo codes
  kestrom --adapter 192.168.0.10:35000 codes --json
  kestrom --bluetooth 00:1D:A5:68:98:8B --record talk.jsonl codes
  kestrom --adapter 192.168.0.10:35000 send "AT RV" "01 0C"
  kestrom --demo live --pids 0C,0D --cycles 20
  kestrom decode "41 0C 1A F8" --units metric
  kestrom export log_Nov_15_2026-0254_33.gol
)";
}

} // namespace

std::span<const command_row> all_commands() {
    return COMMANDS;
}

const command_row* find_command(std::string_view name) {
    const auto found = std::ranges::find(COMMANDS, name, &command_row::name);
    return found == std::end(COMMANDS) ? nullptr : found;
}

bool talks_to_car(const cli_request& asked) {
    const command_row* command = find_command(asked.command);
    return command && command->begin && asked.report_opened.empty() && !asked.compare;
}

std::vector<std::string_view> subjects_of(const command_row* command) {
    if (!command)
        return {"window"};
    return command->begin ? std::vector<std::string_view>{command->name, "car"}
                          : std::vector<std::string_view>{command->name};
}

std::string help_text(const command_row* command) {
    return command ? command_help(*command) : program_help();
}
