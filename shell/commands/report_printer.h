// Prints the results of the screens for the command line.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>
#include <vector>

using nlohmann::ordered_json;

struct conversation_log {
    std::vector<std::string> messages; // every alert, in order
    std::vector<std::string> statuses; // every status text, in order
};

// The messages along the way as an object: the final status of the task, and the log.
void print_conversation(ordered_json object, const std::string& status,
                        const conversation_log& log);

// JSON, indented or on one line. Bytes that are not UTF-8 become replacement characters.
std::string json_lines(const ordered_json& value);
std::string json_line(const ordered_json& value);
// A whole number without decimals, and null if not finite.
ordered_json json_number(double value);

// Part of standard output could not be written; main reports it when the command is over.
bool output_lost();
