#include "header_forms.h"
#include "mac_toolies.h"
#include "text.h"

#include <algorithm>

namespace {

// Whether `marker` is where data begins after a 29-bit CAN header (eight digits, then a two-digit
// byte count), and `other` is not where it begins after a three-byte header.
bool marker_behind_29_bit_header(std::string_view line, std::string_view marker,
                                 std::string_view other) {
    return slice(line, 10, 4) == marker && slice(line, 6, 4) != other;
}

// The markers that exclude a line are those used in the field, two of which belong to other forms.
bool has_29_bit_header(std::string_view line) {
    static constexpr struct {
        std::string_view marker;
        std::string_view other;
    } TESTS[] = {{"4100", "4100"}, {"4101", "4110"}, {"4120", "4120"}, {"4130", "4140"}};
    return std::ranges::any_of(TESTS, [&](const auto& test) {
        return marker_behind_29_bit_header(line, test.marker, test.other);
    });
}

} // namespace

std::string mac_toolies::pull_ECU(std::string_view line) {
    if (line.starts_with("7E"))
        return unit_name({header_form::can_11, line.substr(0, 3), {}});
    const std::string_view third_byte = slice(line, 4, 2);
    return unit_name_of_address(has_29_bit_header(line) ? slice(line, 6, 2) : third_byte,
                                third_byte);
}

std::optional<std::string> mac_toolies::pull_PID_msg(std::string_view line,
                                                     std::string_view this_PID,
                                                     std::string_view for_this_ECU) {
    const std::string marker = "41" + std::string(this_PID);
    std::string_view key = slice(line, 4, 2);
    std::size_t data = 6;
    std::size_t looked_at = 14; // minimum characters of a line
    if (line.starts_with("7E")) {
        key = line.substr(0, 2);
        data = looked_at = 5;
    } else if (marker_behind_29_bit_header(line, marker, marker)) {
        key = slice(line, 6, 2);
        data = 10;
    }
    if (line.size() < looked_at || (!for_this_ECU.empty() && for_this_ECU != key))
        return std::nullopt;
    return std::string(line.substr(data));
}

std::optional<std::vector<std::string>> mac_toolies::Pull_ECU_msg(std::string_view reply) {
    std::string text = without(reply, " ");
    for (const std::string_view ending : {"\r\n\r\n>", "\r\r>", "\r\n>"})
        text = replace_all(text, ending, "\r");
    return Pull_line_into_array(without(text, "\n"), "\r");
}

std::string mac_toolies::grab_CAN_msg(std::string_view reply) {
    const std::string text = without(reply, ">\n");
    std::vector<std::string_view> lines = split(text, "\r");
    std::erase(lines, std::string_view());
    if (lines.empty())
        return {};
    const std::size_t total = convertStr2Byte(lines.front());
    std::size_t collected = 0;
    std::string message;
    for (std::size_t i = 1; i < lines.size() && collected < total; ++i) {
        std::string frame(slice(lines[i], 2));
        if (i == 1 && frame.size() > 12)
            frame.erase(4, 1);
        const std::size_t bytes = frame.size() / 2;
        if (collected + bytes < total) {
            collected += bytes;
            message += frame;
        } else {
            // The line that completes the message is not counted, so a following one is cut in the
            // same way.
            message.append(frame, 0, 2 * (total - collected));
        }
    }
    return message;
}
