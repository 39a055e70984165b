// Splits the text of a reply into lines.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// The non-empty lines of a reply, in capitals without blanks, and without what is not from the car
// (prompts, line feeds, stray NULs, search and bus notices before data).
std::vector<std::string> reply_lines(std::string_view reply);

// A line of a message that the adapter has assembled from numbered frames (ISO 15765-2): its length
// in bytes ("00A") or one of its frames ("0:430401330220").
bool is_length_line(std::string_view line, std::string_view answer);
bool is_numbered_frame(std::string_view line);
