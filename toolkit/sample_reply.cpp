#include "sample_reply.h"

#include "answer_sizes.h"
#include "checksums.h"
#include "header_forms.h"
#include "hex_digits.h"
#include "standard_values.h"
#include "text.h"

#include <algorithm>
#include <cctype>

namespace {

constexpr std::string_view ANSWER = "41";
constexpr std::size_t HEAD = 4; // "41" and the parameter

// The data after the header of a single frame; empty for anything else.
std::string_view data_of(std::string_view reply) {
    if (reply.starts_with(ANSWER) || !is_hex(reply))
        return reply.starts_with(ANSWER) ? reply : std::string_view();
    const auto line = behind_header(reply, ANSWER);
    if (!line || line->form == header_form::none)
        return {};
    std::string_view data = line->data;
    if (is_can(line->form)) { // its length, and at most a full frame of padding
        const std::size_t digits = 2 * hex_value(data.substr(1, 1));
        const std::string_view behind = slice(data, 2 + digits);
        const bool whole =
            data.front() == '0' && data.size() >= 2 + digits &&
            (behind.empty() || (digits + behind.size() == LONGEST_FRAME_DIGITS && is_fill(behind)));
        data = whole ? slice(data, 2, digits) : "";
    } else {
        data = ends_with_checksum(reply) ? data.substr(0, data.size() - 2) : "";
    }
    return data.starts_with(ANSWER) ? data : std::string_view();
}

// Fuel trims: with four banks of cylinders a car reports two at a time; the first counts.
bool may_tell_of_two_banks(unsigned number) {
    return number >= 0x06 && number <= 0x09;
}

} // namespace

std::string_view parameter_in(std::string_view reply) {
    const std::string_view pid = slice(data_of(reply), 2, 2);
    return pid.size() == 2 && is_hex(pid) ? pid : std::string_view();
}

bool answers_parameter(std::string_view reply, std::string_view pid) {
    return std::ranges::equal(parameter_in(reply), pid, [](unsigned char a, unsigned char b) {
        return std::toupper(a) == std::toupper(b);
    });
}

bool answers_another(std::string_view reply, std::string_view pid) {
    return !parameter_in(reply).empty() && !answers_parameter(reply, pid);
}

std::string_view answer_in(std::string_view reply) {
    const std::string_view data = data_of(reply);
    if (data.size() <= HEAD || data.size() % 2 != 0 || !is_hex(data))
        return {};
    const unsigned number = hex_value(data.substr(2, 2));
    const answer_length standard = standard_length(number);
    if (standard.or_bytes != 0 && data.size() == HEAD + 2 * std::size_t{standard.or_bytes})
        return data;
    const std::size_t bytes = parameter_bytes(number).value_or(standard.bytes);
    const std::size_t whole = bytes == 0 ? data.size() : HEAD + 2 * bytes;
    const bool fits =
        data.size() == whole || (data.size() == whole + 2 && may_tell_of_two_banks(number)) ||
        (data.size() == LONGEST_FRAME_DIGITS && whole < data.size() && is_fill(data.substr(whole)));
    return fits ? data.substr(0, whole) : std::string_view();
}
