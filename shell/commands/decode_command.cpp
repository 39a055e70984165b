#include "command_functions.h"
#include "commands.h"
#include "constantes.h"
#include "display_text.h"
#include "mac_toolies.h"
#include "notices.h"
#include "number_text.h"
#include "parameters.h"
#include "report_printer.h"
#include "text.h"
#include "user_defaults.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string_view>

namespace {

constexpr int FAILED_STATUS = 1;
constexpr std::string_view NO_ANSWER = "~"; // from the toolkit, if it cannot translate
constexpr std::size_t LONGEST_TEST_VALUE = 8, LONGEST_STANDARD_TEST_VALUE = 4;

// Without blanks and line ends, in capitals.
std::string plain(const std::string& reply) {
    std::string text = without(reply, " \r\n\t>");
    std::ranges::transform(text, text.begin(), [](unsigned char c) { return std::toupper(c); });
    return text;
}

// Whether an adapter may send that in reply to a service 01 request: an answer, a refusal, or a
// notice.
bool may_be_reply(const std::string& reply) {
    const std::string text = plain(reply);
    return text.starts_with("41") || text.starts_with("7F") || holds_notice(text);
}

std::string reply_of(const std::string& argument) {
    return replace_all(replace_all(argument, "\\r", "\r"), "\\n", "\n");
}

// As a run shows it, or as the standard defines it.
translated decoded(const mac_toolies& toolies, const std::string& reply, bool standard) {
    if (standard) {
        const bool metric = toolies.doors().defaults->boolean(KS_METRIC_UNITS_KEY);
        if (translated value = standard_value(reply, metric); value.text != NO_ANSWER)
            return value;
    }
    return parameter_value(toolies, reply);
}

} // namespace

void check_decode(const cli_request& asked) {
    for (const std::string& argument : asked.arguments)
        if (const std::string text = plain(reply_of(argument));
            text.starts_with("41") && text.size() <= 4 && is_hex(text))
            throw usage_error("'" + printable_line(argument) +
                              "' is where a reply begins, without its data");
}

int run_decode(const desk& work) {
    if (!work.asked.units.empty())
        work.units.set_boolean(KS_METRIC_UNITS_KEY, work.asked.units == "metric");
    ordered_json answers = ordered_json::array();
    std::string nonsense, unread;
    for (const std::string& argument : work.asked.arguments) {
        const std::string reply = reply_of(argument);
        const auto [text, value] = decoded(work.toolies, reply, work.asked.standard);
        if (text == NO_ANSWER) {
            std::string& list = may_be_reply(reply) ? unread : nonsense;
            list += (list.empty() ? "'" : ", '") + printable_line(reply) + "'";
        }
        if (work.asked.json)
            answers.push_back({{"reply", reply}, {"text", text}, {"value", json_number(value)}});
        else
            work.out << printable_line(text) << '\t' << number_text(value) << '\n';
    }
    if (work.asked.json)
        work.out << json_lines({{"replies", answers}});
    if (!nonsense.empty())
        work.err << "kestrom: no reply to a service 01 request: " << nonsense << '\n';
    if (!unread.empty())
        work.err << "kestrom: holds no value: " << unread << '\n';
    return nonsense.empty() && unread.empty() ? 0 : FAILED_STATUS;
}

int run_vin(const desk& work) {
    const std::string reply = reply_of(work.asked.arguments[0]);
    const std::string vin = work.toolies.work_out_vin(reply);
    if (work.asked.json)
        work.out << json_lines({{"vin", vin == "N/A" ? ordered_json() : ordered_json(vin)}});
    else
        work.out << printable_line(vin) << '\n';
    if (work.toolies.is_whole_vin(vin, reply))
        return 0;
    work.err << "kestrom: the reply holds no whole identification number (17 characters)\n";
    return FAILED_STATUS;
}

void check_mode6(const cli_request& asked) {
    const std::string value = without(asked.arguments[1], " ");
    if (!is_hex(asked.arguments[0]) || asked.arguments[0].size() > 2)
        throw usage_error("the identifier is two hex digits");
    if (!is_hex(value) || value.size() > LONGEST_TEST_VALUE)
        throw usage_error("the value is up to eight hex digits");
    if (asked.standard && value.size() > LONGEST_STANDARD_TEST_VALUE)
        throw usage_error("--standard: the value is up to four hex digits");
}

int run_mode6(const desk& work) {
    const std::string& identifier = work.asked.arguments[0];
    const std::string value = without(work.asked.arguments[1], " ");
    std::string scaled =
        work.asked.standard ? standard_test_value(identifier, value) : std::string();
    if (scaled.empty())
        scaled = work.toolies.CAN_scale_and_units(identifier, value, true);
    const std::string text(trimmed(scaled));
    if (!work.asked.json) {
        work.out << text << '\n';
        return 0;
    }
    double number = std::nan("");
    const auto [end, bad] = std::from_chars(text.data(), text.data() + text.size(), number);
    const std::string_view unit = trimmed(std::string_view(end, text.data() + text.size()));
    work.out << json_lines({{"text", text}, {"value", json_number(number)}, {"unit", unit}});
    return 0;
}
