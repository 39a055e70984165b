// Test results: a unit identifier and a value, separated by a blank; then names of identifiers.
#include "fuzz_one.h"
#include "fuzz_toolkit.h"
#include "text.h"

int fuzz_one(std::span<const std::uint8_t> bytes) {
    static const fuzz_toolkit toolkit(false);
    const std::string_view text = as_text(bytes);
    const std::string_view identifier = text.substr(0, text.find(' '));
    const std::string_view value = slice(text, identifier.size() + 1);

    const std::string number = mac_toolies::CAN_scale_and_units(identifier, value, false);
    REQUIRE(number.size() >= 8 && number.size() <= 20);
    REQUIRE(number.find_first_not_of("-.0123456789") == number.npos);
    REQUIRE(number[number.size() - 7] == '.' && number != "-0.000000");
    const std::string with_unit = mac_toolies::CAN_scale_and_units(identifier, value, true);
    REQUIRE(with_unit.starts_with(number + " ") && with_unit.size() <= number.size() + 10);

    for (const bool is_monitor : {true, false}) {
        const std::string name =
            toolkit.decoder.grab_CAN_mode6_OBDMID_TESTID_description(identifier, is_monitor);
        REQUIRE(!name.empty() && name.find_first_of("|\n\r") == name.npos);
    }
    return 0;
}
