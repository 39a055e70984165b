#include "virtual_car_options.h"

#include <array>
#include <cstdint>
#include <limits>

namespace {

struct request {
    virtual_car_options options;
    std::vector<fault> faults;
};

using row = option_row<request>;
using text = const std::string&;

void take_fault(request& asked, text, text value) {
    try {
        asked.faults.push_back(parse_fault(value));
    } catch (const std::invalid_argument& error) {
        throw usage_error(error.what());
    }
}

void take_protocol(request& asked, text name, text value) {
    if (!protocol_named(value))
        throw usage_error(name + ": there is no \"" + value + "\"; see --list");
    asked.options.protocol = value;
}

constexpr std::array OPTIONS = {
    row{{"--car", "NAME|FILE", "a car of --list or a car file (can11)", "", "--replay"},
        [](request& asked, text, text value) { asked.options.car = value; }},
    row{{"--port", "N", "TCP port, 0 for any free one (35000)"},
        [](request& asked, text name, text value) {
            asked.options.port = read_number(name, value, 0, 65535);
        }},
    row{{"--address", "IP", "where to listen (127.0.0.1)"},
        [](request& asked, text, text value) { asked.options.address = value; }},
    row{{"--protocol", "NAME", "put the car on another bus of --list", "", "--replay"},
        take_protocol},
    row{{"--latency", "MS", "time taken by every request, 0 for none (as on the car's bus)"},
        [](request& asked, text name, text value) {
            asked.options.adapter.latency =
                std::chrono::milliseconds(read_number(name, value, 0, 600000));
        }},
    row{{"--timing", "X", "the bus takes X times as long as a real one (1)"},
        [](request& asked, text name, text value) {
            asked.options.adapter.timing = read_number(name, value, 0.0, 100.0);
        }},
    row{{"--baud", "N", "the chip is behind a serial line of N baud, 0 for none (0)", "",
         "--replay"},
        [](request& asked, text name, text value) {
            asked.options.adapter.baud = read_number(name, value, 0, 10'000'000);
        }},
    row{{"--round-trip", "MS", "round-trip time of the radio (0)", "", "--replay"},
        [](request& asked, text name, text value) {
            asked.options.adapter.round_trip =
                std::chrono::milliseconds(read_number(name, value, 0, 60000));
        }},
    row{{"--speed", "X", "the car drives X times as fast as the clock (1)", "", "--replay"},
        [](request& asked, text name, text value) {
            asked.options.adapter.speed = read_number(name, value, 0.0, 1000.0);
        }},
    row{{"--seed", "N", "seed of the drive and of random faults (1)", "", "--replay"},
        [](request& asked, text name, text value) {
            asked.options.adapter.seed = read_number(name, value, std::uint64_t{0},
                                                     std::numeric_limits<std::uint64_t>::max());
        }},
    row{{"--fault", "NAME[=V]", "inject a fault of --list; may be given several times", "",
         "--replay"},
        take_fault},
    row{{"--replay", "FILE", "answer from a recording of kestrom --record instead of a car"},
        [](request& asked, text, text value) { asked.options.replay = value; }},
    row{{"--stdio", "", "use standard input and output instead of TCP"},
        [](request& asked, text, text) { asked.options.stdio = true; }},
    row{{"--pty", "", "act as a serial port: create a pseudo-terminal and print its path", "",
         "--stdio --port --address"},
        [](request& asked, text, text) { asked.options.pty = true; }},
    row{{"--list", "", "list cars, protocols and faults"},
        [](request& asked, text, text) { asked.options.list = true; }},
    row{{"--help", "", "show this text"},
        [](request& asked, text, text) { asked.options.help = true; }},
    row{{"-h", "", "the same"}, [](request& asked, text, text) { asked.options.help = true; }},
    row{{"--version", "", "the version"},
        [](request& asked, text, text) { asked.options.version = true; }},
};

} // namespace

virtual_car_options read_options(std::span<const std::string> arguments) {
    const words_read words = read_words(texts_of(std::span<const row>(OPTIONS)), arguments);
    if (!words.others.empty())
        throw usage_error("unknown argument " + words.others[0]);
    request asked;
    for (const auto& [number, value] : words.options)
        OPTIONS[number].take(asked, std::string(OPTIONS[number].text.name), value);
    asked.options.adapter.faults = fault_set(std::move(asked.faults));
    return asked.options;
}

std::string usage() {
    return "Usage: kestrom-virtual-car [OPTION]...\n\n"
           "A car with an ELM327-type adapter, to try Kestrom without "
           "either.\n\nOptions\n" +
           option_lines(texts_of(std::span<const row>(OPTIONS))) +
           R"(
Exit status: 0 success, 1 cannot listen or write, 2 invalid arguments, car file or recording.

Examples
  kestrom-virtual-car --car diesel
  kestrom-virtual-car --car can11 --latency 0 --fault split_prompt
  kestrom-virtual-car --replay talk.jsonl --timing 0.1
then  kestrom --adapter 127.0.0.1:35000 codes
  kestrom-virtual-car --pty
then  kestrom --adapter PATH codes, with the path that it printed
)";
}
