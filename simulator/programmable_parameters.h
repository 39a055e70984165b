// The adapter's AT PP commands: 48 bytes that a user may set to change its defaults. They are kept
// and shown; the virtual adapter's own defaults do not follow them.
#pragma once

#include "adapter_state.h"

#include <string>
#include <string_view>

// `digits` are the command's hexadecimal digits. Absent: a number that there is not.
std::optional<std::string> set_parameter(adapter_state& state, std::string_view digits);
std::optional<std::string> switch_parameter(adapter_state& state, std::string_view digits, bool on);
// All of them, four in a line, lines parted by "\r".
std::string parameter_summary(const adapter_state& state);
