// Where a reply of the adapter ends, and whether the adapter still owes one. The link keeps the one
// ledger; screens and commands ask it.
#pragma once

#include "run_loop.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

// The first reply in a text: [begin, end) with its prompt; what is left begins at `next`.
struct reply_place {
    std::size_t begin, end, next;
};

// A reply ends with its prompt; line ends and zero bytes behind the last prompt belong to it.
// Prompts in front of text are left over from an earlier reply, unless the reply has `begun` before
// this text. Whole replies that come in one piece with nothing behind them count as one. Nothing
// while no reply has ended.
std::optional<reply_place> find_reply(std::string_view text, bool begun = false);

class reply_ledger {
  public:
    using moment = run_loop::milliseconds;

    void command_left(moment now);
    // The adapter has answered something else than was asked: that answer is still to come.
    void answer_is_missing() { ++owed_; }
    void received(std::string_view chunk, moment now);
    // Nobody waits for the last command's reply any more, but it may still come.
    void timed_out() { awaited_since_ = {}; }
    // Nothing more will come.
    void link_gone();
    // What is owed counts as lost, and commands that were sent before do not time out any more.
    void give_up();

    // A reply is still to come, awaited or late.
    bool owes() const { return owed_ > 0; }
    // A part of a reply has come, and not its prompt.
    bool half_come() const { return begun_; }
    // Since when the last command waits for its prompt; zero when none does.
    moment awaited_since() const { return awaited_since_; }
    // Since when nothing has come although a reply is awaited; zero when that is less than five
    // seconds.
    moment stalled_since(moment now) const;
    // Counts the times that all was given up.
    std::uint64_t generation() const { return generation_; }

  private:
    int owed_ = 0;
    bool begun_ = false; // text has come behind the last prompt
    moment awaited_since_{0}, heard_{0};
    std::uint64_t generation_ = 0;
};
