#include "mac_toolies.h"

#include <gtest/gtest.h>

TEST(vin, characters_come_from_frames_or_from_lines) {
    const struct {
        std::string_view name, reply, expected;
    } cases[] = {
        {"frames", "014\r0:490201314731\r1:4A4734554A35\r2:3643313132323330\r>",
         "1G1JG4UJ56C112230"},
        {"real frames",
         "014 \r\n0: 49 02 01 31 47 31 \r\n1: 4A 47 34 55 4A 35 36 \r\n"
         "2: 43 31 31 32 32 33 30 \r\n\r\n>",
         "1G1JG4UJ56C112230"},
        {"frames behind a notice",
         "SEARCHING...\r014\r0:490201314731\r1:4A4734554A35\r2:3643313132323330\r>",
         "1G1JG4UJ56C112230"},
        {"frames without 49", "014\r0:430201314731\r1:4A4734554A35\r>", "N/A"},
        {"frames without data", "014\r49:\r>", "N/A"},
        {"lines", "49 02 01 00 00 00 31\r49 02 02 47 31 4A 43\r", "1G1JC"},
        {"lines behind a notice",
         "BUS INIT: ...OK\r\n49 02 01 00 00 00 31\r\n49 02 02 47 31 4A 43\r\n\r\n>", "1G1JC"},
        {"fill bytes", "49 02 01 00 00 00 31\r49 02 02 47 00 4A 00\r", "1GJ"},
        {"short lines", "49 02 01 00 00 00 31\r49 02 02 47 31 4A\r49 02 03 47 31 4A 43\r", "1G1JC"},
        {"bad digits",
         "490201000000ZZ\r490202"
         "4731XX43\r",
         "G1C"},
        {"no data", "NO DATA\r\r>", "N/A"},
        {"unable", "UNABLE TO CONNECT\r\r>", "N/A"},
        {"empty", "\r\r>", "N/A"},
        {"nothing", "", "N/A"},
    };
    for (const auto& [name, reply, expected] : cases)
        EXPECT_EQ(mac_toolies::work_out_vin(reply), expected) << name;
}

TEST(vin, is_cut_at_39_characters) {
    std::string reply;
    for (int line = 0; line < 20; ++line)
        reply += "49020241424344\r";
    EXPECT_EQ(mac_toolies::work_out_vin(reply).size(), 39U);
}
