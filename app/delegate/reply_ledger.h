// Where a reply of the adapter ends, and whether the adapter still owes one. The link owns the only
// ledger; screens and commands query it.
#pragma once

#include "run_loop.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

// The first reply in a text: [begin, end) with its prompt; the rest begins at `next`.
struct reply_place {
    std::size_t begin, end, next;
};

// A reply ends with its prompt; line ends and zero bytes after the last prompt belong to it.
// Leading prompts are left over from an earlier reply, unless the reply has `begun` before this
// text. Complete replies in one piece with nothing after them count as one. Nothing if no reply has
// ended.
std::optional<reply_place> find_reply(std::string_view text, bool begun = false);

class reply_ledger {
  public:
    using moment = run_loop::milliseconds;

    void command_left(moment now);
    // The adapter answered another request; the right answer is still owed.
    void answer_is_missing() { ++owed_; }
    void received(std::string_view chunk, moment now);
    // The reply to the last command is no longer awaited, but may still come.
    void timed_out() { awaited_since_ = {}; }
    // Nothing more will come.
    void link_gone();
    // Owed replies count as lost, and commands already sent no longer time out.
    void give_up();

    // A reply is still to come, awaited or late.
    bool owes() const { return owed_ > 0; }
    // Part of a reply has arrived, but not its prompt.
    bool reply_incomplete() const { return begun_; }
    // When the last command, still without its prompt, was sent; zero if none is.
    moment awaited_since() const { return awaited_since_; }
    // When the last byte of an awaited reply arrived; zero if less than five seconds ago.
    moment stalled_since(moment now) const;
    // How often all replies were given up.
    std::uint64_t generation() const { return generation_; }

  private:
    int owed_ = 0;
    bool begun_ = false; // text has arrived after the last prompt
    moment awaited_since_{0}, last_chunk_{0};
    std::uint64_t generation_ = 0;
};
