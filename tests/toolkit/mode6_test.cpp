#include "decode_fixture.h"

namespace {

class mode6_test : public decode_test {};

TEST_F(mode6_test, raw_values_scale_by_their_identifier) {
    const struct {
        std::string identifier;
        std::string value;
        std::string text;
    } cases[] = {
        {"01", "0010", "16.000000 "},
        {"03", "0010", "48.000000 "},
        {"07", "1F40", "2000.000000 RPM"},
        {"7", "1f40", "2000.000000 RPM"},
        {"16", "01F4", "10.000000 ^C"},
        {"16", "0190", "0.000000 ^C"},
        {"20", "0001", "0.003906 "},
        {"29", "0010", "16.000000 "},
        {"2E", "0000", "0.000000 False"},
        {"2E", "0001", "1.000000 True"},
        {"2E", "FFFF", "65535.000000 True"},
        {"39", "0000", "-327.680000 %"},
        {"39", "8000", "32440.320000 %"},
        {"80", "0001", "1.000000 "},
        {"8B", "FFFF", "65.535000 mV"},
        {"90", "7FFFF", "524287.000000 ms"},
        {"90", "80000", "-32768.000000 ms"},
        {"90", "FFFFFFFF", "-1.000000 ms"},
        {"10", "FFFFFFFF", "4294967295.000000 ms"},
        {"96", "0001", "0.100000 ^C"},
        {"FE", "0004", "1.000000 Pa"},
        {"FF", "0004", "4.000000 "},
        {"1FE", "80000", "524288.000000 "},
        {"", "", "0.000000 "},
        {"zz", "zz", "0.000000 "},
        {"10", "123456789ABC", "4294967295.000000 ms"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(mac_toolies::CAN_scale_and_units(c.identifier, c.value, true), c.text);
        EXPECT_EQ(mac_toolies::CAN_scale_and_units(c.identifier, c.value, false),
                  c.text.substr(0, c.text.find(' ')));
    }
}

TEST_F(mode6_test, description_is_that_of_the_last_line_not_above_the_identifier) {
    write_table("OBDMID_CAN", "01|Oxygen sensor|B1S1\r\n05 no bar\n21|Catalyst\nA0|Misfire");
    write_table("TID_CAN", "00|Zero\n02|Two\n");
    const struct {
        std::string identifier;
        bool is_OBDMID;
        std::string text;
    } cases[] = {
        {"01", true, "Oxygen sensor|B1S1\r"},
        {"04", true, "Oxygen sensor|B1S1\r"},
        {"05", true, "05 no bar"},
        {"9f", true, "Catalyst"},
        {"A0", true, "N/A"}, // the last line only closes the table
        {"FF", true, "N/A"},
        {"00", true, "N/A"},
        {"FFFFFFFFFF", true, "N/A"},
        {"zz", false, "Zero"},
        {"01", false, "Zero"},
        {"02", false, "N/A"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(decoder.grab_CAN_mode6_OBDMID_TESTID_description(c.identifier, c.is_OBDMID),
                  c.text)
            << c.identifier;
}

TEST_F(mode6_test, missing_or_empty_table_describes_nothing) {
    EXPECT_EQ(decoder.grab_CAN_mode6_OBDMID_TESTID_description("01", true), "N/A");
    write_table("TID_CAN", "");
    EXPECT_EQ(decoder.grab_CAN_mode6_OBDMID_TESTID_description("01", false), "N/A");
}

} // namespace
