#include "header_forms.h"

#include "text.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::string_view CAN_11_START = "7E";
constexpr std::string_view CAN_29_START = "18DA";
// The second byte of an older bus's answer: all testers, or this one.
constexpr std::array<std::string_view, 2> TARGETS{"6B", "F1"};
constexpr std::string_view ONE_TESTER = "F1";

struct header_row {
    header_form form;
    bus_form bus;
    std::size_t digits;
};
constexpr header_row ROWS[] = {
    {header_form::none, bus_form::unknown, 0},     {header_form::can_11, bus_form::can, 3},
    {header_form::can_29, bus_form::can, 8},       {header_form::three_bytes, bus_form::older, 6},
    {header_form::four_bytes, bus_form::older, 8},
};

const header_row& row_of(header_form form) {
    return ROWS[static_cast<std::size_t>(form)];
}

// An answer to any service, or a refusal.
bool may_be_data(std::string_view line) {
    const std::string_view service = line.substr(0, 2);
    return (service >= "41" && service <= "4A") || service == "7F";
}

// ISO 14230: if the low six bits of the first byte hold no length, a length byte follows the
// header.
bool has_length_byte(std::string_view line) {
    return line.substr(2, 2) == ONE_TESTER && (line[0] == '8' || line[0] == 'C') && line[1] == '0';
}

std::optional<header_form> form_of(std::string_view line, std::string_view answer) {
    if (line.starts_with(answer))
        return header_form::none;
    if (line.starts_with(CAN_11_START) && slice(line, 2, 1) >= "8")
        return header_form::can_11;
    if (line.starts_with(CAN_29_START))
        return header_form::can_29;
    if (std::ranges::find(TARGETS, slice(line, 2, 2)) != TARGETS.end())
        return has_length_byte(line) ? header_form::four_bytes : header_form::three_bytes;
    return may_be_data(line) ? std::optional(header_form::none) : std::nullopt;
}

} // namespace

bool is_can(header_form form) {
    return row_of(form).bus == bus_form::can;
}

bus_form bus_of(header_form form) {
    return row_of(form).bus;
}

std::optional<headed_line> behind_header(std::string_view line, std::string_view answer) {
    const auto form = form_of(line, answer);
    if (!form)
        return std::nullopt;
    const std::size_t digits = row_of(*form).digits;
    if (line.size() < digits + 2) // at least a byte of data, or of CAN's control bytes
        return std::nullopt;
    return headed_line{*form, line.substr(0, digits), line.substr(digits)};
}

std::string unit_name_of_address(std::string_view address, std::string_view shown_otherwise) {
    if (address == "10")
        return "Engine";
    if (address == "18")
        return "Transmission";
    return "ECU=" + std::string(shown_otherwise);
}

std::string unit_address(header_form form, std::string_view header) {
    switch (form) {
    case header_form::none:
        return {};
    case header_form::can_11:
        return std::string(header);
    case header_form::can_29:
        return std::string(slice(header, 6, 2));
    default:
        return std::string(slice(header, 4, 2));
    }
}

std::string unit_name(const headed_line& line) {
    switch (line.form) {
    case header_form::none:
        return {};
    case header_form::can_11:
        return line.header == "7E8"   ? "Engine"
               : line.header == "7E9" ? "Transmission"
                                      : "ECU=" + std::string(line.header);
    case header_form::can_29:
        return unit_name_of_address(slice(line.header, 6, 2), slice(line.header, 4, 2));
    default:
        return unit_name_of_address(slice(line.header, 4, 2), slice(line.header, 4, 2));
    }
}
