// Classifies a command line: a command to the adapter, a request to the car, or invalid.
#pragma once

#include "car.h"

#include <string>
#include <string_view>

struct command_line {
    enum class kind { empty, at, request, nonsense };

    kind type = kind::nonsense;
    std::string at_command; // without "AT"
    byte_string request;
    int expected_replies = 0; // an odd digit at a request's end; 0: any number
};

// The significant part of a command: without blanks and control characters, in capitals.
std::string plain_command(std::string_view text);

// `text` without its carriage return.
command_line read_command(std::string_view text);
