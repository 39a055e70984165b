#include "comma_locale.h"
#include "decode_fixture.h"
#include "fixed_decimals.h"

#include <cmath>
#include <cstdio>
#include <limits>
#include <random>

namespace {

using translation_test = decode_test;

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
    EXPECT_EQ(decoder.translateResponse("41 14 5A 7F"), "0.450  V / -0.78  V");
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

TEST(fixed_decimals, numbers_round_as_printf_rounds_but_zero_has_no_sign) {
    const auto printed = [](double value, int decimals) {
        char room[FIXED_DECIMALS_ROOM];
        return std::string(room, static_cast<std::size_t>(
                                     std::snprintf(room, sizeof room, "%.*f", decimals, value)));
    };
    const std::pair<double, int> cases[] = {{-0.0, 1},  {-0.04, 1}, {-0.5, 0},
                                            {-0.05, 1}, {2.5, 0},   {0.125, 2}};
    const char* const expected[] = {"0.0", "0.0", "0", "-0.1", "2", "0.12"};
    for (std::size_t i = 0; i < std::size(cases); ++i)
        EXPECT_EQ(fixed_decimals(cases[i].first, cases[i].second), expected[i]);
    EXPECT_EQ(fixed_decimals(std::numeric_limits<double>::lowest(), 6).size(), 317U);
    std::mt19937_64 random(5);
    for (int i = 0; i < 20000; ++i) {
        const double value = -1 - static_cast<double>(random() % 100000) / 800;
        EXPECT_EQ(fixed_decimals(value, i % 4), printed(value, i % 4));
    }
}

} // namespace
