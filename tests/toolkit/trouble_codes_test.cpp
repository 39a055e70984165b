#include "globalVars.h"
#include "mac_toolies.h"
#include "trouble_codes.h"

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

// What the conversations of the trouble-codes screen cannot reach.
TEST(trouble_codes, a_line_may_carry_notices_and_noise) {
    const reply_case cases[] = {
        {"notice on the line", "SEARCHING...43 01 33 00 00 00 00\r\r>", {"P0133"}},
        {"bus notice", "BUS INIT: ...OK\r43 01 33 00 00 00 00\r\r>", {"P0133"}},
        {"bus notice on the line", "BUS INIT: ...OK43 01 33 00 00 00 00\r\r>", {"P0133"}},
        {"failed bus", "BUS INIT: ...ERROR\r\r>", {}},
        {"an echo that lost its line end", "0343 01 33 00 00 00 00\r\r>", {"P0133"}},
        {"stray nul", "43 01 3\0003 00 00 00 00\r\r>"sv, {"P0133"}},
        {"rubbish", "43\xFF\x01:..>>\r\xC3\r:\r", {}},
        {"empty", "", {}},
    };
    for (const reply_case& row : cases)
        EXPECT_EQ(read_codes("03", row.reply, {bus_form::older, bus_source::headers}).codes,
                  row.expected)
            << row.name;
}

TEST(trouble_codes, frame_numbers_start_again_after_15) {
    std::string reply = "03\r07A\r0:433C01000100\r"; // behind an echo
    const char* const DIGITS = "0123456789ABCDEF";
    for (int frame = 1; frame <= 17; ++frame)
        reply += std::string(1, DIGITS[frame % 16]) +
                 (frame < 17 ? ":01000100010001\r" : ":01000100000000\r");
    const codes decoded = read_codes("03", reply + "\r>", {}).codes;
    EXPECT_EQ(decoded.size(), 60U);
    EXPECT_THAT(decoded, testing::Contains("P0100"));
}

TEST(trouble_codes, other_services_have_their_own_answers) {
    constexpr bus_evidence CAN{bus_form::can, bus_source::headers};
    EXPECT_EQ(read_codes("07", "47 01 04 20\r\r>", CAN).codes, codes{"P0420"});
    EXPECT_EQ(read_codes("0A", "0A\r4A 01 04 20\r\r>", CAN).codes, codes{"P0420"});
    EXPECT_EQ(read_codes("07", "43 01 04 20\r\r>", CAN).codes, codes{});
}

TEST(trouble_codes, the_protocol_text_decides_the_form) {
    g_cur_protocol = std::string_view("AUTO, ISO 15765-4 (CAN 11/500)");
    EXPECT_EQ(toolkit::work_reply_to_error_codes_pid("03", "43 01 01 33\r>"), codes{"P0133"});
    g_cur_protocol = std::string_view("AUTO, ISO 9141-2");
    EXPECT_EQ(toolkit::work_reply_to_error_codes_pid("03", "43 01 01 33\r>"),
              (codes{"P0101", "P3300"}));
    // A line that broke off is filled up with zeros by this operation.
    EXPECT_EQ(toolkit::work_reply_to_error_codes_pid("03", "43 01\r>"), codes{"P0100"});
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
        (void)read_codes("03", reply, {});
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}
