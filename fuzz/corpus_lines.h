// A target's corpus is a text file with one input per line: printable ASCII unchanged, everything
// else as \n, \r, \t, \\ or \xHH. The reader and writer of such lines.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

std::string escaped(std::string_view bytes);

// Nothing if the line contains another escape.
std::optional<std::string> unescaped(std::string_view line);

// The input of each line. Throws std::runtime_error with file and line if one cannot be read.
std::vector<std::string> inputs_of(const std::string& corpus);
