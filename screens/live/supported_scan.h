// Asks the car what parameters it supports, group by group as far as some unit announces the next:
// a run without samples. What the handshake keeps is the engine's word up to 60; this is every
// unit's, to the end.
#pragma once

#include "live_runs.h"

#include <bitset>

using parameter_set = std::bitset<256>;

// The parameters chosen beyond those of the preferences, two-digit hex text each.
inline constexpr char MORE_PIDS_KEY[] = "more_pids";

class supported_scan final : public live_run {
  public:
    // Puts what was told into `found`, which must outlive it; untouched when no unit told anything.
    explicit supported_scan(std::optional<parameter_set>& found) : found_(found) {}

    bool samples() const override { return false; }
    std::optional<std::vector<std::string>> parameters(const user_defaults&) const override {
        return std::nullopt;
    }
    std::optional<std::string> first_question() override;
    void whole_reply_came(std::string_view reply) override;
    void first_question_answered(std::string_view reply) override;

  private:
    std::optional<parameter_set>& found_;
    unsigned group_ = 0;
    bool announced_ = true; // the group, by the one before
    bool next_announced_ = false;
};

// Two upper-case hex digits.
std::string pid_text(unsigned pid);
