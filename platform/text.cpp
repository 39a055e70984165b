#include "text.h"

#include <algorithm>

std::string replace_all(std::string_view text, std::string_view from, std::string_view to) {
    if (from.empty())
        return std::string(text);
    std::string result;
    result.reserve(text.size());
    std::size_t start = 0;
    for (std::size_t found = text.find(from); found != std::string_view::npos;
         found = text.find(from, start)) {
        result.append(text, start, found - start).append(to);
        start = found + from.size();
    }
    return result.append(text, start);
}

std::string without(std::string_view text, std::string_view unwanted) {
    std::string result;
    result.reserve(text.size());
    for (const char c : text)
        if (unwanted.find(c) == unwanted.npos)
            result += c;
    return result;
}

std::string_view trimmed(std::string_view text, std::string_view unwanted) {
    // The sets are a few characters: comparing is faster than a search call.
    const auto is_unwanted = [unwanted](char c) { return std::ranges::count(unwanted, c) > 0; };
    while (!text.empty() && is_unwanted(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && is_unwanted(text.back()))
        text.remove_suffix(1);
    return text;
}

std::vector<std::string_view> split(std::string_view text, std::string_view separator) {
    std::vector<std::string_view> pieces;
    std::size_t start = 0;
    if (!separator.empty()) {
        for (std::size_t found = text.find(separator); found != text.npos;
             found = text.find(separator, start)) {
            pieces.push_back(text.substr(start, found - start));
            start = found + separator.size();
        }
    }
    pieces.push_back(text.substr(start));
    return pieces;
}

std::string_view last_path_component(std::string_view path) {
    while (path.size() > 1 && path.ends_with('/'))
        path.remove_suffix(1);
    return path.size() == 1 ? path : path.substr(path.rfind('/') + 1);
}

bool is_hex(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789abcdefABCDEF") == text.npos;
}
