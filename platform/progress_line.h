// A line on standard error that tells how far a command is, rewritten in place; nothing when
// standard error is no terminal. No escape codes: any terminal can show it. Whoever prints anything
// else to a terminal clears it first.
#pragma once

#include <string_view>

// The first line of `text`, as much of it as fits.
void show_progress(std::string_view text);
void clear_progress();
