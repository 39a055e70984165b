#include "reply_ledger.h"

#include <algorithm>

namespace {

constexpr char PROMPT = '>';
constexpr std::string_view NO_TEXT("\r\n\0", 3);
constexpr std::chrono::seconds PATIENCE{5};

// Consecutive prompts without text between them end one reply.
int count_replies(std::string_view text) {
    int count = 0;
    for (std::size_t at = 0; (at = text.find(PROMPT, at)) != std::string_view::npos; ++count)
        at = std::min(text.find_first_not_of(PROMPT, at), text.size());
    return count;
}

} // namespace

std::optional<reply_place> find_reply(std::string_view text, bool begun) {
    const std::size_t last = text.rfind(PROMPT);
    if (last == std::string_view::npos)
        return std::nullopt;
    if (text.find_first_not_of(NO_TEXT, last + 1) == std::string_view::npos)
        return reply_place{0, last + 1, text.size()};
    const std::size_t begin = begun ? 0 : text.find_first_not_of(PROMPT);
    const std::size_t prompt = text.find(PROMPT, begin);
    if (prompt == std::string_view::npos)
        return std::nullopt;
    return reply_place{begin, prompt + 1, text.find_first_not_of(PROMPT, prompt)};
}

void reply_ledger::command_left(moment now) {
    ++owed_;
    awaited_since_ = last_chunk_ = std::max(now, moment(1));
}

void reply_ledger::received(std::string_view chunk, moment now) {
    if (chunk.find_first_not_of('\0') == std::string_view::npos)
        return;
    last_chunk_ = now;
    const auto reply = find_reply(chunk, begun_);
    if (!reply) {
        begun_ = true;
        return;
    }
    begun_ = reply->next < chunk.size();
    awaited_since_ = {};
    owed_ = std::max(0, owed_ - count_replies(chunk.substr(reply->begin)));
}

void reply_ledger::link_gone() {
    owed_ = 0;
    begun_ = false;
    awaited_since_ = {};
}

void reply_ledger::give_up() {
    owed_ = 0;
    awaited_since_ = {};
    ++generation_;
}

reply_ledger::moment reply_ledger::stalled_since(moment now) const {
    return awaited_since_.count() == 0 || now - last_chunk_ <= PATIENCE ? moment(0) : last_chunk_;
}
