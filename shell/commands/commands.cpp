#include "commands.h"

#include "command_line.h"

#include <algorithm>

namespace {

constexpr std::size_t MANY = 10'000;

constexpr command_row COMMANDS[] = {
    {"codes", 0, 0, talks_to::car, "codes [--json]",
     "read lamp, trouble codes and readiness monitors",
     R"(With --json: one object, described in docs/json/codes.schema.json.
Exit status: 0 when the car told its codes, 1 when it did not or a part could not be read.

Examples
  kestrom codes                                       the adapter of the settings
  kestrom --adapter 192.168.0.10:35000 codes --json
  kestrom --bluetooth 00:1D:A5:68:98:8B codes
  kestrom --demo=diesel codes                         a car of kestrom-virtual-car --list
  kestrom --demo --screenshot codes.png codes
)"},
    {"clear", 0, 0, talks_to::car, "clear --yes", "clear the trouble codes",
     R"(Clears the codes and with them the results of the readiness monitors, which the car works out
anew over the next drives. With --json: the object of the command codes.
Exit status: 0 when the car confirmed it, 1 when it did not.

Example
  kestrom --adapter 192.168.0.10:35000 clear --yes
)"},
    {"send", 1, MANY, talks_to::car, "send COMMAND... [--json]",
     "send each command and print the raw reply",
     R"(A command is 1 to 38 plain characters: the adapter's own (AT ...) or a request to the car in hex
digits. With --json: one object, described in docs/json/send.schema.json.
Exit status: 0 when each was answered with a prompt, 1 when one was not.

Examples
  kestrom --adapter 192.168.0.10:35000 send "AT RV" "01 0C"
  kestrom --demo send "AT E0" "09 02" --json
)"},
    {"pids", 0, 0, talks_to::car, "pids [--json]",
     "list the parameters that the car supports, with names and units",
     R"(Asks every unit of the car, as far as each group of parameters announces the next. A parameter that
cannot be told in words or numbers is marked so. With --json: one object, described in
docs/json/pids.schema.json.
Exit status: 0 when the car told, 1 when it did not.

Examples
  kestrom --demo=hybrid pids
  kestrom --adapter 192.168.0.10:35000 pids --json
)"},
    {"live", 0, 0, talks_to::car,
     "live [--pids 0D,0C|all] [--run log|fuel|o2|boost] [--seconds N | --cycles N] [--log] [--fast] "
     "[--json]",
     "sample without pause and print the values of each cycle",
     R"(  --pids PID,...     parameters of service 01, two hex digits each, or all that the car
                     supports; else the user's. What it does not support is told and left out
  --run KIND         log (the default), fuel economy, o2 (oxygen sensors) or boost
  --seconds N        end so many seconds after the first request of the run
  --cycles N         end after so many cycles; without either Ctrl+C ends it
  --log              write a run log, as the window does
  --fast             ask for several values at once and wait no longer than needed, as far as adapter
                     and car prove that they can; some cars do not like it

Prints CSV with a header, a line for each cycle as it completes; a summary follows on standard error;
its seconds, and those of --seconds, do not count the way to the car.
With --json: a line of JSON for each cycle and one for the summary (docs/json/live.schema.json).
Exit status: 0 when it ended as asked after at least one cycle, else 1.

Examples
  kestrom --demo live --pids 0C,0D --cycles 20
  kestrom --demo=diesel live --pids all --cycles 2
  kestrom --adapter 192.168.0.10:35000 live --seconds 60 --log >values.csv
  kestrom live --run boost --json | grep cycle
)"},
    {"decode", 0, MANY, talks_to::nobody,
     "decode REPLY... [--units metric|imperial] [--standard] [--json]",
     "what replies to service 01 requests mean: text and number",
     R"(A line for each reply: the text, a tab, the number. A reply may write its line ends as \r and \n.
Without --units those of the settings hold. A run shows some parameters in a way that misleads (the
pressure of the evaporative system, catalyst temperatures, the commanded ratio, "V" behind trims);
--standard gives their true values. With --json: docs/json/decode.schema.json.
Exit status: 0 success, 1 when a reply holds no value or is none, 2 the arguments make no sense.

Examples
  kestrom decode "41 0C 1A F8" --units metric
  kestrom decode "41 05 7B" "NO DATA" --json
  kestrom decode "41 3C 11 94" --standard
)"},
    {"vin", 0, MANY, talks_to::nobody, "vin REPLY [--json]",
     "the vehicle identification number in a reply to 09 02",
     R"(Prints N/A when there is none in it. With --json: docs/json/vin.schema.json.
Exit status: 0 success, 1 when it is not whole, 2 the arguments make no sense.

Example
  kestrom vin "014\r0:490201314731\r1:4A4734554A35\r2:3643313132323330\r>"
)"},
    {"mode6", 0, MANY, talks_to::nobody, "mode6 ID VALUE [--standard] [--json]",
     "a test result scaled by its unit-and-scaling identifier",
     R"(Both in hex digits, the value of two bytes at most. With --standard identifiers from 80 on are
signed. With --json: docs/json/mode6.schema.json.
Exit status: 0 success, 2 the arguments make no sense.

Example
  kestrom mode6 16 01F4
)"},
    {"chart", 0, MANY, talks_to::nobody,
     "chart LOG.gol --pid PID [--pid PID] -o FILE.png [--scale N] [--dial]",
     "draw a run log as a chart, or its last value on a dial",
     R"(Prints the limits of the axes. --scale is a number from 0.1 to 8. A plain name that is no file
here is that of a log in the log folder. A dial shows one parameter.
Exit status: 0 success, 1 the log or the picture failed, 2 the arguments make no sense.

Examples
  kestrom chart run.gol --pid 0C --pid 0D -o run.png --scale 2
  kestrom chart run.gol --pid 0C --dial -o dial.png
)"},
    {"export", 0, MANY, talks_to::nobody, "export LOG.gol [--txt] [--time] [--json]",
     "turn a run log into a table (CSV) beside it",
     R"(A plain name that is no file here is that of a log in the log folder. An export that is there is
never overwritten. --txt ends its name in .txt; --time puts when each round was first, in seconds since
the first request, from the log's companion (its name with .times behind). With --json: docs/json/export.schema.json.
Exit status: 0 success, 1 the log or the export failed, 2 the arguments make no sense.

Examples
  kestrom export log_Nov_15_2026-0254_33.gol
  kestrom export ./run.gol --txt --time
)"},
    {"lookup", 0, MANY, talks_to::nobody, "lookup CODE|TEXT [--json]",
     "what a trouble code means, or which codes speak of something",
     R"(A code's description, or every code whose description holds all of the words, in letters of any
case. With --json: docs/json/lookup.schema.json.
Exit status: 0 success, 1 nothing was found, 2 the arguments make no sense.

Examples
  kestrom lookup P0301
  kestrom lookup "oil pressure"
)"},
    {BLUETOOTH_SCAN, 0, 0, talks_to::bluetooth, "bluetooth-scan [--json]",
     "list the Bluetooth devices that are paired or in reach",
     R"(--timeout SECONDS shortens the search. With --json: docs/json/bluetooth-scan.schema.json.
Exit status: 0 when a search was made, 1 when Bluetooth cannot be used.

Examples
  kestrom bluetooth-scan
  kestrom bluetooth-scan --timeout 5 --json
)"},
};

constexpr std::size_t SUMMARY_COLUMN = 24;

std::string command_list() {
    std::string text;
    for (const command_row& row : COMMANDS) {
        std::string line = "  " + std::string(row.synopsis);
        if (line.size() + 2 > SUMMARY_COLUMN)
            line += "\n" + std::string(SUMMARY_COLUMN, ' ');
        else
            line.resize(SUMMARY_COLUMN, ' ');
        text += line + std::string(row.summary) + "\n";
    }
    return text;
}

} // namespace

std::span<const command_row> all_commands() {
    return COMMANDS;
}

const command_row* find_command(std::string_view name) {
    const auto found = std::ranges::find(COMMANDS, name, &command_row::name);
    return found == std::end(COMMANDS) ? nullptr : found;
}

std::string command_help(const command_row& command) {
    return "Usage: kestrom [OPTIONS] " + std::string(command.synopsis) + "\n\n" +
           std::string(command.summary) + "\n\n" + std::string(command.details) +
           "\n'kestrom --help' lists the options.\n";
}

std::string usage_text() {
    return R"(Usage: kestrom [OPTIONS] [COMMAND]

Reads a car's on-board diagnostics through an ELM327-type adapter. Without a command the window opens.

Commands ('kestrom COMMAND --help' tells more)
)" + command_list() +
           R"(
Options
  --demo[=CAR]          talk to the built-in virtual car
  --adapter HOST:PORT   talk to this Wi-Fi adapter instead of the one in the settings
  --bluetooth ADDRESS   talk to this Bluetooth adapter, without asking
  --record FILE         write the whole conversation with the adapter to FILE, for
                        kestrom-virtual-car --replay FILE; it holds what the car tells,
                        its identification number (VIN) among it
  --settings FILE       use this settings file
  --screen NAME         open with codes, live, prefs or expert
  --screenshot FILE     save a picture of the window (PNG) and leave
  --quit-when-shown     leave once the window has been painted (for measuring the start)
  --json                print JSON; docs/json holds the schemas
  --timeout SECONDS     bound for the whole command (default 60; none for live)
  --help (-h), --version

Progress is told on standard error when that is a terminal.

Exit status: 0 success, 1 the task failed or timed out, 2 the arguments make no sense (a recording
that cannot be made or would overwrite a file among them).

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
