// Replies and answers by the rows of data/strict_replies.rows.
#include "rows.h"
#include "strict_reply.h"
#include "test_paths.h"

namespace {

using F = const std::vector<std::string>&;

std::string read(F f, int) {
    const strict_reply read = read_strictly("010C2", f[0]);
    if (read.odd)
        return "odd";
    std::string told = read.notice;
    for (const unit_message& one : read.messages)
        told += (told.empty() ? "" : " ") + one.unit + "=" + one.data + "/" +
                std::to_string(one.frames);
    return told;
}
std::string parts_of(F f, int) {
    std::string told;
    const auto parts = split_answer(f[0], {{"0D", 2}, {"0C", 4}, {"05", 2}});
    for (std::size_t i = 0; parts && i < parts->size(); ++i)
        told += (i ? " " : "") + (*parts)[i].reply;
    return told;
}

TEST(strict_reply_test, takes_whole_messages_of_each_unit_and_nothing_beside) {
    const row_operations<int> operations{{"read_strictly", read}, {"split_answer", parts_of}};
    for (const table_row& row : read_rows(test_data("strict_replies.rows")))
        expect_row(operations, row, 0);
}

} // namespace
