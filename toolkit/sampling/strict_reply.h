// Strict reading of a reply in fast sampling, with headers on: every frame and byte must fit, each
// unit answers once, and there is nothing else (ISO 15765-2, SAE J1979). reading.h is the lenient
// reader for everything else.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct unit_message {
    std::string unit; // its address, digits
    std::string data; // digits, the service byte first
    int frames = 0;
};

struct strict_reply {
    std::vector<unit_message> messages; // in the order of addresses
    std::string notice; // without blanks; the adapter's notice, if nothing else came
    bool odd = false;   // something does not fit
};

// `command`: as it was sent, for adapters that echo it.
strict_reply read_strictly(std::string_view command, std::string_view reply);

struct parameter_answer {
    std::string pid;
    std::string reply; // as if requested alone, "410C1AF8"
};

using digits_by_pid = std::map<std::string, std::size_t, std::less<>>;

// The parameters of an answer, in order. Nothing unless it splits without remainder into distinct
// parameters of known lengths.
std::optional<std::vector<parameter_answer>> split_answer(std::string_view data,
                                                          const digits_by_pid& lengths);
