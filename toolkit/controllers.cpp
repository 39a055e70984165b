#include "mac_toolies.h"
#include "reply_lines.h"
#include "text.h"

#include <algorithm>

namespace {

// The last digits of the sender's address, as J1979 gives them out.
std::string controller_name(std::string_view address, std::string_view shown_otherwise) {
    if (address == "10")
        return "Engine";
    if (address == "18")
        return "Transmission";
    return "ECU=" + std::string(shown_otherwise);
}

} // namespace

std::string mac_toolies::pull_ECU(std::string_view line) {
    if (line.starts_with("7E8"))
        return "Engine";
    if (line.starts_with("7E9"))
        return "Transmission";
    if (line.starts_with("7E"))
        return "ECU=" + std::string(line.substr(0, 3));
    const std::string_view third_byte = slice(line, 4, 2);
    return controller_name(has_29_bit_header(line) ? slice(line, 6, 2) : third_byte, third_byte);
}

std::optional<std::string> mac_toolies::pull_PID_msg(std::string_view line,
                                                     std::string_view this_PID,
                                                     std::string_view for_this_ECU) {
    const std::string marker = "41" + std::string(this_PID);
    std::string_view key = slice(line, 4, 2);
    std::size_t data = 6;
    std::size_t looked_at = 14; // characters that a line must have
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
            // A line that completes the message does not count: one that follows is cut alike.
            message.append(frame, 0, 2 * (total - collected));
        }
    }
    return message;
}
