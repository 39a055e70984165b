#include "globalVars.h"
#include "qt_warnings.h"
#include "reply_accumulator.h"
#include "reply_ledger.h"
#include "rows.h"
#include "test_paths.h"
#include "text.h"

#include <gtest/gtest.h>

namespace {

using F = const std::vector<std::string>&;

// The replies that a number of chunks make, and what is left of them.
std::string replies_of(F f, int) {
    reset_global_vars();
    std::string told;
    for (const std::string_view chunk : split(f[0], "/"))
        if (accumulate_reply(std::string(chunk)))
            told += odb_curReplyMsg + "/";
    return told + odb_curReplyBuffyMsg;
}

// s: a command leaves, t: time-out, m: an answer is missing; then the chunks come.
std::string ledger_after(F f, int) {
    constexpr auto NOW = std::chrono::seconds(1);
    reply_ledger ledger;
    for (const char event : f[0])
        event == 's'   ? ledger.command_left(NOW)
        : event == 't' ? ledger.timed_out()
                       : ledger.answer_is_missing();
    for (const std::string_view chunk : split(f[1], "/"))
        ledger.received(std::string(chunk), NOW);
    const std::string told = std::string(ledger.owes() ? "owed" : "-") +
                             (ledger.awaited_since().count() != 0 ? " awaited" : "");
    ledger.link_gone();
    EXPECT_FALSE(ledger.owes() || ledger.half_come() || ledger.awaited_since().count() != 0);
    return told;
}

TEST(replies, are_whole_and_owed_as_the_rows_say) {
    const row_operations<int> operations{{"accumulate_reply", replies_of},
                                         {"reply_ledger", ledger_after}};
    for (const table_row& row : read_rows(test_data("replies.rows")))
        expect_row(operations, row, 0);
}

TEST(reply_accumulation, rubbish_without_a_prompt_has_a_ceiling) {
    reset_global_vars();
    expect_warning("no prompt within");
    for (int i = 0; i < 100; ++i)
        EXPECT_FALSE(accumulate_reply(std::string(1024, 'x')));
    EXPECT_LE(odb_curReplyBuffyMsg.size(), LONGEST_REPLY);
    // A reply as long as any adapter sends is not cut.
    reset_global_vars();
    const std::string longest(LONGEST_REPLY - 1, 'y');
    EXPECT_FALSE(accumulate_reply(longest));
    EXPECT_TRUE(accumulate_reply(">"));
    EXPECT_EQ(odb_curReplyMsg.size(), LONGEST_REPLY);
}

TEST(reply_ledger, a_sign_of_life_ends_the_stall_and_a_zero_byte_is_none) {
    using std::chrono::seconds;
    for (const auto& [chunk, stalled] :
         {std::pair{std::string("4"), false}, {std::string(1, '\0'), true}}) {
        reply_ledger ledger;
        ledger.command_left(seconds(1));
        ledger.received(chunk, seconds(5));
        EXPECT_EQ(ledger.stalled_since(seconds(8)).count() != 0, stalled) << chunk;
    }
}

} // namespace
