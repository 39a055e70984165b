#include "fixed_decimals.h"

#include "text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

char* write_fixed_decimals(char* out, double value, int decimals) {
    char* const end =
        std::to_chars(out, out + FIXED_DECIMALS_ROOM, value, std::chars_format::fixed, decimals)
            .ptr;
    // Only values this close to zero can print as "-0.00".
    if (std::signbit(value) && value > -1 &&
        std::all_of(out + 1, end, [](char c) { return c == '0' || c == '.'; }))
        return std::copy(out + 1, end, out);
    return end;
}

std::string fixed_decimals(double value, int decimals) {
    char room[FIXED_DECIMALS_ROOM];
    return {room, write_fixed_decimals(room, value, decimals)};
}

double leading_number(std::string_view text) {
    std::string_view piece = text.substr(0, text.find(' '));
    if (piece.starts_with('+'))
        piece.remove_prefix(1);
    const std::string_view digits = slice(piece, piece.starts_with('-') ? 1 : 0);
    if (digits.empty() || (digits[0] != '.' && (digits[0] < '0' || digits[0] > '9')))
        return 0;
    double number = 0;
    const auto [end, error] = std::from_chars(piece.data(), piece.data() + piece.size(), number,
                                              std::chars_format::fixed);
    // Without an exponent, only the integer part can overflow; what is too small is 0.
    const bool too_large = error == std::errc::result_out_of_range &&
                           digits.find_first_not_of("0.") < digits.find('.');
    if (!too_large)
        return number;
    constexpr double MOST = std::numeric_limits<double>::max();
    return piece.starts_with('-') ? -MOST : MOST;
}
