// What was said on the wire in answer to what, kept on the adapter's side: what the program shows
// is held against it. Every command opens a slot; every byte from the adapter belongs to the slot
// of the command it answers, whatever a fault makes of it on the way.
#pragma once

#include "car_truth.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct answer_slot {
    std::string command;         // without blanks and line end, in capitals
    std::uint64_t written = 0;   // moments count up with every write and every delivery
    std::uint64_t delivered = 0; // the moment of the last byte, 0 while there is none
    std::string said;            // by the adapter
    std::string arrived;         // at the program
    bool damaged = false;        // a fault has changed, left out or added bytes
    truth car;                   // at that moment, when it was asked for codes or status

    bool complete() const { return arrived.ends_with('>') && !damaged; }
    // The line, without blanks, was said; or bytes were changed on the way so that nobody can tell
    // it from one: all of it hexadecimal and of a length that was said.
    bool holds(std::string_view line) const;
    // The digits stand in what arrived, whatever frames and headers are around them.
    bool holds_digits(std::string_view digits) const;
    // The frames of some unit, headers on, put together hold the digits.
    bool tells(std::string_view digits) const;
    // What the units said, headers on, each message put together and without what fills its frames.
    std::vector<std::string> messages() const;
    // It asked for that parameter, alone or among others.
    bool asks_for(std::string_view pid) const;
    // Nothing happened to it, and the adapter said nothing but data.
    bool sound() const;
    // A fault made of it what could have been sent: lines are gone as a whole, or have other digits
    // and as many.
    bool passes_for_another() const;
    // What stands behind every "4101" in the lines that arrived.
    std::vector<std::string> status_digits() const;
};

class ledger {
  public:
    static constexpr std::size_t NOBODY = 0; // the slot of what was said unasked

    ledger() { forget(); }
    void forget();
    // The number of the new slot.
    std::size_t written(std::string_view command, const car& asked);
    void said(std::size_t slot, std::string_view bytes) { slots_[slot].said += bytes; }
    void delivered(std::size_t slot, std::string_view bytes);
    void damaged(std::size_t slot) { slots_[slot].damaged = true; }

    std::uint64_t moment() const { return moment_; }
    std::size_t commands() const { return slots_.size() - 1; }
    const answer_slot& last() const { return slots_.back(); }
    // The newest slot of that command that was written before the moment; nothing without one.
    const answer_slot* asked(std::string_view command, std::uint64_t before) const;

    // All of it came before anything else was asked.
    bool in_time(const answer_slot& slot) const;
    // The newest slot that asked for that parameter before the moment.
    const answer_slot* asked_for(std::string_view pid, std::uint64_t before) const;

    // Calls with each slot of a command that begins so of which anything was delivered after the
    // moment, the newest first, until one answers true.
    template <class call>
    bool any_answer(std::string_view command, std::uint64_t after, call fits) const {
        for (std::size_t i = slots_.size(); i-- > 0;)
            if (slots_[i].delivered > after && slots_[i].command.starts_with(command) &&
                fits(slots_[i]))
                return true;
        return false;
    }

  private:
    std::vector<answer_slot> slots_;
    std::uint64_t moment_ = 0;
};

// Without blanks, line feeds, zero bytes and prompts.
std::string bare(std::string_view text);
bool all_hex(std::string_view text);
