// Which reply answered which command, recorded on the adapter's side to check what the program
// shows. Every command opens a slot; every byte from the adapter belongs to the slot of the command
// it answers, whatever a fault makes of it on the way.
#pragma once

#include "car_truth.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct answer_slot {
    std::string command;         // without blanks and line end, in capitals
    std::uint64_t written = 0;   // moments increase with every write and delivery
    std::uint64_t delivered = 0; // the moment of the last byte, 0 if none
    std::string said;            // by the adapter
    std::string arrived;         // at the program
    bool damaged = false;        // a fault has changed, left out or added bytes
    truth car;                   // at that moment, if asked for codes or status

    bool complete() const { return arrived.ends_with('>') && !damaged; }
    // The line, without blanks, was sent; or bytes were changed so that it is indistinguishable:
    // all hexadecimal, and as long as a line that was sent.
    bool holds(std::string_view line) const;
    // The digits occur in what arrived, apart from frames and headers.
    bool holds_digits(std::string_view digits) const;
    // The assembled frames of a unit, with headers on, contain the digits.
    bool tells(std::string_view digits) const;
    // The messages of the units, with headers on, each assembled and without padding.
    std::vector<std::string> messages() const;
    // Whether it requests that parameter, alone or among others.
    bool asks_for(std::string_view pid) const;
    // No fault happened to it, and the adapter sent only data.
    bool sound() const;
    // A fault turned it into what could have been sent: whole lines are missing, or have as many
    // but different digits.
    bool passes_for_another() const;
    // What follows each "4101" in the lines that arrived.
    std::vector<std::string> status_digits() const;
};

class wire_ledger {
  public:
    static constexpr std::size_t UNSOLICITED = 0; // the slot of unsolicited output

    wire_ledger() { forget(); }
    void forget();
    // The number of the new slot.
    std::size_t written(std::string_view command, const car& asked);
    void said(std::size_t slot, std::string_view bytes) { slots_[slot].said += bytes; }
    void delivered(std::size_t slot, std::string_view bytes);
    void damaged(std::size_t slot) { slots_[slot].damaged = true; }

    std::uint64_t moment() const { return moment_; }
    std::size_t commands() const { return slots_.size() - 1; }
    const answer_slot& last() const { return slots_.back(); }
    // The newest slot of that command written before the moment; null if none.
    const answer_slot* asked(std::string_view command, std::uint64_t before) const;

    // Whether all of it arrived before the next command.
    bool in_time(const answer_slot& slot) const;
    // The newest slot that requested that parameter before the moment.
    const answer_slot* asked_for(std::string_view pid, std::uint64_t before) const;
    // Of those before the moment; an empty line that wakes the adapter is no request.
    bool is_newest(const answer_slot& slot, std::uint64_t before) const;

    // Calls `fits` with each slot whose command begins like that and of which anything was
    // delivered after the moment, the newest first, until it returns true.
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
