// Numbers in display texts: fixed decimals, "." whatever the locale, rounded as printf rounds.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Room that any finite double with up to 6 decimals fits in.
inline constexpr std::size_t FIXED_DECIMALS_ROOM = 320;

// Writes `value` with `decimals` decimals (0 to 6) at `out`, which has FIXED_DECIMALS_ROOM, and
// returns the end. What rounds to zero is written without a sign.
char* write_fixed_decimals(char* out, double value, int decimals);

std::string fixed_decimals(double value, int decimals);

// The number in front of the first blank; 0 when there is none. "." whatever the locale. What no
// double holds is the largest one.
double leading_number(std::string_view text);
