// A run loop on a virtual clock: no test waits in real time.
#pragma once

#include "run_loop.h"

#include <map>
#include <unordered_map>
#include <utility>

class virtual_run_loop final : public run_loop {
  public:
    milliseconds now() const override { return now_; }

    // Lets `span` pass; what falls due is delivered at its own moment, in order.
    void advance(milliseconds span) {
        const milliseconds end = now_ + span;
        while (!armed_.empty() && armed_.begin()->first.first <= end) {
            const auto [when, id] = armed_.begin()->first;
            armed_.erase(armed_.begin());
            due_of_.erase(id);
            now_ = std::max(now_, when);
            fall_due(id);
        }
        now_ = std::max(now_, end); // time may have passed inside, under a dialog
        deliver_due();
    }
    // Delivers what is due now.
    void settle() { advance(milliseconds(0)); }
    template <class call>
    void for_each_armed(call tell) const {
        for (const auto& entry : armed_)
            tell(entry.first.first);
    }

  protected:
    void arm(timer_id id, milliseconds delay) override {
        const milliseconds due = now_ + std::max(delay, milliseconds(0));
        armed_[{due, id}] = true;
        due_of_[id] = due;
    }
    void disarm(timer_id id) override {
        if (const auto due = due_of_.extract(id))
            armed_.erase({due.mapped(), id});
    }
    void wake() override {
        // advance() and settle() deliver what waited behind a dialog.
    }

  private:
    milliseconds now_{0};
    std::map<std::pair<milliseconds, timer_id>, bool> armed_;
    std::unordered_map<timer_id, milliseconds> due_of_;
};
