#include "mac_toolies.h"
#include "text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using toolkit = mac_toolies;

namespace {

struct text_case {
    std::string_view input;
    std::string_view expected;
};

} // namespace

TEST(reply_text, cleaning_collapses_line_ends_and_drops_prompt_and_notice) {
    const text_case cases[] = {
        {"SEARCHING...\r41 00 BE 1F A8 13\r\r>", "41 00 BE 1F A8 13\r"},
        {"41 0C 1A F8\r\r>", "41 0C 1A F8\r"},
        {"41 0C 1A F8\r\n\r\n>", "41 0C 1A F8\r"},
        {"\r\r\r", "\r\r"},
        {"\r>\r", "\r\r"}, // the prompt goes after the line ends
        {"...4\r1\r0\r", "410\r"},
        {"...", ""},
        {"a...b...\rc", "b...\rc"},
        {"", ""},
    };
    for (const auto& [input, expected] : cases)
        EXPECT_EQ(toolkit::clean_a_reply(input), expected) << input;
    EXPECT_EQ(toolkit::fix_3dots("SEARCHING...\r41"), "...\r41");
    EXPECT_EQ(toolkit::fix_3dots("41 00"), "41 00");
}

TEST(reply_text, only_a_reply_to_the_pid_is_good) {
    EXPECT_EQ(toolkit::check_bad_reply("41 0C 1A F8", "0C"), "41 0C 1A F8");
    EXPECT_EQ(toolkit::check_bad_reply("410C", "0C"), "410C");
    for (const std::string_view bad : {"41 0D 1A", "NO DATA", "41", "41 0", "", "~", "   0C"})
        EXPECT_EQ(toolkit::check_bad_reply(bad, "0C"), "~") << bad;
}

TEST(reply_text, hex_is_read_as_c_reads_it) {
    const struct {
        std::string_view input;
        std::uint32_t expected;
    } cases[] = {
        {"1A", 26},
        {"G1", 0},
        {"", 0},
        {" \t\r\n1a", 26},
        {"0x1A", 26},
        {"0X", 0},
        {"+1A", 26},
        {"-1", 0xFFFFFFFF},
        {"1 A", 1},
        {"+ 1", 0},
        {"0xZ", 0},
        {"FFFFFFFF", 0xFFFFFFFF},
        {"00000000001", 1},
        {"100000000", 0xFFFFFFFF},
        {"41\xFF", 0x41},
    };
    for (const auto& [input, expected] : cases)
        EXPECT_EQ(toolkit::convertStr2Byte(input), expected) << input;
}

TEST(reply_text, hex_bytes_come_in_pairs_and_bad_digits_are_0) {
    using bytes = std::vector<std::uint8_t>;
    EXPECT_EQ(toolkit::fromHexString("410C1AF8"), (bytes{0x41, 0x0C, 0x1A, 0xF8}));
    EXPECT_EQ(toolkit::fromHexString("zzfF"), (bytes{0, 0xFF}));
    EXPECT_EQ(toolkit::fromHexString("410"), std::nullopt);
    EXPECT_EQ(toolkit::convertByte2HexStr(0xA), "0A");
    EXPECT_EQ(toolkit::convertByte2HexStr(0x1AF8), "1AF8");
}

TEST(reply_text, counting_leaves_out_what_splitting_keeps) {
    EXPECT_EQ(toolkit::count_items_in_Str("a\r\rb\r", "\r"), 2);
    EXPECT_THAT(toolkit::Pull_line_into_array("a\r\rb\r", "\r"), ElementsAre("a", "", "b", ""));
    EXPECT_EQ(toolkit::count_items_in_Str("", "\r"), 0);
    EXPECT_THAT(toolkit::Pull_line_into_array("", "\r"), ElementsAre(""));
    EXPECT_EQ(toolkit::count_items_in_Str(",a;b,", ",;"), 2);
    std::string long_text(298, 'a');
    EXPECT_EQ(toolkit::count_items_in_Str(long_text + "\rb", "\r"), 1); // "b" is byte 300
    long_text.pop_back();
    EXPECT_EQ(toolkit::count_items_in_Str(long_text + "\rb", "\r"), 2);
}

TEST(reply_text, replacing_ends_every_token_with_the_replacement) {
    EXPECT_EQ(toolkit::myReplace("a b", " ", ","), "a,b,");
    EXPECT_EQ(toolkit::myReplace("ab", " ", ","), "ab");
    EXPECT_EQ(toolkit::myReplace(" ab", " ", ","), "ab,");
    EXPECT_EQ(toolkit::myReplace("  ", " ", ","), "");
    EXPECT_EQ(toolkit::myReplace("", " ", ","), "");
}

TEST(reply_text, padding_on_the_right_cuts_and_on_the_left_does_not) {
    EXPECT_EQ(toolkit::padRight("ABCDEF", 4, "0"), "ABCD");
    EXPECT_EQ(toolkit::padRight("A", 4, "xy"), "Axyx");
    EXPECT_EQ(toolkit::padRight("A", -1, "x"), "");
    EXPECT_EQ(toolkit::padRight("A", 3, ""), "A");
    EXPECT_EQ(toolkit::padLeft("ABCDEF", 4, "0"), "ABCDEF");
    EXPECT_EQ(toolkit::padLeft("7", 3, "0"), "007");
    EXPECT_EQ(toolkit::padLeft("7", 4, "ab"), "abab7");
    EXPECT_EQ(toolkit::padString("43", '0', 6, true), "430000");
    EXPECT_EQ(toolkit::padString("43", '0', 6, false), "000043");
    EXPECT_EQ(toolkit::padString("43", '0', 1, true), "43");
}

TEST(reply_text, a_number_is_formatted_by_its_decimals) {
    const text_case cases[] = {
        {"12", "12"},
        {"12.0", "12"},
        {"12.340", "12.34"},
        {"12.345", "12.35"},
        {"-3.00", "-3"},
        {"0.1", "0.10"},
        {" +7.5", "7.50"},
        {"x.5", "0.00"},
        {"1e99.5", "1e99.5"},
        {".", "0"},
        {"99999999999.0", "2147483647"},
    };
    for (const auto& [input, expected] : cases)
        EXPECT_EQ(toolkit::formatStringWithDouble(input, 2), expected) << input;
    EXPECT_EQ(toolkit::formatStringWithDouble("0.1", 9), "0.100000001"); // single precision
}

TEST(text, pieces_are_never_out_of_range) {
    EXPECT_EQ(slice("abc", 1, 9), "bc");
    EXPECT_EQ(slice("abc", 3), "");
    EXPECT_EQ(slice("abc", 9, 1), "");
    EXPECT_EQ(replace_all("aaa", "aa", "a"), "aa");
    EXPECT_EQ(replace_all("a", "", "b"), "a");
    EXPECT_EQ(without("4 1>\n", " >"), "41\n");
    EXPECT_EQ(trimmed(" \ra b\n"), "a b");
    EXPECT_EQ(trimmed(" \r"), "");
    EXPECT_THAT(split("a, b", ", "), ElementsAre("a", "b"));
    EXPECT_THAT(split("ab", ""), ElementsAre("ab"));
}
