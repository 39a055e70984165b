#include "comma_locale.h"
#include "decode_fixture.h"
#include "globalVars.h"

#include <cmath>
#include <random>

namespace {

class translation_test : public decode_test {
  protected:
    translation_test() {
        write_table("OBD_MODES", "first mode\n1996 and later\n~ unknown\n");
        write_table("OBD_FUEL_TYPE", "Petrol\nnan\n-\n1e3 litres\n-.5 x");
        g_cur_barom_press = 101;
    }
    ~translation_test() override { reset_global_vars(); }

    std::string imperial(std::string_view reply) {
        use_metric(false);
        return decoder.translateResponse(reply);
    }
    std::string metric(std::string_view reply) {
        use_metric(true);
        return decoder.translateResponse(reply);
    }
};

struct translation_case {
    std::string reply;
    std::string imperial;
    std::string metric = imperial;
};

const translation_case READABLE[] = {
    {"41 03 01 00", "Open Loop - not ready for Close"},
    {"41 03 02 00", "Close Loop - Using O2 snsr as feedback"},
    {"41 03 04 00", "Open Loop - due to driving cond"},
    {"41 03 08 00", "Open Loop - due to syst fault"},
    {"41 03 10 00", "Close Loop - fault with a O2 snsr"},
    {"41 03 03 00", "N/A"},
    {"41 04 FF", "100.00  %"},
    {"41 04 80", "50.20  %"},
    {"41 05 7B", "181.40 ° F", "83.0 ° C"},
    {"41 05 28 FF", "32.00 ° F", "0.0 ° C"},
    {"41 05 00", "-40.00 ° F", "-40.0 ° C"},
    {"41 06 80", "0.00  %"},
    {"41 09 7F", "-0.78  %"},
    {"41 0A 64", "43.5  psi", "300.0  KPa"},
    {"41 0B 64", "29.5  in.Hg", "100  KPa"},
    {"41 0C 1A F8\r\r>", "1726.00 RPM"},
    {"41 0D 64", "62.50 mph", "100.00  Km/h"},
    {"41 0E 80", "0.0  deg"},
    {"41 0E 7F", "-0.5  deg"},
    {"41 0F FF", "419.00 ° F", "215.0 ° C"},
    {"41 10 01 F4", "0.67  lb/min", "5.00  gm/s"},
    {"41 11 33", "20.00  %"},
    {"41 12 01", "UpStream 1st cat"},
    {"41 12 02", "DownStream 1st cat"},
    {"41 12 04", "atmosphere/off"},
    {"41 14 5A 7F", "0.450  V / -0.78  V"},
    {"41 1B C8 FF", "1.000  V / 99.22  V"},
    {"41 14 5A", "0.450  V / -100.00  V"},
    {"41 14 5A 7", "0.450  V / -100.00  V"},
    {"41 14 5A -1", "0.450  V"}, // no byte
    {"41 1C 01", "first mode"},
    {"41 1C 01 FF", "first mode"},
    {"41 1C 04", ""},
    {"41 1C 05", "N/A"},
    {"41 1C 00", "N/A"},
    {"41 1E 01", "Power Take-off Active"},
    {"41 1E 00", "Power Take-off Not Active"},
    {"41 1F 0E 11", "1 'Hours' 0 'mins' 1 'secs'"},
    {"41 1F 00 3B", "0 'Hours' 0 'mins' 59 'secs'"},
    {"41 22 01 00", "2.9 psi", "20.0 KPa"},
    {"41 22 00 0D", "0.1 psi", "1.0 KPa"},
    {"41 23 00 01", "1.4 psi", "10.0 KPa"},
    {"41 24 40 00 80 00", "4.000 V0.500  "},
    {"41 2B FF FF FF FF", "8.000 V2.000  "},
    {"41 24 40 00", "0.000 V0.500  "},
    {"41 2C 80", "50.00 %"},
    {"41 2D 80", "0.00  %"},
    {"41 2F 01", "0.00 %"},
    {"41 30 05", "5 %"},
    {"41 31 00 10", "10.00 mls", "16.00 Kms"},
    {"41 32 80 10", "-2320.0 psi", "-16.0 Pa"},
    {"41 32 80 00", "0.0 psi", "0.0 Pa"},
    {"41 32 7F FF", "4751215.0 psi", "32767.0 Pa"},
    {"41 33 64", "14.5 psi", "100.0 KPPa"},
    {"41 34 80 00 80 00", "0.000 mA1.000 "},
    {"41 3B 80 00 7F FF", "-0.004 mA1.000 "},
    {"41 3C 11 80", "-36.9 F", "-39.0 C"},
    {"41 3C DE", "0.0 F", "-18.0 C"},
    {"41 3F FF FF", "5.9 F", "-15.0 C"},
    {"41 42 36 B0", "14.000 V"},
    {"41 43 00 FF", "100.000 %"},
    {"41 44 80 00", "0.000  "},
    {"41 45 7F", "49.0 %"},
    {"41 46 16", "-0.4 F", "-18.0 C"},
    {"41 4C FF", "100.0 %"},
    {"41 4D 0B B8", "2 days 2 'hrs' 0 'mins' "},
    {"41 4E 05 9F", "0 days 23 'hrs' 59 'mins' "},
    {"41 51 01", "Petrol"},
    {"41 51 01 01", "N/A"},
    {"41 52 80", "50.0 %"},
    {"41 E4 04 FB", "29.99 mpg", "12.75 kpl"},
    {"41 E5 65", "0.00 psi", "0.00 KPa"},
    {"41 E5 33", "-7.25 psi", "-50.00 KPa"},
    // Forms of reply.
    {"41 0D 64\r41 0D 00\r\r>", "62.50 mph", "100.00  Km/h"},
    {"\r\n 41 0d64 \r\n", "62.50 mph", "100.00  Km/h"},
    {"> 41 0D 64", "62.50 mph", "100.00  Km/h"},
    {">\r41 0D 64\r41 0D 00\r", "62.50 mph", "100.00  Km/h"},
    {"7E 0D 64", "62.50 mph", "100.00  Km/h"},
    {"41 0C 1", "0.00 RPM"},
    {"41 0C zz", "0.00 RPM"},
    {"41 0C 1G F8", "0.25 RPM"},
    {"41 0C " + std::string(60, '0') + "1A F8", "1726.00 RPM"},
    {"41 0C " + std::string(60, 'F'), "1073741823.75 RPM"},
    {"41 23 FF FF FF FF FF", "6227702577.8 psi", "42949672950.0 KPa"},
};

const std::string UNREADABLE[] = {
    "",
    " ",
    "\r\r",
    ">",
    "~",
    "-1",
    "NO DATA",
    "STOPPED",
    "?",
    "41 0",
    "41 0C",
    "41 13 03",
    "41 12 03",
    "41 00 BE 1F A8 13",
    "41 E6 01",
    "41 FF 01",
    "41 zz 01",
    "UNABLE TO CONNECT",
    "SEARCHING...",
    "BUS INIT: ...ERROR",
    "7F 01 12",
    "\xC3\xA9 41 0C 1A F8",
    "G1 0C 1A F8",
    // The first line is all that counts, an echo too.
    "01 0C\r41 0C 1A F8\r\r>",
};

TEST_F(translation_test, replies_read_as_the_display_text_of_either_unit_system) {
    for (const translation_case& c : READABLE) {
        EXPECT_EQ(imperial(c.reply), c.imperial) << c.reply;
        EXPECT_EQ(metric(c.reply), c.metric) << c.reply;
    }
}

TEST_F(translation_test, what_cannot_be_read_is_a_tilde) {
    for (const std::string& reply : UNREADABLE) {
        EXPECT_EQ(imperial(reply), "~") << reply;
        EXPECT_TRUE(std::isnan(decoder.get_OBDVal(reply))) << reply;
    }
}

TEST_F(translation_test, value_is_the_number_the_text_begins_with) {
    const struct {
        std::string reply;
        double value;
    } cases[] = {{"41 0C 1A F8", 1726},     {"41 10 01 F4", 0.67}, // as rounded
                 {"41 05 00", -40},         {"41 03 02 00", 0},    {"41 03 03 00", 0},
                 {"41 1F 0E 11", 1},        {"41 14 5A 7F", 0.45}, {"41 24 40 00 80 00", 4},
                 {"41 4D 0B B8", 2},        {"41 1C 02", 1996},    {"41 51 01", 0},
                 {"41 51 02", 0}, // "nan" is no number
                 {"41 51 03", 0},           {"41 51 04", 1},       {"41 51 05", -0.5},
                 {"41 32 7F FF", 4751215.0}};
    for (const auto& c : cases)
        EXPECT_EQ(decoder.get_OBDVal(c.reply), c.value) << c.reply;
    EXPECT_TRUE(std::isnan(decoder.get_OBDVal("41 1C 03"))) << "a table text with a tilde";
    EXPECT_TRUE(std::isnan(decoder.get_OBDVal("41 1C 04"))) << "an empty table text";
}

TEST_F(translation_test, missing_table_is_not_available) {
    const bundle empty(root() + "/nowhere", "en");
    const mac_toolies bare({&empty, &settings});
    EXPECT_EQ(bare.translateResponse("41 1C 01"), "N/A");
    EXPECT_EQ(bare.translateResponse("41 51 01"), "N/A");
    EXPECT_EQ(decoder.translateResponse("41 1C 01"), "first mode") << "each toolkit its own tables";
}

TEST_F(translation_test, no_value_of_any_parameter_reads_minus_zero) {
    const auto minus_zero = [](std::string_view text) {
        const std::string_view number = text.substr(0, text.find_first_not_of("-0123456789."));
        return number.starts_with("-0") && number.find_first_of("123456789") == number.npos;
    };
    for (const bool metric_units : {false, true}) {
        use_metric(metric_units);
        for (unsigned pid = 0; pid < 256; ++pid)
            for (unsigned value = 0; value < 0x10000; value += value < 0x100 ? 1 : 499) {
                std::string reply = "41" + mac_toolies::convertByte2HexStr(pid);
                reply += mac_toolies::convertByte2HexStr(value);
                const std::string text = decoder.translateResponse(reply);
                ASSERT_FALSE(minus_zero(text)) << reply << " " << text;
            }
    }
}

TEST_F(translation_test, decimal_comma_of_the_locale_plays_no_part) {
    const comma_locale german;
    if (!german.holds())
        GTEST_SKIP() << "no such locale here";
    EXPECT_EQ(imperial("41 14 5A 7F"), "0.450  V / -0.78  V");
    EXPECT_EQ(decoder.get_OBDVal("41 14 5A 7F"), 0.45);
    EXPECT_EQ(mac_toolies::CAN_scale_and_units("0B", "01F4", true), "0.500000 V");
}

TEST_F(translation_test, any_bytes_give_one_text_and_its_number) {
    std::mt19937 random(20);
    const std::string_view likely = "0123456789ABCDEF0123456789abcdef \r\n>.:x-+~G";
    for (int round = 0; round < 20000; ++round) {
        std::string reply = round % 4 == 0 ? "" : "41";
        for (std::size_t length = random() % 40; length > 0; --length)
            reply +=
                round % 2 == 0 ? static_cast<char>(random()) : likely[random() % likely.size()];
        use_metric(round % 3 == 0);
        const translated once = decoder.translate_once(reply);
        ASSERT_EQ(once.text, decoder.translateResponse(reply)) << reply;
        const double value = decoder.get_OBDVal(reply);
        ASSERT_TRUE(once.value == value || (std::isnan(once.value) && std::isnan(value))) << reply;
        ASSERT_EQ(std::isnan(value), once.text.empty() || once.text.find('~') != std::string::npos)
            << reply;
    }
}

} // namespace
