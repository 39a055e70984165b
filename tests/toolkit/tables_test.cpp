#include "toolkit_fixture.h"

#include <gmock/gmock.h>
using testing::ElementsAre;
using testing::IsEmpty;

using shipped_tables = toolkit_test;

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

using readiness = toolkit_test;

TEST_F(readiness, monitors_have_their_label_and_kind) {
    write_table("readinessLabels", "a\nb\nc\nd\ne\nf\ng\nh\ni\nj\nk");
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
