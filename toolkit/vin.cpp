#include "mac_toolies.h"
#include "reply_lines.h"
#include "text.h"

#include <algorithm>
#include <cctype>

namespace {

constexpr std::size_t LONGEST_VIN = 39; // the buffer's 40 bytes less the terminator
constexpr std::size_t LINE_SIZE = 14;   // "4902", message number, four bytes
constexpr std::string_view NO_VIN = "N/A";
constexpr std::string_view ANSWER = "4902";

// Padding bytes of value 0 add nothing, nor does a position after the end of the text.
void append_character(std::string_view text, std::size_t position, std::string& vin) {
    const std::string_view digits = slice(text, position, 2);
    if (digits.size() < 2)
        return;
    if (const std::uint32_t value = mac_toolies::convertStr2Byte(digits); value != 0)
        vin += static_cast<char>(value & 0xFF);
}

// Lines of four bytes; of the first line, only the last byte is a character.
std::string vin_of_lines(const std::vector<std::string>& lines) {
    std::string vin;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string& line = lines[i];
        if (line.size() < LINE_SIZE || !is_hex(line.substr(0, 4)))
            continue; // such as "UNABLE TO CONNECT"
        for (std::size_t position = i == 0 ? 12 : 6; position < LINE_SIZE; position += 2)
            append_character(line, position, vin);
    }
    return vin;
}

std::string vin_of_frames(std::string_view reply) {
    if (!contains(reply, "49"))
        return {};
    const std::string message = mac_toolies::grab_CAN_msg(reply);
    std::string vin;
    for (std::size_t position = 6; position < message.size(); position += 2)
        append_character(message, position, vin);
    return vin;
}

// The letters and digits of ISO 3779.
bool may_stand_in_vin(char c) {
    return std::isdigit(static_cast<unsigned char>(c)) ||
           (c >= 'A' && c <= 'Z' && c != 'I' && c != 'O' && c != 'Q');
}

} // namespace

// SAE J1979 service 09, info type 02.
std::string mac_toolies::work_out_vin(std::string_view reply) {
    const std::vector<std::string> lines = reply_lines(reply);
    std::string text;
    for (const std::string& line : lines)
        text.append(line).append("\r");
    std::string vin = contains(text, ":") ? vin_of_frames(text) : vin_of_lines(lines);
    vin = vin.substr(0, LONGEST_VIN);
    return vin.empty() ? std::string(NO_VIN) : vin;
}

bool mac_toolies::is_whole_vin(std::string_view vin, std::string_view reply) {
    constexpr std::size_t VIN_LENGTH = 17;
    // Frames are numbered from 0, the lines of the older buses from 1.
    unsigned frames = 0, messages = 0;
    for (const std::string& line : reply_lines(reply)) {
        const std::string_view text = line;
        const bool frame = is_numbered_frame(text);
        if (frame ? text[0] != convertByte2HexStr(frames)[1] : contains(text, "<"))
            return false;
        if ((frame && frames++ == 0) || text.starts_with("49"))
            if (slice(text, frame ? 2 : 0, 4) != ANSWER)
                return false;
        if (!frame && text.starts_with(ANSWER) && convertStr2Byte(slice(text, 4, 2)) != ++messages)
            return false;
        if (!frame && text.size() >= LINE_SIZE && is_hex(text) && !text.starts_with(ANSWER))
            return false;
    }
    return vin.size() == VIN_LENGTH && std::ranges::all_of(vin, may_stand_in_vin);
}
