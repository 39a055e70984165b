#include "mac_toolies.h"
#include "text.h"

#include <stdexcept>

namespace {

constexpr int CONTINUOUS_MONITORS = 3;
constexpr int MONITORS = 11;

// The byte of the two hex digits at `position`; missing digits read as 0.
int byte_at(std::string_view text, std::size_t position) {
    const std::string digits = mac_toolies::padRight(slice(text, position, 2), 2, "0");
    return mac_toolies::charToNibble(digits[0]) * 16 + mac_toolies::charToNibble(digits[1]);
}

} // namespace

void mac_toolies::handle_readiness_codes(std::string_view flags_text,
                                         std::vector<readiness_flag>& these_flags) const {
    const auto labels =
        get_array_from_resource("readinessLabels", "txt").value_or(std::vector<std::string>());
    const int continuous = byte_at(flags_text, 0);
    const int supported = byte_at(flags_text, 2);
    const int incomplete = byte_at(flags_text, 4);

    these_flags.clear();
    for (int i = 0; i < MONITORS; ++i) {
        const auto line = static_cast<std::size_t>(i);
        if (line >= labels.size())
            throw std::out_of_range("readinessLabels: index " + std::to_string(i) + " beyond " +
                                    std::to_string(labels.size()) + " lines");
        const bool is_continuous = i < CONTINUOUS_MONITORS;
        const int mask = 1 << (is_continuous ? i : i - CONTINUOUS_MONITORS);
        const bool is_supported = ((is_continuous ? continuous : supported) & mask) != 0;
        const bool is_incomplete = ((is_continuous ? continuous >> 4 : incomplete) & mask) != 0;
        these_flags.push_back({!is_supported   ? "N/A"
                               : is_incomplete ? "X"
                                               : "OK",
                               labels[line], is_continuous ? "Continous" : "Non-Continous"});
    }
}
