// The adapter's AT PP commands: 48 bytes with which a user may change its defaults. They are stored
// and shown, but do not change the virtual adapter's defaults.
#pragma once

#include "adapter_state.h"

#include <string>
#include <string_view>

// `digits` are the command's hexadecimal digits. Nothing for an unknown number.
std::optional<std::string> set_parameter(adapter_state& state, std::string_view digits);
std::optional<std::string> switch_parameter(adapter_state& state, std::string_view digits, bool on);
// All of them, four to a line, lines separated by "\r".
std::string parameter_summary(const adapter_state& state);
