#include "globalVars.h"
#include "qt_warnings.h"
#include "reply_accumulator.h"
#include "reply_ledger.h"

#include <gtest/gtest.h>

namespace {

struct accumulation {
    const char* name;
    std::vector<std::string> chunks;
    std::vector<std::string> replies;
    std::string left;
};

TEST(reply_accumulation, a_reply_is_complete_when_its_prompt_has_come) {
    const accumulation cases[] = {
        {"three chunks, the prompt alone", {"41 00", " BE\r\r", ">"}, {"41 00 BE\r\r>"}, ""},
        {"the next reply has begun", {"A\r>B\n", "C>"}, {"A\r>", "BC>"}, ""},
        {"two whole replies at once", {"A>B>"}, {"A>B>"}, ""},
        {"text, reply and a third begun", {"A>B>C"}, {"A>"}, "B"},
        {"prompts before the text", {">>A>B"}, {"A>"}, "B"},
        {"a prompt before a reply that is not complete", {">A", "B>"}, {"AB>"}, ""},
        {"zero bytes, which clones send", {std::string("\0\0OK\r\0\r>", 9)}, {"OK\r\r>"}, ""},
        {"a prompt alone", {">"}, {">"}, ""},
        {"a line end behind the prompt", {"A\r\r>\r\n", "B\r>"}, {"A\r\r>", "B\r>"}, ""},
        {"a prompt with a line end, alone", {"A\r", ">\r\n", "B>"}, {"A\r>", "B>"}, ""},
        {"two replies and a line end", {"A>B>\r"}, {"A>B>"}, ""},
        {"nothing", {""}, {}, ""},
    };
    for (const accumulation& one : cases) {
        SCOPED_TRACE(one.name);
        reset_global_vars();
        std::vector<std::string> replies;
        for (const std::string& chunk : one.chunks)
            if (accumulate_reply(chunk))
                replies.push_back(odb_curReplyMsg);
        EXPECT_EQ(replies, one.replies);
        EXPECT_EQ(odb_curReplyBuffyMsg, one.left);
    }
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

// What the link is told, and whether a reply is owed and awaited afterwards.
TEST(reply_ledger, knows_what_is_owed) {
    constexpr auto NOW = std::chrono::seconds(1);
    const struct {
        const char* name;
        const char* events; // s: a command leaves, t: time-out, m: an answer is missing
        std::vector<std::string> chunks;
        bool owes, awaited;
    } cases[] = {
        {"nothing asked", "", {"stray>"}, false, false},
        {"asked", "s", {}, true, true},
        {"half a reply", "s", {"41 0"}, true, true},
        {"in pieces, the prompt with a line end", "s", {"41 0", "C\r", ">\r\n"}, false, false},
        {"a prompt and more in a piece, behind text", "s", {"A\r", ">B"}, false, false},
        {"a prompt left over in front", "s", {">A"}, true, true},
        {"no bytes", "s", {"", std::string(1, '\0')}, true, true},
        {"late", "st", {}, true, false},
        {"late, and there", "st", {"A>"}, false, false},
        {"two asked, one answered", "ss", {"A>"}, true, false},
        {"two asked, both answered at once", "ss", {"A\r\r>B\r\r>"}, false, false},
        {"an answer to something else", "sm", {"A>"}, true, false},
        {"begun behind another, its prompt before a third", "ss", {"A>B", ">C"}, false, false},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        reply_ledger ledger;
        for (const char event : std::string(one.events))
            event == 's'   ? ledger.command_left(NOW)
            : event == 't' ? ledger.timed_out()
                           : ledger.answer_is_missing();
        for (const std::string& chunk : one.chunks)
            ledger.received(chunk, NOW);
        EXPECT_EQ(ledger.owes(), one.owes);
        EXPECT_EQ(ledger.awaited_since().count() != 0, one.awaited);
        ledger.link_gone();
        EXPECT_FALSE(ledger.owes() || ledger.half_come() || ledger.awaited_since().count() != 0);
    }
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
