// The lines of a run log, counted out byte by byte.
#pragma once

#include <string>
#include <string_view>
#include <vector>

// The pieces that count as lines, one after the other.
inline std::vector<std::string> lines_of(std::string_view log) {
    std::vector<std::string> lines(1);
    for (const char c : log) {
        lines.back() += c;
        if (c == '\n' || lines.back().size() == 999)
            lines.emplace_back();
    }
    if (lines.back().empty())
        lines.pop_back();
    return lines;
}
