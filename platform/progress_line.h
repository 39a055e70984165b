// A progress line on standard error, rewritten in place; nothing if standard error is not a
// terminal. No escape codes, so any terminal can show it. To be cleared before printing anything
// else to a terminal.
#pragma once

#include <string_view>

// Shows as much of the first line of `text` as fits.
void show_progress(std::string_view text);
void clear_progress();
