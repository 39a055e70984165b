#include "globalVars.h"
#include "mac_toolies.h"

#include <chrono>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using toolkit = mac_toolies;
using namespace std::string_view_literals;
using codes = std::vector<std::string>;

namespace {

struct reply_case {
    std::string_view name;
    std::string_view reply;
    codes expected;
};

} // namespace

TEST(trouble_codes, a_code_is_a_letter_and_four_digits) {
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"0133", "P0133"}, {"C1A4", "U01A4"}, {"4123", "C0123"}, {"9ABC", "B1ABC"},
        {"3400", "P3400"}, {"FfFf", "U3fFf"}, {"z1", "P01"},     {"", "P0"}};
    for (const auto& [digits, expected] : cases)
        EXPECT_EQ(toolkit::pull_DTC_code(digits), expected) << digits;
}

TEST(trouble_codes, older_buses_tell_three_codes_a_line) {
    const reply_case cases[] = {
        {"none", "43 00 00 00 00 00 00\r\r>", {"P0000"}},
        {"one", "43 01 33 00 00 00 00\r\r>", {"P0133"}},
        {"three", "43 01 33 C1 00 03 01\r>", {"P0133", "P0301"}}, // "C100" has no decimal value
        {"no decimal value", "43 01 33 0A 12 1A 12\r>", {"P0133", "P1A12"}},
        {"two lines",
         "43 01 33 02 20 03 00\r43 04 20 00 00 00 00\r\r>",
         {"P0133", "P0220", "P0300", "P0420"}},
        {"line feeds",
         "43 01 33 02 20 00 00\r\n43 01 33 00 00 00 00\r\n\r\n>",
         {"P0133", "P0220", "P0133"}},
        {"short line", "43 01\r>", {"P0100"}},
        {"long line", "43 01 33 00 00 00 00 12 34\r>", {"P0133"}},
        {"search notice", "SEARCHING...\r43 01 33 00 00 00 00\r\r>", {"P0133"}},
        {"notice on the line", "SEARCHING...43 01 33 00 00 00 00\r\r>", {"P0133"}},
        {"bus notice", "BUS INIT: ...OK\r43 01 33 00 00 00 00\r\r>", {"P0133"}},
        {"bus notice without dots", "BUS INIT: OK\r\n43 01 33 00 00 00 00\r\r>", {"P0133"}},
        {"bus notice on the line", "BUS INIT: ...OK43 01 33 00 00 00 00\r\r>", {"P0133"}},
        {"failed bus", "BUS INIT: ...ERROR\r\r>", {}},
        {"echo", "03\r43 01 33 00 00 00 00\r\r>", {"P0133"}},
        {"no data", "NO DATA\r\r>", {}},
        {"refused", "7F 03 11\r\r>", {}},
        {"one unit refuses", "7F 03 11\r43 01 33 00 00 00 00\r\r>", {"P0133"}},
        {"broken line", "43 01 33 <DATA ERROR\r\r>", {"P0133"}},
        {"broken in the middle", "43 01 33 0? 20 04 20\r\r>", {"P0133"}},
        {"stray nul", "43 01 3\0003 00 00\r\r>"sv, {"P0133"}},
        {"rubbish", "43\xFF\x01:..>>\r\xC3\r:\r", {}},
        {"empty", "", {}},
    };
    for (const reply_case& row : cases)
        EXPECT_EQ(toolkit::decode_trouble_codes("03", row.reply, false), row.expected) << row.name;
}

TEST(trouble_codes, can_tells_the_number_of_codes_first) {
    const reply_case cases[] = {
        {"two", "43 02 01 33 02 20\r\r>", {"P0133", "P0220"}},
        {"none", "43 00\r\r>", {}},
        {"count missing", "43\r\r>", {}},
        {"padding", "43 01 01 33 00 00 00\r\r>", {"P0133"}},
        {"other padding", "43 01 01 33 AA AA AA\r\r>", {"P0133"}},
        {"more announced than told", "43 04 01 33 02 2\r\r\n>", {"P0133"}},
        {"two units", "43 01 01 33\r43 02 07 00 C1 00\r\r>", {"P0133", "P0700", "U0100"}},
        {"a unit without codes first", "43 00\r43 01 07 00\r\r>", {"P0700"}},
        {"no data", "NO DATA\r\r>", {}},
        {"refused by one", "7F 03 11\r43 01 07 00\r\r>", {"P0700"}},
        {"notice and echo", "03\rSEARCHING...\r43 01 01 33\r\r>", {"P0133"}},
        {"broken line", "43 02 01 33 <RX ERROR\r\r>", {"P0133"}},
    };
    for (const reply_case& row : cases)
        EXPECT_EQ(toolkit::decode_trouble_codes("03", row.reply, true), row.expected) << row.name;
}

TEST(trouble_codes, numbered_frames_are_gathered_unit_by_unit) {
    const codes four{"P0133", "P0220", "P0300", "P0420"};
    const reply_case cases[] = {
        {"another answer run into a frame", "00A \r0: 43 04 01 33 02 20\r1: 03 00 7E8 06 41 01 9E 37\r>",
         {"P0133", "P0220"}},
        {"one unit", "00A \r0: 43 04 01 33 02 20\r1: 03 00 04 20 00 00 00\r\r>", four},
        {"line feeds", "\n00A \r\n0: 43 04 01 33 02 20 \r\n1: 03 00 04 20 00 00 00\r\n\r\n>", four},
        {"echo and notice", "03\rSEARCHING...\r00A\r0:430401330220\r1:03000420000000\r\r>", four},
        {"another unit behind",
         "00A\r0:430401330220\r1:03000420000000\r43 01 07 00\r\r>",
         {"P0133", "P0220", "P0300", "P0420", "P0700"}},
        {"another unit between",
         "00A\r0:430401330220\r43010700\r1:03000420000000\r\r>",
         {"P0133", "P0220", "P0300", "P0420", "P0700"}},
        {"another unit before",
         "4300\r43010700\r00A\r0:430401330220\r1:03000420000000\r\r>",
         {"P0700", "P0133", "P0220", "P0300", "P0420"}},
        {"two units in turns",
         "00A\r0:430401330220\r008\r0:4303C1000700\r1:03000420000000\r1:07010000000000\r\r>",
         {"P0133", "P0220", "P0300", "P0420", "U0100", "P0700", "P0701"}},
        {"a longer first, a shorter second",
         "014\r0:430901330220\r008\r0:4303C1000700\r1:03000420000101\r2:02010302010402\r"
         "1:07010000000000\r\r>",
         {"P0133", "P0220", "P0300", "P0420", "P0001", "P0102", "P0103", "P0201", "P0402", "U0100",
          "P0700", "P0701"}},
        {"a shorter first, a longer second",
         "008\r0:430301330220\r012\r0:4308C1000700\r1:03000000000000\r1:07010702070307\r"
         "2:04070507060000\r\r>",
         {"P0133", "P0220", "P0300", "U0100", "P0700", "P0701", "P0702", "P0703", "P0704", "P0705",
          "P0706"}},
        {"nothing behind a lost frame",
         "012\r0:430801330220\r2:03000420000101\r\r>",
         {"P0133", "P0220"}},
        {"a byte lost from the first frame", "00A\r0:4301330220\r1:03000420000000\r\r>", {}},
        {"a byte lost from a frame between",
         "010\r0:430701330220\r1:030004200001\r2:01010201030000\r\r>",
         {"P0133", "P0220"}},
        {"first frame lost", "00A\r1:03000420000000\r\r>", {}},
        {"no length", "0:430401330220\r1:03000420000000\r\r>", {}},
        {"an answer to another service", "014\r0:490201314731\r1:4A4734554A3536\r\r>", {}},
    };
    for (const bool is_can : {true, false})
        for (const reply_case& row : cases)
            EXPECT_EQ(toolkit::decode_trouble_codes("03", row.reply, is_can), row.expected)
                << row.name;
}

TEST(trouble_codes, frame_numbers_start_again_after_15) {
    std::string reply = "03\r07A\r0:433C01000100\r"; // behind an echo
    const char* const DIGITS = "0123456789ABCDEF";
    for (int frame = 1; frame <= 17; ++frame)
        reply += std::string(1, DIGITS[frame % 16]) + ":01000100010001\r";
    const codes decoded = toolkit::decode_trouble_codes("03", reply + "\r>", true);
    EXPECT_EQ(decoded.size(), 60U);
    EXPECT_THAT(decoded, testing::Contains("P0100"));
}

TEST(trouble_codes, other_modes_have_their_own_answers) {
    EXPECT_EQ(toolkit::decode_trouble_codes("07", "47 01 04 20\r\r>", true), codes{"P0420"});
    EXPECT_EQ(toolkit::decode_trouble_codes("0A", "0A\r4A 04 20\r\r>", false), codes{"P0420"});
    EXPECT_EQ(toolkit::decode_trouble_codes("07", "43 01 04 20\r\r>", true), codes{});
}

TEST(trouble_codes, the_protocol_text_decides_the_form) {
    g_cur_protocol = std::string_view("AUTO, ISO 15765-4 (CAN 11/500)");
    EXPECT_EQ(toolkit::work_reply_to_error_codes_pid("03", "43 01 01 33\r>"), codes{"P0133"});
    g_cur_protocol = std::string_view("AUTO, ISO 9141-2");
    EXPECT_EQ(toolkit::work_reply_to_error_codes_pid("03", "43 01 01 33\r>"),
              (codes{"P0101", "P3300"}));
    reset_global_vars();
}

TEST(trouble_codes, a_huge_hostile_reply_is_read_in_no_time) {
    std::string openers, frames, noise(64 * 1024, '\r');
    for (int i = 0; i < 3000; ++i) {
        openers += "002\r0:43\r";
        frames += "9:\r0:\r";
    }
    const auto start = std::chrono::steady_clock::now();
    for (const std::string& reply : {openers + frames, noise, std::string(64 * 1024, ':')})
        (void)toolkit::decode_trouble_codes("03", reply, true);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}
