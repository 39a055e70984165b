#include "virtual_car_options.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace {

// A number in [lowest, highest], all of the text.
template <typename number>
number read_number(const std::string& option, const std::string& text, number lowest,
                   number highest) {
    number value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() ||
        !(value >= lowest && value <= highest))
        throw usage_error(option + ": \"" + text + "\" is not a number that it takes");
    return value;
}

using take = void (*)(virtual_car_options&, std::vector<fault>&, const std::string& option,
                      const std::string& value);

struct option_row {
    std::string_view name;
    std::string_view value; // empty: a switch
    std::string_view effect;
    take set;
};

const std::array OPTIONS = {
    option_row{"--car", "NAME|FILE", "a car of --list or a car file (can11)",
               [](auto& o, auto&, auto&, auto& v) { o.car = v; }},
    option_row{"--port", "N", "TCP port, 0 for any free one (35000)",
               [](auto& o, auto&, auto& n, auto& v) { o.port = read_number(n, v, 0, 65535); }},
    option_row{"--address", "IP", "where to listen (127.0.0.1)",
               [](auto& o, auto&, auto&, auto& v) { o.address = v; }},
    option_row{"--protocol", "NAME", "put the car on another bus",
               [](auto& o, auto&, auto&, auto& v) { o.protocol = v; }},
    option_row{"--latency", "MS",
               "every request takes that long, 0 for no time (as on the car's bus)",
               [](auto& o, auto&, auto& n, auto& v) {
                   o.adapter.latency = std::chrono::milliseconds(read_number(n, v, 0, 600000));
               }},
    option_row{
        "--timing", "X", "the bus takes X times as long as a genuine one (1)",
        [](auto& o, auto&, auto& n, auto& v) { o.adapter.timing = read_number(n, v, 0.0, 100.0); }},
    option_row{"--baud", "N", "the chip speaks over a serial line of N baud, 0 for none (0)",
               [](auto& o, auto&, auto& n, auto& v) {
                   o.adapter.baud = read_number(n, v, 0, 10'000'000);
               }},
    option_row{"--round-trip", "MS", "the radio takes MS milliseconds there and back (0)",
               [](auto& o, auto&, auto& n, auto& v) {
                   o.adapter.round_trip = std::chrono::milliseconds(read_number(n, v, 0, 60000));
               }},
    option_row{
        "--speed", "X", "the car drives X times as fast as the clock (1)",
        [](auto& o, auto&, auto& n, auto& v) { o.adapter.speed = read_number(n, v, 0.0, 1000.0); }},
    option_row{"--seed", "N", "another drive, other accidents (1)",
               [](auto& o, auto&, auto& n, auto& v) {
                   o.adapter.seed = read_number<std::uint64_t>(n, v, 0, UINT64_MAX);
               }},
    option_row{"--fault", "NAME[=V]", "what goes wrong; may be given several times",
               [](auto&, auto& faults, auto&, auto& v) {
                   try {
                       faults.push_back(parse_fault(v));
                   } catch (const std::invalid_argument& error) {
                       throw usage_error(error.what());
                   }
               }},
    option_row{"--replay", "FILE", "answer from a recording of kestrom --record instead of a car",
               [](auto& o, auto&, auto&, auto& v) { o.replay = v; }},
    option_row{"--stdio", "", "speak on standard input and output instead of TCP",
               [](auto& o, auto&, auto&, auto&) { o.stdio = true; }},
    option_row{"--list", "", "list cars, protocols and faults",
               [](auto& o, auto&, auto&, auto&) { o.list = true; }},
    option_row{"--help", "", "this text", [](auto& o, auto&, auto&, auto&) { o.help = true; }},
    option_row{"--version", "", "the version",
               [](auto& o, auto&, auto&, auto&) { o.version = true; }},
};

// What a recording has already decided.
constexpr std::array OPTIONS_OF_A_CAR = {"--car",   "--protocol", "--baud", "--round-trip",
                                         "--speed", "--seed",     "--fault"};

} // namespace

virtual_car_options read_options(std::span<const std::string> arguments) {
    virtual_car_options options;
    std::vector<fault> faults;
    std::string of_a_car;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::size_t equals = arguments[i].find('=');
        const std::string name = arguments[i].substr(0, equals);
        const option_row* found = nullptr;
        for (const option_row& row : OPTIONS)
            if (row.name == name)
                found = &row;
        if (!found)
            throw usage_error("unknown option " + arguments[i]);
        if (found->value.empty() ? equals != std::string::npos
                                 : equals == std::string::npos && i + 1 == arguments.size())
            throw usage_error(name + (found->value.empty() ? " takes no value" : " needs a value"));
        std::string value;
        if (!found->value.empty())
            value = equals != std::string::npos ? arguments[i].substr(equals + 1) : arguments[++i];
        found->set(options, faults, name, value);
        if (std::ranges::find(OPTIONS_OF_A_CAR, name) != OPTIONS_OF_A_CAR.end())
            of_a_car = name;
    }
    if (!options.replay.empty() && !of_a_car.empty())
        throw usage_error(of_a_car + " has no effect on a recording");
    if (!options.protocol.empty() && !protocol_named(options.protocol))
        throw usage_error("--protocol: there is no \"" + options.protocol + "\"; see --list");
    options.adapter.faults = fault_set(std::move(faults));
    return options;
}

std::string usage() {
    std::string text =
        "usage: kestrom-virtual-car [OPTION]...\n\n"
        "A car with an ELM327-type Wi-Fi adapter, for trying Kestrom without either.\n\n";
    for (const option_row& row : OPTIONS) {
        std::string left =
            "  " + std::string(row.name) + (row.value.empty() ? "" : " ") + std::string(row.value);
        left.resize(std::max<std::size_t>(left.size() + 2, 24), ' ');
        text += left + std::string(row.effect) + "\n";
    }
    text += "\nExit status: 0 success, 1 it cannot listen or write, 2 the arguments, the car file "
            "or the "
            "recording make no sense.\n\n"
            "Examples\n"
            "  kestrom-virtual-car --car diesel\n"
            "  kestrom-virtual-car --car can11 --latency 0 --fault split_prompt\n"
            "  kestrom-virtual-car --replay talk.jsonl --timing 0.1\n"
            "then  kestrom --adapter 127.0.0.1:35000 codes\n";
    return text;
}
