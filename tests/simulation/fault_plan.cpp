#include "fault_plan.h"

#include <algorithm>
#include <array>

using std::chrono::milliseconds;

namespace {
constexpr std::size_t LONGEST_SPLIT = 4096; // a flood comes in whole buffers
}

fault_plan::fault_plan(std::uint64_t seed) : dice_(seed) {
    if (dice_.happens(15))
        return; // a day without faults
    std::array<int*, 13> kinds{&delayed_, &overtaken_,    &lost_,     &twice_,    &cut_,
                               &rubbish_, &dropped_,      &crlf_,     &trickled_, &refused_,
                               &split_,   &slow_opening_, &incidents_};
    static constexpr std::array RATES{2, 5, 10, 20, 50, 100};
    const int count = dice_.between(1, 4);
    for (int i = 0; i < count; ++i)
        *kinds[static_cast<std::size_t>(dice_.below(13))] = dice_.one_of(RATES);
    incidents_ = std::min(incidents_, 20);
}

void fault_plan::stop() {
    const dice kept = dice_;
    *this = fault_plan(0);
    delayed_ = overtaken_ = lost_ = twice_ = cut_ = rubbish_ = dropped_ = crlf_ = trickled_ = 0;
    refused_ = slow_opening_ = split_ = incidents_ = 0;
    dice_ = kept;
}

adapter_options fault_plan::adapter() {
    static constexpr std::array KINDS{fault{fault_kind::echo_stuck},
                                      fault{fault_kind::text_after_prompt},
                                      fault{fault_kind::crlf},
                                      fault{fault_kind::padding},
                                      fault{fault_kind::wrong_pid, 4},
                                      fault{fault_kind::data_error, 5},
                                      fault{fault_kind::buffer_full, 9},
                                      fault{fault_kind::can_error, 4},
                                      fault{fault_kind::clone},
                                      fault{fault_kind::digit_unknown},
                                      fault{fault_kind::digit_counts_messages},
                                      fault{fault_kind::first_pid_only},
                                      fault{fault_kind::pids_reordered},
                                      fault{fault_kind::pending, 9},
                                      fault{fault_kind::unit_gap, 58},
                                      fault{fault_kind::no_bus},
                                      fault{fault_kind::ignition_off_at, 20}};
    adapter_options options;
    options.seed = dice_.seed();
    if (dice_.happens(60))
        options.latency = dice_.time(20, 150);
    std::vector<fault> faults;
    for (int count = dice_.happens(40) ? dice_.between(1, 2) : 0; count > 0; --count)
        faults.push_back(dice_.one_of(KINDS));
    options.faults = fault_set(std::move(faults));
    return options;
}

reply_fate fault_plan::next_reply() {
    static constexpr std::array DELAYS{50, 900, 1100, 2900, 3000, 3100, 4500, 12000};
    reply_fate fate;
    fate.lost = dice_.happens(lost_);
    if (dice_.happens(delayed_))
        fate.delay = milliseconds(dice_.one_of(DELAYS));
    if (dice_.happens(overtaken_)) {
        fate.overtaken = true;
        fate.delay = milliseconds(dice_.one_of(DELAYS));
    }
    if (dice_.happens(twice_))
        fate.twice_after = dice_.happens(50) ? 0 : dice_.between(1, 4000);
    if (dice_.happens(cut_))
        fate.cut_at = dice_.below(20);
    if (dice_.happens(rubbish_))
        fate.rubbish = dice_.between(1, 6);
    if (dice_.happens(dropped_))
        fate.percent_dropped = dice_.between(1, 20);
    fate.crlf = dice_.happens(crlf_);
    if (dice_.happens(trickled_))
        fate.gap = dice_.time(1, 40);
    return fate;
}

std::size_t fault_plan::chunk(std::size_t waiting) {
    if (!dice_.happens(split_) || waiting > LONGEST_SPLIT)
        return waiting;
    const int wanted = dice_.happens(50) ? 1 : dice_.between(1, 12);
    return std::min(waiting, static_cast<std::size_t>(wanted));
}

milliseconds fault_plan::opening() {
    return dice_.happens(slow_opening_) ? dice_.time(1000, 130000) : dice_.time(0, 300);
}

fault_plan::incident fault_plan::next_incident() {
    if (!dice_.happens(incidents_))
        return incident::none;
    return static_cast<incident>(dice_.between(1, static_cast<int>(incident::clock_jump)));
}
