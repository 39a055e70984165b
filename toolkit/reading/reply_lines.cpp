#include "reply_lines.h"

#include "notices.h"
#include "text.h"

#include <algorithm>
#include <cctype>

namespace {

constexpr std::string_view REPLY_NOISE{" \n>\0", 4};
constexpr std::size_t LONGEST_LENGTH_LINE = 4;

} // namespace

std::vector<std::string> reply_lines(std::string_view reply) {
    std::string text = without(reply, REPLY_NOISE);
    std::ranges::transform(text, text.begin(), [](unsigned char c) { return std::toupper(c); });
    std::vector<std::string> lines;
    for (const std::string_view line : split(text, "\r"))
        if (const std::string_view rest = behind_search_notices(line); !rest.empty())
            lines.emplace_back(rest);
    return lines;
}

bool is_length_line(std::string_view line, std::string_view answer) {
    const bool is_answer = line.starts_with(answer) && line.size() % 2 == 0;
    return line.size() <= LONGEST_LENGTH_LINE && is_hex(line) && !is_answer;
}

bool is_numbered_frame(std::string_view line) {
    return slice(line, 1, 1) == ":" && is_hex(line.substr(0, 1));
}
