#include "mac_toolies.h"
#include "saturate.h"
#include "text.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace {

constexpr std::size_t COUNT_BUFFER = 300; // bytes, terminator included

// The next non-empty piece between any of the separator characters, removed from the front of
// `rest`; empty at the end.
std::string_view next_token(std::string_view& rest, std::string_view separators) {
    rest.remove_prefix(std::min(rest.find_first_not_of(separators), rest.size()));
    const std::string_view token = rest.substr(0, rest.find_first_of(separators));
    rest.remove_prefix(token.size());
    return token;
}

int hex_digit(char c) {
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

// Whether the text, as a decimal integer up to the first other character, is 0.
bool reads_as_zero(std::string_view text) {
    const std::string_view digits = text.substr(0, text.find_first_not_of("0123456789"));
    return digits.find_first_not_of('0') == digits.npos;
}

// `count` pad characters, repeating `pad` from its start.
std::string pad_run(std::string_view pad, std::size_t count) {
    std::string run;
    while (run.size() < count && !pad.empty())
        run += pad;
    return run;
}

std::size_t missing(std::string_view text, int wanted) {
    const std::size_t size = wanted > 0 ? static_cast<std::size_t>(wanted) : 0;
    return size > text.size() ? size - text.size() : 0;
}

} // namespace

std::string mac_toolies::clean_a_reply(std::string_view reply) {
    std::string text = replace_all(reply, "\n\r", "\r");
    text = replace_all(text, "\r\n", "\r");
    text = replace_all(text, "\r\r", "\r");
    text = without(text, ">");
    const std::size_t dots = text.find("...");
    if (dots == text.npos)
        return text;
    // The notice's own line break is among the first characters after it; later ones belong to the
    // reply.
    const std::string_view rest = std::string_view(text).substr(dots + 3);
    return without(rest.substr(0, 4), "\r").append(slice(rest, 4));
}

std::string mac_toolies::fix_3dots(std::string_view reply) {
    const std::size_t dots = reply.find("...");
    return std::string(dots == reply.npos ? reply : reply.substr(dots));
}

std::string mac_toolies::check_bad_reply(std::string_view reply, std::string_view this_pid,
                                         std::string_view) {
    const std::string text = without(reply, " ");
    if (text.size() < 4 || slice(std::string_view(text), 2, 2) != this_pid)
        return "~";
    return std::string(reply);
}

int mac_toolies::charToNibble(char c) {
    return std::max(hex_digit(c), 0);
}

std::optional<std::vector<std::uint8_t>> mac_toolies::fromHexString(std::string_view text) {
    if (text.size() % 2 != 0)
        return std::nullopt;
    std::vector<std::uint8_t> bytes;
    bytes.reserve(text.size() / 2);
    for (std::size_t i = 0; i < text.size(); i += 2)
        bytes.push_back(
            static_cast<std::uint8_t>(charToNibble(text[i]) * 16 + charToNibble(text[i + 1])));
    return bytes;
}

std::uint32_t mac_toolies::convertStr2Byte(std::string_view text) {
    constexpr std::uint32_t MOST = std::numeric_limits<std::uint32_t>::max();
    text.remove_prefix(std::min(text.find_first_not_of(WHITE_SPACE), text.size()));
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);
    if (text.starts_with("0x") || text.starts_with("0X"))
        text.remove_prefix(2);
    std::uint32_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, 16);
    if (error == std::errc::result_out_of_range)
        return MOST;
    return negative ? 0U - value : value;
}

std::string mac_toolies::convertByte2HexStr(unsigned value) {
    constexpr char DIGITS[] = "0123456789ABCDEF";
    std::string text;
    for (; value != 0 || text.size() < 2; value /= 16)
        text.insert(text.begin(), DIGITS[value % 16]);
    return text;
}

std::vector<std::string> mac_toolies::Pull_line_into_array(std::string_view text,
                                                           std::string_view this_token, int) {
    const std::vector<std::string_view> pieces = split(text, this_token);
    return {pieces.begin(), pieces.end()};
}

int mac_toolies::count_items_in_Str(std::string_view text, std::string_view this_token) {
    std::string_view rest = text.substr(0, COUNT_BUFFER - 1);
    int count = 0;
    while (!next_token(rest, this_token).empty())
        ++count;
    return count;
}

std::string mac_toolies::myReplace(std::string_view text, std::string_view this_str,
                                   std::string_view with_this_str) {
    std::string_view rest = text;
    std::string_view token = next_token(rest, this_str);
    if (token == text)
        return std::string(text);
    std::string result;
    for (; !token.empty(); token = next_token(rest, this_str))
        result.append(token).append(with_this_str);
    return result;
}

std::string mac_toolies::padLeft(std::string_view text, int padded_size, std::string_view padChar) {
    return pad_run(padChar, missing(text, padded_size)).append(text);
}

std::string mac_toolies::padRight(std::string_view text, int padded_size, std::string_view pdChar) {
    std::string result(text);
    result += pad_run(pdChar, missing(text, padded_size));
    if (const auto size = static_cast<std::size_t>(std::max(padded_size, 0)); result.size() > size)
        result.resize(size);
    return result;
}

std::string mac_toolies::padString(std::string_view text, char this_pad_char, int this_padded_len,
                                   bool onRight) {
    const std::string run(missing(text, this_padded_len), this_pad_char);
    return onRight ? std::string(text) + run : run + std::string(text);
}

std::string mac_toolies::formatStringWithDouble(std::string_view text, int no_of_decs) {
    const std::size_t point = text.find('.');
    if (point == text.npos)
        return std::string(text);
    std::string_view digits = trimmed(text);
    if (digits.starts_with('+'))
        digits.remove_prefix(1);
    float number = 0; // single precision first, as the last digits show
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error == std::errc::result_out_of_range)
        return std::string(text);
    if (reads_as_zero(text.substr(point + 1)))
        return std::to_string(saturating_int(number));
    char buffer[128]; // 39 digits, the point and the decimals
    const auto written = std::to_chars(buffer, buffer + sizeof buffer, double{number},
                                       std::chars_format::fixed, std::clamp(no_of_decs, 0, 60));
    return {buffer, written.ptr};
}
