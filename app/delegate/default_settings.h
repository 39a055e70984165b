// The preferences of a first start, restored by the Defaults button.
#pragma once

#include <string>
#include <vector>

class user_defaults;

// The parameters of a run if none were ever chosen.
std::vector<std::string> default_pids();

// Written to the store and the shared state. The stored "log_runs" is deliberately left alone:
// leaving the preferences writes it.
void use_default_settings(user_defaults& store);
