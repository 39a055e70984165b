// What a first start finds in the preferences, and what their button brings back.
#pragma once

#include <string>
#include <vector>

class user_defaults;

// The parameters of a run that were never chosen.
std::vector<std::string> default_pids();

// Into the store and into the shared state. The stored "log_runs" is left alone on purpose: the
// next time the preferences are left writes it.
void use_default_settings(user_defaults& store);
