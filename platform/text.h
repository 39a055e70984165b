// Small helpers for plain text. Bytes, not characters: UTF-8 passes through. Returned views point
// into the given text, which must outlive them.
#pragma once

#include <concepts>
#include <string>
#include <string_view>
#include <vector>

inline constexpr std::string_view WHITE_SPACE = " \t\n\v\f\r";

inline bool contains(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

// The characters from `first` on, at most `count`; fewer, or none, if the text ends earlier.
inline std::string_view slice(std::string_view text, std::size_t first,
                              std::size_t count = std::string_view::npos) {
    return first < text.size() ? text.substr(first, count) : std::string_view();
}

// One pass, left to right; inserted text is not searched again. An empty `from` changes nothing.
std::string replace_all(std::string_view text, std::string_view from, std::string_view to);

// The text without any of the characters of `unwanted`.
std::string without(std::string_view text, std::string_view unwanted);

// The text without characters of `unwanted` at either end.
std::string_view trimmed(std::string_view text, std::string_view unwanted = WHITE_SPACE);

// The pieces between the occurrences of `separator`, empty ones too: always at least one piece.
std::vector<std::string_view> split(std::string_view text, std::string_view separator);

// The part after the last slash, ignoring trailing slashes.
std::string_view last_path_component(std::string_view path);

// Whether the text is not empty and all hex digits.
bool is_hex(std::string_view text);

// Prevents views into a temporary text.
std::string_view slice(std::same_as<std::string> auto&& text, std::size_t first,
                       std::size_t count = 0) = delete;
std::string_view trimmed(std::same_as<std::string> auto&& text,
                         std::string_view unwanted = {}) = delete;
std::vector<std::string_view> split(std::same_as<std::string> auto&& text,
                                    std::string_view separator) = delete;
std::string_view last_path_component(std::same_as<std::string> auto&& path) = delete;
