#include "code_search.h"
#include "toolkit_fixture.h"

#include <gmock/gmock.h>
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::Optional;

class shipped_tables : public toolkit_test {
  protected:
    // `count` lines "XX name", X counting from `first`.
    static std::string numbered_lines(unsigned first, unsigned count) {
        std::string text;
        for (unsigned i = 0; i < count; ++i)
            text += (i ? "\n" : "") + mac_toolies::convertByte2HexStr(first + i) + " name " +
                    std::to_string(first + i);
        return text;
    }
};

TEST_F(shipped_tables, a_line_table_keeps_everything_between_line_feeds) {
    write_table("lines", "one\r\n\n two\n");
    EXPECT_THAT(toolies.get_array_from_resource("lines", "txt"),
                Optional(ElementsAre("one\r", "", " two", "")));
    EXPECT_EQ(toolies.get_array_from_resource("none", "txt"), std::nullopt);
    EXPECT_EQ(toolies.get_dictionary_from_resource("none", "txt", " "), std::nullopt);
}

TEST_F(shipped_tables, a_dictionary_ends_at_the_first_line_without_delimiter) {
    const struct {
        std::string_view name, text, delimiter;
        std::vector<text_dictionary::entry> expected;
    } cases[] = {
        {"blank line",
         "P0001 a b\nP0002 c\n\nP0003 d\n",
         " ",
         {{"P0001", " a b"}, {"P0002", " c"}}},
        {"crlf", "P0001 a\r\nP0002\nP0003 d", " ", {{"P0001", " a\r"}}},
        {"same key", "P0001 a\nP0001 b", " ", {{"P0001", " b"}}},
        {"out of order", "B a\nA b\nC c\nB d\n", " ", {{"A", " b"}, {"B", " d"}, {"C", " c"}}},
        {"leading blank", "  P0001 a", " ", {{"", "  P0001 a"}}},
        {"long delimiter", "\tA \t=> b => c", "=>", {{"A", "=> b => c"}}},
        {"empty", "", " ", {}},
        {"no delimiter", "P0001 a", "", {}},
    };
    for (const auto& row : cases) {
        write_table("codes", row.text);
        const text_dictionary table =
            toolies.get_dictionary_from_resource("codes", "txt", row.delimiter).value();
        EXPECT_THAT(std::vector(table.begin(), table.end()), ElementsAreArray(row.expected))
            << row.name;
    }
}

TEST_F(shipped_tables, a_key_finds_its_text_and_no_other) {
    write_table("codes", "P0003 c\nP0001 a\nP0002 b");
    const text_dictionary table = toolies.get_dictionary_from_resource("codes", "txt", " ").value();
    for (const auto& [key, text] : {std::pair{"P0001", " a"}, {"P0002", " b"}, {"P0003", " c"}}) {
        ASSERT_NE(table.find(key), table.end()) << key;
        EXPECT_EQ(table.find(key)->second, text);
    }
    for (const char* const key : {"", "P000", "P00015", "P0004"})
        EXPECT_EQ(table.find(key), table.end()) << key;
    const text_dictionary empty;
    EXPECT_EQ(empty.find("P0001"), empty.end());
}

TEST_F(shipped_tables, codes_are_searched_by_name_and_by_words) {
    write_table("P0_Codes", "P0002 Fuel Pump\nP0001 Oil pressure low\nP0003 Oil Level P0001\n");
    const struct {
        std::string_view text;
        std::vector<std::string> codes;
    } cases[] = {{"p0001 ", {"P0001"}},
                 {"OIL", {"P0001", "P0003"}},
                 {"level oil", {"P0003"}},
                 {"oil pump", {}},
                 {"  ", {}},
                 {"P0009", {}}};
    for (const auto& row : cases) {
        std::vector<std::string> codes;
        for (const found_code& found : search_codes(toolies, row.text))
            codes.push_back(found.code);
        EXPECT_EQ(codes, row.codes) << row.text;
    }
    EXPECT_EQ(search_codes(toolies, "P0001")[0].description, "Oil pressure low");
}

TEST_F(shipped_tables, names_come_from_the_table_of_their_group) {
    write_table("FIELD_PIDS_0", numbered_lines(0, 32));
    write_table("FIELD_PIDS_1", numbered_lines(32, 3) + "\n");
    const struct {
        std::string_view pid;
        bool with_pid;
        std::string_view expected;
    } cases[] = {
        {"0C", false, "name 12"},
        {"c", true, "0C name 12"},
        {"1F", false, "name 31"},
        {"22", true, "22 name 34"},
        {"23", false, "N/A"},
        {"24", false, "N/A"},
        {"40", false, "N/A"},
        {"60", false, "NOT FOUND"},
        {"FFFFFFFFFF", true, "NOT FOUND"},
        {"rubbish", true, "00 name 0"},
        {"E4", false, ""}, // a string that this bundle lacks
    };
    for (const auto& row : cases)
        EXPECT_EQ(toolies.get_pid_name(row.pid, row.with_pid), row.expected) << row.pid;
}

class readiness : public toolkit_test {
  protected:
    // The states of the eleven monitors in one text.
    std::string states_of(std::string_view flags) {
        std::vector<readiness_flag> rows{{"stale", "stale", "stale"}};
        toolies.handle_readiness_codes(flags, rows);
        std::string states;
        for (const readiness_flag& row : rows)
            states += (states.empty() ? "" : " ") + row.state;
        return states;
    }
};

TEST_F(readiness, states_follow_the_bits_of_b_c_and_d) {
    write_table("readinessLabels", "a\nb\nc\nd\ne\nf\ng\nh\ni\nj\nk");
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"076500", "OK OK OK OK N/A OK N/A N/A OK OK N/A"},
        {"770000", "X X X N/A N/A N/A N/A N/A N/A N/A N/A"},
        {"088181", "N/A N/A N/A X N/A N/A N/A N/A N/A N/A X"},
        {"7001ff", "N/A N/A N/A X N/A N/A N/A N/A N/A N/A N/A"},
        {"07650000AA", "OK OK OK OK N/A OK N/A N/A OK OK N/A"},
        {"076", "OK OK OK N/A N/A N/A N/A N/A OK OK N/A"},
        {"", "N/A N/A N/A N/A N/A N/A N/A N/A N/A N/A N/A"},
    };
    for (const auto& [flags, expected] : cases)
        EXPECT_EQ(states_of(flags), expected) << flags;

    std::vector<readiness_flag> rows;
    toolies.handle_readiness_codes("077F00", rows);
    EXPECT_EQ(rows.front(), (readiness_flag{"OK", "a", "Continous"}));
    EXPECT_EQ(rows[3], (readiness_flag{"OK", "d", "Non-Continous"}));
    EXPECT_EQ(rows.back(), (readiness_flag{"N/A", "k", "Non-Continous"}));
}

TEST_F(readiness, a_short_label_table_stops_the_build_and_keeps_the_rows_so_far) {
    std::vector<readiness_flag> rows{{"stale", "stale", "stale"}};
    EXPECT_THROW(toolies.handle_readiness_codes("070000", rows), std::out_of_range);
    EXPECT_THAT(rows, IsEmpty());
    write_table("readinessLabels", "a\nb\n");
    EXPECT_THROW(toolies.handle_readiness_codes("070000", rows), std::out_of_range);
    EXPECT_EQ(rows.size(), 3U); // the empty last element is a line
}

using canned_adapter = toolkit_test;

TEST_F(canned_adapter, answers_the_commands_it_knows_to_the_letter) {
    std::vector<std::string> posted;
    notifications.add_observer(OBD_EVENT,
                               [&](const std::string& object) { posted.push_back(object); });
    for (const std::string_view command : {"AT DP\r", "03\r", "AT Z", "at z\r", "01 00\r", ""})
        toolies.emulate_OBD(command);
    const std::string unknown = "?\r\r>";
    EXPECT_THAT(posted,
                ElementsAre("ISO 9141-2\r\r>", "43 04 10 00 00 00 00\r43 04 17 00 00 00 00\r\r>",
                            unknown, unknown, unknown, unknown));
}

using message_boxes = toolkit_test;

TEST_F(message_boxes, show_their_text_and_tell_which_button) {
    toolies.myMsgBox("Timed out .. Try again");
    boxes.answers = {0, 1};
    EXPECT_TRUE(toolies.myMsgBox("Missing", "Type a command", "OK", ""));
    EXPECT_FALSE(toolies.myMsgBox("Clear", "Sure?", "Yes", "No"));
    ASSERT_EQ(boxes.shown.size(), 3U);
    EXPECT_EQ(boxes.messages().front(), "Timed out .. Try again");
    EXPECT_THAT(boxes.shown[0].buttons, ElementsAre("OK"));
    EXPECT_EQ(boxes.shown[1].title, "Missing");
    EXPECT_THAT(boxes.shown[1].buttons, ElementsAre("OK"));
    EXPECT_THAT(boxes.shown[2].buttons, ElementsAre("Yes", "No"));
}
