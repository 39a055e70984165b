#include "decode_command.h"

#include "constantes.h"
#include "mac_toolies.h"
#include "text.h"
#include "user_defaults.h"

#include <charconv>
#include <cmath>
#include <optional>
#include <ostream>
#include <string_view>
#include <vector>

namespace {

constexpr int USAGE_STATUS = 2;
constexpr std::string_view DECODE_USAGE = "decode REPLY... [--units metric|imperial]";
constexpr std::string_view VIN_USAGE = "vin REPLY";
constexpr std::string_view MODE6_USAGE = "mode6 ID VALUE";

int refuse(std::ostream& err, std::string_view why, std::string_view usage) {
    err << "kestrom: " << why << "\nUsage: kestrom " << usage << "\n";
    return USAGE_STATUS;
}

std::string reply_of(const std::string& argument) {
    return replace_all(replace_all(argument, "\\r", "\r"), "\\n", "\n");
}

// A byte of a reply must not drive the terminal.
std::string printable(std::string text) {
    for (char& c : text)
        if (static_cast<unsigned char>(c) < ' ' || c == '\x7F')
            c = ' ';
    return text;
}

// As few digits as tell it from its neighbours.
std::string number_text(double value) {
    if (std::isnan(value))
        return "nan";
    char digits[32];
    return {digits, std::to_chars(digits, digits + sizeof digits, value).ptr};
}

struct decode_request {
    std::vector<std::string> replies;
    std::optional<std::string> units;
    std::string error;
};

decode_request read_decode_request(std::span<const std::string> arguments) {
    constexpr std::string_view UNITS = "--units";
    decode_request request;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (argument.starts_with("--units="))
            request.units = argument.substr(UNITS.size() + 1);
        else if (argument == UNITS && i + 1 < arguments.size())
            request.units = arguments[++i];
        else if (argument == UNITS)
            request.error = "--units needs metric or imperial";
        else if (argument.starts_with("--"))
            request.error = "unknown option " + argument;
        else
            request.replies.push_back(reply_of(argument));
    }
    if (request.units && *request.units != "metric" && *request.units != "imperial")
        request.error = "--units is metric or imperial";
    if (request.error.empty() && request.replies.empty())
        request.error = "decode needs a reply, such as \"41 0C 1A F8\"";
    return request;
}

} // namespace

int run_decode(std::span<const std::string> arguments, const mac_toolies& toolies,
               user_defaults& units, std::ostream& out, std::ostream& err) {
    const decode_request request = read_decode_request(arguments);
    if (!request.error.empty())
        return refuse(err, request.error, DECODE_USAGE);
    if (request.units)
        units.set_boolean(KS_METRIC_UNITS_KEY, *request.units == "metric");
    for (const std::string& reply : request.replies) {
        const auto [text, value] = toolies.translate_once(reply);
        out << printable(text) << '\t' << number_text(value) << '\n';
    }
    return 0;
}

int run_vin(std::span<const std::string> arguments, const mac_toolies& toolies, std::ostream& out,
            std::ostream& err) {
    if (arguments.size() != 1)
        return refuse(err, "vin takes one reply", VIN_USAGE);
    out << printable(toolies.work_out_vin(reply_of(arguments[0]))) << '\n';
    return 0;
}

int run_mode6(std::span<const std::string> arguments, const mac_toolies& toolies, std::ostream& out,
              std::ostream& err) {
    if (arguments.size() != 2)
        return refuse(err, "mode6 takes an identifier and a value", MODE6_USAGE);
    const std::string& identifier = arguments[0];
    const std::string value = without(arguments[1], " ");
    if (!is_hex(identifier) || identifier.size() > 2)
        return refuse(err, "the identifier is two hex digits", MODE6_USAGE);
    if (!is_hex(value))
        return refuse(err, "the value is hex digits", MODE6_USAGE);
    out << toolies.CAN_scale_and_units(identifier, value, true) << '\n';
    return 0;
}
