#include "reply_lines.h"

#include "text.h"

namespace {

constexpr std::string_view REPLY_NOISE{" \n>\0", 4};
constexpr std::string_view SEARCH_DOTS = "...";
constexpr std::string_view BUS_NOTICE = "BUSINIT:"; // "BUS INIT: " without its blanks

std::string_view without_notices(std::string_view line) {
    const std::size_t bus_notice = line.find(BUS_NOTICE);
    if (bus_notice != line.npos)
        line.remove_prefix(bus_notice + BUS_NOTICE.size());
    const std::size_t dots = line.rfind(SEARCH_DOTS);
    if (dots != line.npos)
        line.remove_prefix(dots + SEARCH_DOTS.size());
    if (bus_notice != line.npos && line.starts_with("OK"))
        line.remove_prefix(2);
    return line;
}

} // namespace

std::vector<std::string> reply_lines(std::string_view reply) {
    const std::string text = without(reply, REPLY_NOISE);
    std::vector<std::string> lines;
    for (const std::string_view line : split(text, "\r"))
        if (const std::string_view data = without_notices(line); !data.empty())
            lines.emplace_back(data);
    return lines;
}

bool marker_behind_29_bit_header(std::string_view line, std::string_view marker,
                                 std::string_view other) {
    return slice(line, 10, 4) == marker && slice(line, 6, 4) != other;
}

bool has_can_header(std::string_view line, std::string_view marker) {
    return line.starts_with("7E") || marker_behind_29_bit_header(line, marker, marker);
}

bool has_29_bit_header(std::string_view line) {
    // The markers that rule a line out are the ones that stand in the field, two of them not their
    // own.
    static constexpr struct {
        std::string_view marker;
        std::string_view other;
    } TESTS[] = {{"4100", "4100"}, {"4101", "4110"}, {"4120", "4120"}, {"4130", "4140"}};
    for (const auto& test : TESTS)
        if (marker_behind_29_bit_header(line, test.marker, test.other))
            return true;
    return false;
}
