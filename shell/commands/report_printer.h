// How the command line prints what the screens found.
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

// The object with what was told on the way: the status that the task ended with, and the log.
void print_conversation(ordered_json object, const std::string& status,
                        const conversation_log& log);

// Lines of JSON for people, or one line. Bytes that are not UTF-8 become replacement characters.
std::string json_lines(const ordered_json& value);
std::string json_line(const ordered_json& value);
// A whole number without decimals, and null for what is no number.
ordered_json json_number(double value);

// Some of standard output could not be written; main tells it once the command is over.
bool output_lost();
