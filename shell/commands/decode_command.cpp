#include "decode_command.h"

#include "constantes.h"
#include "mac_toolies.h"
#include "notices.h"
#include "parameters.h"
#include "text.h"
#include "user_defaults.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <optional>
#include <ostream>
#include <string_view>
#include <vector>

namespace {

constexpr int USAGE_STATUS = 2;
constexpr int FAILED_STATUS = 1;
constexpr std::string_view NO_ANSWER = "~"; // of the toolkit's, to what it cannot translate

int refuse(std::ostream& err, std::string_view why, std::string_view command) {
    err << "kestrom: " << why << "\nTry 'kestrom " << command << " --help'.\n";
    return USAGE_STATUS;
}

int done(std::ostream& out, const QJsonObject& object) {
    out << QJsonDocument(object).toJson().toStdString();
    return 0;
}

QString json_text(const std::string& text) {
    return QString::fromStdString(text);
}

QJsonValue json_number(double value) {
    return std::isfinite(value) ? QJsonValue(value) : QJsonValue();
}

// Takes --json out.
bool take_json(std::vector<std::string>& arguments) {
    return std::erase(arguments, "--json") > 0;
}

// Whether an adapter may have sent that for a request of service 01: its answer, a refusal, or a
// notice.
bool may_be_reply(const std::string& reply) {
    std::string plain = without(reply, " \r\n\t");
    std::ranges::transform(plain, plain.begin(), [](unsigned char c) { return std::toupper(c); });
    if (plain.starts_with("41") || plain.starts_with("7F"))
        return true;
    return holds_notice(plain);
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
    bool standard = false;
    bool json = false;
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
        else if (argument == "--json")
            request.json = true;
        else if (argument == "--standard")
            request.standard = true;
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

// As a run shows it, or as the standard means it.
translated decoded(const mac_toolies& toolies, const std::string& reply, bool standard) {
    if (standard) {
        const bool metric = toolies.doors().defaults->boolean(KS_METRIC_UNITS_KEY);
        if (translated told = standard_value(reply, metric); told.text != NO_ANSWER)
            return told;
    }
    return parameter_value(toolies, reply);
}

} // namespace

int run_decode(std::span<const std::string> arguments, const mac_toolies& toolies,
               user_defaults& units, std::ostream& out, std::ostream& err) {
    const decode_request request = read_decode_request(arguments);
    if (!request.error.empty())
        return refuse(err, request.error, "decode");
    if (request.units)
        units.set_boolean(KS_METRIC_UNITS_KEY, *request.units == "metric");
    QJsonArray answers;
    std::string nonsense, unread;
    for (const std::string& reply : request.replies) {
        const auto [text, value] = decoded(toolies, reply, request.standard);
        if (text == NO_ANSWER) {
            std::string& list = may_be_reply(reply) ? unread : nonsense;
            list += (list.empty() ? "'" : ", '") + printable(reply) + "'";
        }
        if (request.json)
            answers.append(QJsonObject{{QStringLiteral("reply"), json_text(reply)},
                                       {QStringLiteral("text"), json_text(text)},
                                       {QStringLiteral("value"), json_number(value)}});
        else
            out << printable(text) << '\t' << number_text(value) << '\n';
    }
    if (request.json)
        done(out, {{QStringLiteral("replies"), answers}});
    if (!nonsense.empty())
        err << "kestrom: no reply to a service 01 request: " << nonsense << '\n';
    if (!unread.empty())
        err << "kestrom: holds no value: " << unread << '\n';
    return nonsense.empty() && unread.empty() ? 0 : FAILED_STATUS;
}

int run_vin(std::span<const std::string> given, const mac_toolies& toolies, std::ostream& out,
            std::ostream& err) {
    std::vector<std::string> arguments(given.begin(), given.end());
    const bool json = take_json(arguments);
    if (arguments.size() != 1)
        return refuse(err, "vin takes one reply", "vin");
    const std::string reply = reply_of(arguments[0]);
    const std::string vin = toolies.work_out_vin(reply);
    if (json)
        done(out, {{QStringLiteral("vin"),
                    vin == "N/A" ? QJsonValue() : QJsonValue(json_text(vin))}});
    else
        out << printable(vin) << '\n';
    if (toolies.is_whole_vin(vin, reply))
        return 0;
    err << "kestrom: the reply holds no whole identification number (17 characters)\n";
    return FAILED_STATUS;
}

int run_mode6(std::span<const std::string> given, const mac_toolies& toolies, std::ostream& out,
              std::ostream& err) {
    std::vector<std::string> arguments(given.begin(), given.end());
    const bool json = take_json(arguments);
    const bool standard = std::erase(arguments, "--standard") > 0;
    if (arguments.size() != 2)
        return refuse(err, "mode6 takes an identifier and a value", "mode6");
    const std::string& identifier = arguments[0];
    const std::string value = without(arguments[1], " ");
    if (!is_hex(identifier) || identifier.size() > 2)
        return refuse(err, "the identifier is two hex digits", "mode6");
    if (!is_hex(value) || value.size() > 4)
        return refuse(err, "the value is up to four hex digits", "mode6");
    std::string scaled = standard ? standard_test_value(identifier, value) : std::string();
    if (scaled.empty())
        scaled = toolies.CAN_scale_and_units(identifier, value, true);
    const std::string text(trimmed(scaled));
    if (!json) {
        out << text << '\n';
        return 0;
    }
    double number = std::nan("");
    const auto [end, bad] = std::from_chars(text.data(), text.data() + text.size(), number);
    const std::string unit(trimmed(std::string_view(end, text.data() + text.size())));
    return done(out, {{QStringLiteral("text"), json_text(text)},
                      {QStringLiteral("value"), json_number(number)},
                      {QStringLiteral("unit"), json_text(unit)}});
}
