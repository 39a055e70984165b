#include "fault_plan.h"

#include <algorithm>
#include <array>

using std::chrono::milliseconds;

namespace {
constexpr std::size_t LONGEST_SPLIT = 4096; // a flood comes in whole buffers
}

fault_plan::fault_plan(std::uint64_t seed) : rng_(seed) {
    if (rng_.happens(15))
        return; // a day without faults
    std::array<int*, 13> kinds{&delayed_, &overtaken_,    &lost_,     &twice_,    &cut_,
                               &rubbish_, &dropped_,      &crlf_,     &trickled_, &refused_,
                               &split_,   &slow_opening_, &incidents_};
    static constexpr std::array RATES{2, 5, 10, 20, 50, 100};
    const int count = rng_.between(1, 4);
    for (int i = 0; i < count; ++i)
        *kinds[static_cast<std::size_t>(rng_.below(13))] = rng_.one_of(RATES);
    incidents_ = std::min(incidents_, 20);
}

void fault_plan::stop() {
    const rng kept = rng_;
    *this = fault_plan(0);
    delayed_ = overtaken_ = lost_ = twice_ = cut_ = rubbish_ = dropped_ = crlf_ = trickled_ = 0;
    refused_ = slow_opening_ = split_ = incidents_ = 0;
    rng_ = kept;
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
    options.seed = rng_.seed();
    if (rng_.happens(60))
        options.latency = rng_.time(20, 150);
    std::vector<fault> faults;
    for (int count = rng_.happens(40) ? rng_.between(1, 2) : 0; count > 0; --count)
        faults.push_back(rng_.one_of(KINDS));
    options.faults = fault_set(std::move(faults));
    return options;
}

reply_fate fault_plan::next_reply() {
    static constexpr std::array DELAYS{50, 900, 1100, 2900, 3000, 3100, 4500, 12000};
    reply_fate fate;
    fate.lost = rng_.happens(lost_);
    if (rng_.happens(delayed_))
        fate.delay = milliseconds(rng_.one_of(DELAYS));
    if (rng_.happens(overtaken_)) {
        fate.overtaken = true;
        fate.delay = milliseconds(rng_.one_of(DELAYS));
    }
    if (rng_.happens(twice_))
        fate.twice_after = rng_.happens(50) ? 0 : rng_.between(1, 4000);
    if (rng_.happens(cut_))
        fate.cut_at = rng_.below(20);
    if (rng_.happens(rubbish_))
        fate.rubbish = rng_.between(1, 6);
    if (rng_.happens(dropped_))
        fate.percent_dropped = rng_.between(1, 20);
    fate.crlf = rng_.happens(crlf_);
    if (rng_.happens(trickled_))
        fate.gap = rng_.time(1, 40);
    return fate;
}

std::size_t fault_plan::chunk(std::size_t waiting) {
    if (!rng_.happens(split_) || waiting > LONGEST_SPLIT)
        return waiting;
    const int wanted = rng_.happens(50) ? 1 : rng_.between(1, 12);
    return std::min(waiting, static_cast<std::size_t>(wanted));
}

milliseconds fault_plan::opening() {
    return rng_.happens(slow_opening_) ? rng_.time(1000, 130000) : rng_.time(0, 300);
}

fault_plan::incident fault_plan::next_incident() {
    if (!rng_.happens(incidents_))
        return incident::none;
    return static_cast<incident>(rng_.between(1, static_cast<int>(incident::clock_jump)));
}
