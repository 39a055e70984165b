// Numbers in display texts: fixed decimals, "." whatever the locale, rounded as printf rounds.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Enough room for any finite double with up to 6 decimals.
inline constexpr std::size_t FIXED_DECIMALS_ROOM = 320;

// Writes `value` with `decimals` decimals (0 to 6) at `out`, which has FIXED_DECIMALS_ROOM, and
// returns the end. What rounds to zero is written without a sign.
char* write_fixed_decimals(char* out, double value, int decimals);

std::string fixed_decimals(double value, int decimals);

// The number before the first blank; 0 when there is none. "." whatever the locale. Saturates at
// the largest double.
double leading_number(std::string_view text);
