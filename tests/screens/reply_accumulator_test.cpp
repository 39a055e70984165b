#include "globalVars.h"
#include "qt_warnings.h"
#include "reply_accumulator.h"

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

} // namespace
