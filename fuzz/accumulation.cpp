// Reply accumulation: the chunks are separated by "|".
#include "fuzz_one.h"
#include "globalVars.h"
#include "reply_accumulator.h"
#include "text.h"

namespace {

void take(std::string_view chunk) {
    const std::string before = odb_curReplyMsg;
    if (!accumulate_reply(chunk)) {
        REQUIRE(odb_curReplyMsg == before && !contains(odb_curReplyBuffyMsg, ">"));
    } else {
        REQUIRE(odb_curReplyMsg.ends_with('>') && !contains(odb_curReplyBuffyMsg, ">"));
        REQUIRE(odb_curReplyMsg.find('\0') == std::string::npos);
    }
    REQUIRE(odb_curReplyBuffyMsg.size() <= LONGEST_REPLY);
}

} // namespace

int fuzz_one(std::span<const std::uint8_t> bytes) {
    reset_global_vars();
    for (const std::string_view chunk : split(as_text(bytes), "|"))
        take(chunk);
    // After any input, the next reply is complete and at the end.
    take("41 0C 1A F8\r\r>");
    REQUIRE(odb_curReplyMsg.ends_with("41 0C 1A F8\r\r>"));
    REQUIRE(odb_curReplyBuffyMsg.empty());
    return 0;
}
