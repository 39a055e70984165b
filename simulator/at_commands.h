// The adapter's own commands, "AT ...", as one table: a pattern and what it does.
#pragma once

#include "adapter_state.h"

#include <string>
#include <string_view>

// What a command may need to know of the car.
struct at_surroundings {
    double battery_volts = 12.4;
    bool ignition = true;
};

// `command` without "AT", blanks and control characters, in upper case. The answer's lines, parted
// by "\r"; absent for a command that there is not: "?".
std::optional<std::string> run_at_command(adapter_state& state, const at_surroundings& car,
                                          std::string_view command);

// Z and WS start the chip anew, which takes a while and blanks two lines first.
bool is_restart(std::string_view command);

// FI and SI waken a K line now, fast or slowly, and say how that went.
bool is_initiation(std::string_view command);
