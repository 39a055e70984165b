// A target's corpus is a text file with one input a line: printable ASCII as it is, all else as \n,
// \r, \t, \\ or \xHH. This is the one reader and writer of such lines.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

std::string escaped(std::string_view bytes);

// None when the line holds an escape that is not one of these.
std::optional<std::string> unescaped(std::string_view line);

// The input of each line. Throws std::runtime_error, with file and line, when there is none to
// read.
std::vector<std::string> inputs_of(const std::string& corpus);
