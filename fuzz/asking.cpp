// Replies to a fast sampler: it files only complete answers for requested parameters, each once per
// cycle, and continues or gives up. The first byte picks the bus, the rest are replies, each up to
// its prompt.
#include "fast_sampler.h"
#include "fuzz_one.h"
#include "sample_reply.h"
#include "text.h"

#include <map>

namespace {

const std::vector<std::string> PIDS{"04", "05", "06", "0C", "0D", "10", "11", "66"};

// Frames that fit yield one message of whole bytes per unit.
void walk(std::string_view command, std::string_view reply) {
    const strict_reply read = read_strictly(command, reply);
    REQUIRE(read.odd || read.notice.empty() == !read.messages.empty());
    std::string before;
    for (const unit_message& one : read.messages) {
        REQUIRE(one.unit > before && one.frames > 0);
        REQUIRE(read.odd || (!one.data.empty() && one.data.size() % 2 == 0 && is_hex(one.data)));
        before = one.unit;
    }
}

} // namespace

int fuzz_one(std::span<const std::uint8_t> bytes) {
    if (bytes.empty())
        return 0;
    std::chrono::milliseconds now{0};
    fast_sampler sampler(PIDS, bytes[0] % 2 == 0, bytes[0] / 2);
    std::map<std::string, int> filed; // of this cycle
    std::string before;               // the request whose reply is filed
    for (const std::string_view reply : split(as_text(bytes.subspan(1)), ">")) {
        if (sampler.finished())
            break;
        const fast_sampler::question asked = sampler.next(now);
        REQUIRE(asked.pause.count() >= 0 && asked.command.size() < 19);
        now += asked.pause;
        sampler.sent(now);
        now += std::chrono::milliseconds(1 + reply.size() % 64);
        walk(asked.command, reply);
        const fast_sampler::outcome out = sampler.take(reply, now);
        for (const fast_sampler::sample& one : out.samples) {
            REQUIRE(++filed[one.pid] == 1);
            REQUIRE(one.reply == "~" || one.reply == "NODATA" ||
                    (answers_parameter(one.reply, one.pid) && answer_in(one.reply) == one.reply));
            REQUIRE(one.reply == "~" || before.find(one.pid) != std::string::npos);
        }
        if (out.ends_cycle) {
            REQUIRE(filed.size() == PIDS.size());
            filed.clear();
        }
        before = asked.command;
        REQUIRE(sampler.level() >= 0 && sampler.level() <= 3);
    }
    return 0;
}
