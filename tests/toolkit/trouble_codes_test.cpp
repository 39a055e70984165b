#include "trouble_codes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using codes = std::vector<std::string>;

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

TEST(trouble_codes, a_huge_hostile_reply_ends_before_the_test_is_cut_off) {
    std::string openers, frames, noise(64 * 1024, '\r');
    for (int i = 0; i < 3000; ++i) {
        openers += "002\r0:43\r";
        frames += "9:\r0:\r";
    }
    for (const std::string& reply : {openers + frames, noise, std::string(64 * 1024, ':')})
        (void)read_codes("03", reply, {});
}
