// Asks the car which parameters it supports, group by group as long as a unit announces the next: a
// run without samples. The handshake stores only the engine's bitmaps, up to 60; this collects
// every unit's, to the end.
#pragma once

#include "live_runs.h"

#include <bitset>

using parameter_set = std::bitset<256>;

// The parameters chosen beyond those of the preferences, two-digit hex text each.
inline constexpr char MORE_PIDS_KEY[] = "more_pids";

class supported_scan final : public live_run {
  public:
    // Stores the result in `found`, which must outlive it; unchanged if no unit answered.
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
    bool announced_ = true; // the group, by the previous one
    bool next_announced_ = false;
};

// Two capital hex digits.
std::string pid_text(unsigned pid);
