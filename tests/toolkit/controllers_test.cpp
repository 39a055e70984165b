#include "globalVars.h"
#include "mac_toolies.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::Optional;
using toolkit = mac_toolies;

TEST(controllers, a_line_names_its_sender) {
    const struct {
        std::string_view line;
        std::string_view expected;
    } cases[] = {
        {"7E8064100BE1FA813", "Engine"},
        {"7E906410080000001", "Transmission"},
        {"7EA064100BE1FA813", "ECU=7EA"},
        {"486B104100BE1FA813C5", "Engine"},
        {"486B184100BE1FA813C5", "Transmission"},
        {"486B1A4100BE1FA813C5", "ECU=1A"},
        {"18DAF110064100BE1FA813", "Engine"},
        {"18DAF11806410181076D00", "Transmission"},
        {"18DAF11A064120BE1FA813", "ECU=F1"},
        {"18DAF110064140BE1FA813", "ECU=F1"}, // "4140" is not among the markers looked for
        {"486B104100410041008FC5", "Engine"}, // a marker inside the data
        {"486B1041104101", "Engine"},
        {"7E", "ECU=7E"},
        {"486B", "ECU="},
        {"", "ECU="},
    };
    for (const auto& [line, expected] : cases)
        EXPECT_EQ(toolkit::pull_ECU(line), expected) << line;
}

TEST(controllers, the_data_of_a_line_follows_its_header) {
    const struct {
        std::string_view line, pid, unit;
        std::optional<std::string> expected;
    } cases[] = {
        {"7E803410C1AF8", "0C", "", "410C1AF8"},
        {"7E803410C1AF8", "0C", "7E", "410C1AF8"},
        {"7E803410C1AF8", "0C", "7E8", std::nullopt},
        {"18DAF11004410C1AF8", "0C", "10", "410C1AF8"},
        {"18DAF11004410C1AF8", "0C", "18", std::nullopt},
        {"486B10410C1AF8C5", "0C", "10", "410C1AF8C5"},
        {"486B10410C1A", "0C", "", std::nullopt}, // shorter than what is looked at
        {"7E80", "0C", "", std::nullopt},
        {"7E803", "0C", "", ""},
        {"", "0C", "", std::nullopt},
    };
    for (const auto& [line, pid, unit, expected] : cases)
        EXPECT_EQ(toolkit::pull_PID_msg(line, pid, unit), expected) << line;
}

TEST(controllers, a_reply_falls_into_lines_whatever_its_line_ends) {
    for (const std::string_view reply :
         {"41 0C\r41 0D\r\r>", "41 0C\r\n41 0D\r\n\r\n>", "41 0C\r\n41 0D\r\n>"})
        EXPECT_THAT(toolkit::Pull_ECU_msg(reply), Optional(ElementsAre("410C", "410D", "")))
            << reply;
}

TEST(controllers, numbered_frames_join_to_one_message) {
    const struct {
        std::string_view reply;
        std::string_view expected;
    } cases[] = {
        {"014\r0:490201314731\r1:4A4734554A35\r2:3643313132323330\r",
         "4902013147314A4734554A353643313132323330"},
        {"014\r\n0:490201314731\r\n1:4A4734554A35\r\n2:3643313132323330\r\n\r\n>",
         "4902013147314A4734554A353643313132323330"},
        {"00A\r0:430401330220\r1:03000420000000\r\r>", "43040133022003000420"},
        {"008\r0:430301330220\r1:0300\r2:0420\r",
         "43030133022003000420"},                   // completing does not count
        {"007\r0:4304X01330220\r", "430401330220"}, // fifth character of a longer first line
        {"008\r0:430401330220", "430401330220"},
        {"0:430401330220\r1:0300", ""}, // no length
        {"FFFFFFFFF\r0:4304\r1", "4304"},
        {"\r\r>", ""},
        {"", ""},
    };
    for (const auto& [reply, expected] : cases)
        EXPECT_EQ(toolkit::grab_CAN_msg(reply), expected) << reply;

    std::string many = "C00\r", data; // far above 300 bytes
    for (int i = 0; i < 400; ++i) {
        many += "1:013302200300\r";
        data += "013302200300";
    }
    EXPECT_EQ(toolkit::grab_CAN_msg(many), data);
}

class supported_pids : public testing::Test {
  protected:
    void SetUp() override {
        reset_global_vars();
        g_Supported_obd_mask_0 = std::string_view("OLD");
    }
};

TEST_F(supported_pids, the_engines_mask_is_kept) {
    const struct {
        std::string_view name, reply, expected;
    } cases[] = {
        {"engine first", "7E8064100BE1FA813\r7E9064100800000010\r", "BE1FA813"},
        {"engine last", "7E906410080000001\r7E8064100BE1FA813\r", "BE1FA813"},
        {"last engine line", "7E806410080000001\r7E8064100BE1FA813\r", "BE1FA813"},
        {"one line, old header", "486B104100BE1FA813C5", "BE1FA813"},
        {"one line, 29 bit", "18DAF110064100BE1FA813", "BE1FA813"},
        {"an answer for another group", "18DAF110064160BE1FA813", "OLD"},
        {"one line, another unit", "7EA064100BE1FA813\r\r", "BE1FA813"},
        {"no engine: the first", "7EA064100BE1FA813\r7EB06410080000001", "BE1FA813"},
        {"line feeds", "\n7E906410080000001\r\n7E8064100BE1FA813\r\n\r\n", "BE1FA813"},
        {"search notice", "SEARCHING...\r7EA064100BE1FA813\r", "BE1FA813"},
        {"bus notice", "BUSINIT:...OK\r486B114100BE1FA813C5\r", "BE1FA813"},
        {"echo", "0100\r7EA064100BE1FA813\r", "BE1FA813"},
        {"no data", "NODATA\r", "OLD"},
        {"unable", "UNABLETOCONNECT\r", "OLD"},
        {"refused", "7E8037F0112\r", "OLD"},
        {"refused by the engine", "7E8037F0112\r7E906410080000001\r", "80000001"},
        {"short", "7E8064100BE1FA81\r", "OLD"},
        {"shortest", "7\r\r4", "OLD"},
        {"empty", "", "OLD"},
    };
    for (const auto& [name, reply, expected] : cases) {
        SetUp();
        toolkit::handle_00_replies(reply, 0);
        EXPECT_EQ(g_Supported_obd_mask_0.str(), expected) << name;
    }
}

TEST_F(supported_pids, each_group_has_its_mask_and_group_3_none) {
    toolkit::handle_00_replies("7E8064120BE1FA813", 1);
    toolkit::handle_00_replies("7E806414080000001", 2);
    for (const int group : {3, -1})
        toolkit::handle_00_replies("7E806416011111111", group);
    EXPECT_EQ(g_Supported_obd_mask_0.str(), "OLD");
    EXPECT_EQ(g_Supported_obd_mask_1.str(), "BE1FA813");
    EXPECT_EQ(g_Supported_obd_mask_2.str(), "80000001");
    EXPECT_TRUE(g_Supported_obd_mask_3.empty());
}

TEST_F(supported_pids, a_pid_is_supported_when_its_bit_is_set) {
    const struct {
        std::string_view mask, pid;
        int group;
        bool expected;
    } cases[] = {
        {"BE1FA813", "01", 0, true},
        {"BE1FA813", "02", 0, false},
        {"BE1FA813", "04", 0, true},
        {"BE1FA813", "0C", 0, true},
        {"BE1FA813", "0D", 0, true},
        {"BE1FA813", "20", 0, true},
        {"BE1FA813", "00", 0, false},
        {"BE1FA813", "21", 0, false},
        {"80000001", "21", 1, true},
        {"80000001", "40", 1, true},
        {"80000001", "22", 1, false},
        {"80000001", "01", 1, false},
        {"FFFFFFFF", "FFFFFFFF", 0, false},
        {"FF", "09", 0, false},
        {"FFF", "01", 0, false},
        {"", "01", 0, false},
        {"zzzzzzzz", "01", 0, false},
    };
    for (const auto& [mask, pid, group, expected] : cases)
        EXPECT_EQ(toolkit::is_this_code_available(mask, pid, group), expected)
            << mask << " " << pid;
}
