#include "fixed_decimals.h"
#include "standard_values.h"
#include "text.h"

#include <algorithm>

namespace {

// A unit-and-scaling identifier (SAE J1979, appendix of service 06): the scaled value is
// (x * factor + offset) * last_factor.
struct scaling {
    std::uint32_t identifier;
    double factor;
    std::string_view unit;
    double offset = 0;
    double last_factor = 1;
    std::string_view unit_of_zero = {}; // if it differs from `unit`
};

constexpr scaling SCALINGS[] = {
    {0x01, 1, ""},
    {0x02, 2, ""},
    {0x03, 3, ""},
    {0x04, 4, ""},
    {0x05, 3.05e-05, ""},
    {0x06, 0.000305, ""},
    {0x07, 0.25, "RPM"},
    {0x08, 0.01, "KPH"},
    {0x09, 1, "KPH"},
    {0x0A, 0.122, "mV"},
    {0x0B, 0.001, "V"},
    {0x0C, 0.01, "V"},
    {0x0D, 0.00390625, "mA"},
    {0x0E, 0.001, "A"},
    {0x0F, 0.01, "A"},
    {0x10, 1, "ms"},
    {0x11, 100, "ms"},
    {0x12, 1, "s"},
    {0x13, 1, "mOhm"},
    {0x14, 1, "Ohm"},
    {0x15, 1, "kOhm"},
    {0x16, 0.1, "^C", -40},
    {0x17, 0.01, "kPa"},
    {0x18, 0.0117, "kPa"},
    {0x19, 0.079, "kPa"},
    {0x1A, 1, "kPa"},
    {0x1B, 10, "kPa"},
    {0x1C, 0.01, "deg"},
    {0x1D, 0.5, "deg"},
    {0x1E, 3.05e-05, "lambda"},
    {0x1F, 0.05, "A/F ratio"},
    {0x20, 0.0039062, ""},
    {0x21, 1, "mHz"},
    {0x22, 1, "Hz"},
    {0x23, 1, "kHz"},
    {0x24, 1, "counts"},
    {0x25, 1, "Km"},
    {0x26, 0.1, "V/ms"},
    {0x27, 0.01, "g/s"},
    {0x28, 1, "g/s"},
    {0x2A, 0.001, "kg/h/s"},
    {0x2B, 1, "switches"},
    {0x2C, 0.01, "g/cyl"},
    {0x2D, 0.01, "mg/stroke"},
    {0x2E, 1, "True", 0, 1, "False"},
    {0x2F, 0.01, "%"},
    {0x30, 0.001526, "%"},
    {0x31, 0.001, "Lt"},
    {0x32, 3.05e-05, "mm"},
    {0x33, 0.00024414, "lambda"},
    {0x34, 1, "min"},
    {0x35, 10, "ms"},
    {0x36, 0.01, "g"},
    {0x37, 0.1, "g"},
    {0x38, 1, "g"},
    {0x39, 100, "%", -32768, 0.01},
    {0x81, 1, ""},
    {0x82, 0.1, ""},
    {0x83, 0.01, ""},
    {0x84, 0.001, ""},
    {0x85, 3.05e-05, ""},
    {0x86, 0.000305, ""},
    {0x8A, 0.122, "mV"},
    {0x8B, 0.001, "mV"},
    {0x8C, 0.01, "mV"},
    {0x8D, 0.00390625, "mA"},
    {0x8E, 0.001, "mA"},
    {0x90, 1, "ms"},
    {0x96, 0.1, "^C"},
    {0x9C, 0.01, "deg"},
    {0x9D, 0.5, "deg"},
    {0xA8, 1, "g/s"},
    {0xA9, 0.25, "Pa/s"},
    {0xAF, 0.01, "%"},
    {0xB0, 0.003052, "%"},
    {0xB1, 2, "mV"},
    {0xFD, 0.001, "kPa"},
    {0xFE, 0.25, "Pa"},
};

constexpr scaling UNSCALED{0, 1, ""};
constexpr std::uint32_t LARGEST_UNSIGNED = 524287;

const scaling& scaling_of(std::uint32_t identifier) {
    const auto* found = std::ranges::lower_bound(SCALINGS, identifier, {}, &scaling::identifier);
    return found != std::end(SCALINGS) && found->identifier == identifier ? *found : UNSCALED;
}

// Signed identifiers: 80 to FF. Deliberately, only values of more than 19 bits are negative:
// two-byte values stay large and positive.
double raw_value(std::uint32_t identifier, std::uint32_t value) {
    const bool is_signed = identifier >= 0x80 && identifier <= 0xFF;
    if (is_signed && value > LARGEST_UNSIGNED)
        return static_cast<double>(value & 0x7FFF) - 32768;
    return value;
}

} // namespace

bool has_test_scaling(std::string_view identifier) {
    return &scaling_of(mac_toolies::convertStr2Byte(identifier)) != &UNSCALED;
}

std::string mac_toolies::CAN_scale_and_units(std::string_view identifier,
                                             std::string_view this_value, bool with_units) {
    const std::uint32_t number = convertStr2Byte(identifier);
    const double x = raw_value(number, convertStr2Byte(this_value));
    const scaling& row = scaling_of(number);
    char room[FIXED_DECIMALS_ROOM];
    const double scaled = (x * row.factor + row.offset) * row.last_factor;
    std::string text(room, write_fixed_decimals(room, scaled, 6));
    if (!with_units)
        return text;
    const bool zero = x == 0 && !row.unit_of_zero.empty();
    return text.append(" ").append(zero ? row.unit_of_zero : row.unit);
}

std::string mac_toolies::grab_CAN_mode6_OBDMID_TESTID_description(std::string_view identifier,
                                                                  bool is_OBDMID) const {
    const auto lines = get_array_from_resource(is_OBDMID ? "OBDMID_CAN" : "TID_CAN", "txt");
    if (!lines)
        return "N/A";
    const std::uint32_t wanted = convertStr2Byte(identifier);
    // Each line covers the identifiers up to the next line's, so the last one is never used.
    const auto beyond = std::ranges::find_if(*lines, [wanted](const std::string& line) {
        return convertStr2Byte(slice(std::string_view(line), 0, 2)) > wanted;
    });
    if (beyond == lines->begin() || beyond == lines->end())
        return "N/A";
    const std::string& entry = *std::prev(beyond);
    const std::size_t bar = entry.find('|');
    return bar == entry.npos ? entry : entry.substr(bar + 1);
}
