// The adapter's own commands, "AT ...", as one table: a pattern and what it does.
#pragma once

#include "adapter_state.h"

#include <string>
#include <string_view>

// What a command may need to know about the car.
struct at_surroundings {
    double battery_volts = 12.4;
    bool ignition = true;
};

// `command`: without "AT", blanks and control characters, in capitals. Returns the answer's lines,
// separated by "\r"; nothing for an unknown command ("?").
std::optional<std::string> run_at_command(adapter_state& state, const at_surroundings& car,
                                          std::string_view command);

// Z and WS restart the chip, which takes a while and prints two empty lines first.
bool is_restart(std::string_view command);

// FI and SI wake a K line immediately, fast or slowly, and report the result.
bool is_initiation(std::string_view command);
