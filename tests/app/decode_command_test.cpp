#include "desk_fixture.h"

#include <gmock/gmock.h>

namespace {

class decode_command_test : public desk_test {
  protected:
    int decode(const words& arguments) { return run("decode", arguments); }
    int vin(const words& arguments) { return run("vin", arguments); }
    int mode6(const words& arguments) { return run("mode6", arguments); }
    std::string printed() const { return out.str(); }
    std::string complaint() const { return err.str(); }
};

TEST_F(decode_command_test, each_reply_is_a_line_of_text_and_number) {
    EXPECT_EQ(decode({"41 0C 1A F8", "410D64", "no data\\r\\r>", "7F 01 12", "41 03 02 00"}), 1);
    EXPECT_EQ(printed(), "1726.00 RPM\t1726\n62.50 mph\t62.5\n~\tnan\n~\tnan\n"
                         "Close Loop - Using O2 snsr as feedback\t0\n");
    for (const char* text : {"1", "01 0C", "SOME CAR", "7E8 04 41 0C 1A F8"})
        EXPECT_EQ(decode({text}), 1);
    EXPECT_EQ(decode({"--units", "metric", "41 0D 64\\r41 0D 00\\r>"}), 0);
    EXPECT_EQ(printed(), "100.00  Km/h\t100\n");
    EXPECT_EQ(decode({"41 0D 64", "--units=imperial"}), 0);
    EXPECT_EQ(printed(), "62.50 mph\t62.5\n");
}

TEST_F(decode_command_test, vin_is_read_from_either_form_of_reply) {
    EXPECT_EQ(vin({"014\r0:490201314731\r1:4A4734554A35\r2:3643313132323330\r>"}), 0);
    EXPECT_EQ(printed(), "1G1JG4UJ56C112230\n");
    EXPECT_EQ(vin({"49 02 01 00 00 00 31\\r49 02 02 47 31 4A 43\\r"}), 1);
    EXPECT_EQ(printed(), "1G1JC\n");
    EXPECT_EQ(vin({"NO DATA"}), 1);
    EXPECT_EQ(printed(), "N/A\n");
    EXPECT_EQ(vin({"49 02 01 00 00 00 31\\r49 02 02 1B 5B 32 4A\\r"}), 1);
    EXPECT_EQ(printed(), "1 [2J\n") << "an escape sequence";
}

TEST_F(decode_command_test, test_result_is_scaled_with_its_unit) {
    EXPECT_EQ(mode6({"07", "1F40"}), 0);
    EXPECT_EQ(printed(), "2000.000000 RPM\n");
    EXPECT_EQ(mode6({"16", "01 F4"}), 0);
    EXPECT_EQ(printed(), "10.000000 ^C\n");
    EXPECT_EQ(mode6({"81", "000FFFFF"}), 0);
    EXPECT_EQ(printed(), "-1.000000\n") << "more than 19 bits are negative";
    EXPECT_EQ(mode6({"FF", "01F4"}), 0);
    EXPECT_THAT(printed(), testing::Not(testing::EndsWith(" \n"))) << "of no known unit";
}

TEST_F(decode_command_test, senseless_arguments_are_refused_and_print_nothing) {
    for (const words& arguments : {words{},
                                   {"--units", "metric"},
                                   {"41 0C 1A F8", "--units"},
                                   {"41 0C 1A F8", "--units=us"},
                                   {"41 0C 1A F8", "--metric"},
                                   {"41 0C 1A F8", "--demo"},
                                   {"41 0C 1A F8", "--timeout", "3"},
                                   {"41 0C 1A F8", "41 0d\\r>"}}) {
        EXPECT_EQ(decode(arguments), 2);
        EXPECT_EQ(printed(), "");
        EXPECT_NE(complaint(), "");
    }
    for (const words& arguments : {words{}, {"49", "02"}, {"49", "--foo"}})
        EXPECT_EQ(vin(arguments), 2);
    for (const words& arguments : {words{},
                                   {"07"},
                                   {"07", "1", "2"},
                                   {"16", "012345678"},
                                   {"16", "012345", "--standard"},
                                   {"zz", "1"},
                                   {"107", "1"},
                                   {"07", "0x1G"},
                                   {"07", ""}}) {
        EXPECT_EQ(mode6(arguments), 2);
        EXPECT_EQ(printed(), "");
        EXPECT_NE(complaint(), "");
    }
}

} // namespace
