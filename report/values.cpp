// Parameters of service 01 and of the freeze frame, by the table of standard values first.
#include "answer_sizes.h"
#include "constantes.h"
#include "findings.h"
#include "hex_digits.h"
#include "parameters.h"
#include "text.h"
#include "user_defaults.h"

#include <utility>

namespace {

constexpr unsigned READINGS[] = {0x1C, 0x51, 0x0C, 0x05, 0x42, 0x21, 0x30, 0x31, 0x4D, 0x4E, 0xA6};
constexpr std::string_view NO_VALUE = "~";

// The same in plain words and usual units.
std::string plainly(std::string text) {
    constexpr std::pair<std::string_view, std::string_view> WORDS[] = {
        {"° ", "°"},        {"'", ""},        {" Kms", " km"},   {" mls", " miles"},
        {" Km/h", " km/h"}, {" KPa", " kPa"}, {" gm/s", " g/s"},
    };
    for (const auto& [fixed, plain] : WORDS)
        text = replace_all(text, fixed, plain);
    return text;
}

// `answer`: as in service 01. Empty if it is not a complete answer.
std::string value_text(const std::string& answer, const mac_toolies& toolies) {
    const bool metric = toolies.doors().defaults->boolean(KS_METRIC_UNITS_KEY);
    std::string text = standard_value(answer, metric).text;
    if (text == NO_VALUE)
        text = parameter_value(toolies, answer).text;
    if (text == NO_VALUE || text == "N/A")
        return {};
    return plainly(replace_all(std::string(trimmed(std::string_view(text))), "  ", " "));
}

reported_value value_of(const conversation& transcript, const std::string& request, unsigned pid,
                        std::string_view unit, const mac_toolies& toolies) {
    reported_value value;
    value.pid = pid;
    value.name = parameter_name(toolies, request.substr(2, 2));
    if (value.name == "N/A" || value.name == "NOT FOUND")
        value.name = "PID " + request.substr(2, 2);
    value.found = finding_of(transcript, request, unit);
    const std::size_t head = request.size(); // the frame number follows the PID
    for (const std::string& answer : answers_of(transcript, request, unit))
        if (const auto whole = answer_digits(answer, bus_form::unknown);
            whole && answer.size() < *whole) { // part of it would read as another value
            value.found.result = outcome::unread;
            value.found.why = WHY_INCOMPLETE;
        } else if (answer.size() > head) {
            value.text = value_text("41" + request.substr(2, 2) + answer.substr(head), toolies);
            // Not in any table: the bytes themselves, unless some are missing.
            if (value.text.empty() && value.found.unread.empty())
                value.text = answer.substr(head);
        }
    return value;
}

void take(unit_report& unit, std::vector<reported_value>& to, reported_value value) {
    if (value.found.reported() && value.text.empty())
        value.found.result = outcome::unread;
    if (value.found.reported() && !value.found.unread.empty())
        unit.gaps.push_back(value.found);
    if (value.found.reported())
        to.push_back(std::move(value));
    else if (value.found.why != WHY_NOT_LISTED && value.found.result != outcome::not_asked)
        unit.gaps.push_back(std::move(value.found));
}

// Whether a missing value is a gap: not if the unit answers none of that kind.
bool expected(const finding& list) {
    return list.reported() || list.result == outcome::unread;
}

} // namespace

void fill_values(unit_report& unit, const conversation& transcript, const mac_toolies& toolies) {
    const bool tells = expected(finding_of(transcript, "0100", unit.address));
    for (const unsigned pid : READINGS) {
        const std::string request = request_of("01", pid);
        reported_value value = value_of(transcript, request, pid, unit.address, toolies);
        if (transcript.find(request) && (tells || value.found.reported()))
            take(unit, unit.readings, std::move(value));
    }
    if (unit.frame_code.empty())
        return;
    const bool listed = expected(finding_of(transcript, "020000", unit.address));
    for (unsigned pid = 3; pid <= 0xFF; ++pid) {
        const std::string request = request_of("02", pid) + "00";
        if (pid % GROUP == 0 || !transcript.find(request))
            continue;
        reported_value value = value_of(transcript, request, pid, unit.address, toolies);
        // Without a list, each request was a guess.
        if (listed || value.found.reported() || value.found.result == outcome::unread)
            take(unit, unit.frame_values, std::move(value));
    }
}
