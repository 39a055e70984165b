#include "fixed_decimals.h"
#include "standard_values.h"
#include "text.h"

#include <algorithm>

namespace {

// Unit-and-scaling identifiers (SAE J1979, service 06). From 80 on they are two's complement.
struct test_scaling {
    unsigned identifier;
    double factor;
    int decimals;
    std::string_view unit;
    double offset = 0;
};

constexpr test_scaling SCALINGS[] = {
    {0x02, 0.1, 1, ""},
    {0x03, 0.01, 2, ""},
    {0x04, 0.001, 3, ""},
    {0x39, 0.01, 2, "%", -327.68},
    {0x81, 1, 0, ""},
    {0x82, 0.1, 1, ""},
    {0x83, 0.01, 2, ""},
    {0x84, 0.001, 3, ""},
    {0x85, 1.0 / 32768, 6, ""},
    {0x86, 10.0 / 32768, 5, ""},
    {0x8A, 4000.0 / 32768, 3, "mV"},
    {0x8B, 0.001, 3, "V"},
    {0x8C, 0.01, 2, "V"},
    {0x8D, 128.0 / 32768, 5, "mA"},
    {0x8E, 0.001, 3, "A"},
    {0x90, 1, 0, "ms"},
    {0x96, 0.1, 1, "°C"},
    {0x9C, 0.01, 2, "°"},
    {0x9D, 0.5, 1, "°"},
    {0xA8, 1, 0, "g/s"},
    {0xA9, 0.25, 2, "Pa/s"},
    {0xAF, 0.01, 2, "%"},
    {0xB0, 100.0 / 32768, 4, "%"},
    {0xB1, 2, 0, "mV/s"},
    {0xFD, 0.001, 3, "kPa"},
    {0xFE, 0.25, 2, "Pa"},
};

constexpr unsigned FIRST_SIGNED = 0x80;

} // namespace

std::string standard_test_value(std::string_view identifier, std::string_view value) {
    const unsigned wanted = mac_toolies::convertStr2Byte(identifier);
    const auto* found = std::ranges::lower_bound(SCALINGS, wanted, {}, &test_scaling::identifier);
    if (found == std::end(SCALINGS) || found->identifier != wanted || !is_hex(value) ||
        value.size() > 4)
        return {};
    double raw = mac_toolies::convertStr2Byte(value);
    if (wanted >= FIRST_SIGNED && raw >= 0x8000)
        raw -= 0x10000;
    std::string text = fixed_decimals(raw * found->factor + found->offset, found->decimals);
    return text.append(found->unit.empty() ? "" : " ").append(found->unit);
}
