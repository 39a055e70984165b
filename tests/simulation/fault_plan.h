// The faults of one session: drawn once from the seed, applied to each reply and connection.
#pragma once

#include "rng.h"
#include "virtual_adapter.h"

#include <chrono>
#include <string>

// The fate of one reply on the wire.
struct reply_fate {
    std::chrono::milliseconds delay{0};
    bool overtaken = false; // later replies do not wait for it
    bool lost = false;
    int twice_after = -1;    // milliseconds; -1: sent once
    int cut_at = -1;         // bytes; -1: whole
    int rubbish = 0;         // bytes inserted
    int percent_dropped = 0; // of its bytes
    bool crlf = false;
    std::chrono::milliseconds gap{0}; // between its bytes

    bool damages() const { return cut_at >= 0 || rubbish > 0 || percent_dropped > 0; }
};

class fault_plan {
  public:
    explicit fault_plan(std::uint64_t seed);

    // Faults that the adapter and the car implement themselves.
    adapter_options adapter();
    // No more faults from now on.
    void stop();

    reply_fate next_reply();
    // How many of the waiting bytes one read returns.
    std::size_t chunk(std::size_t waiting);
    // Whether a connection is refused, and how long it takes.
    bool refuses() { return rng_.happens(refused_); }
    std::chrono::milliseconds opening();
    // Now and then: the adapter restarts, the connection breaks, unsolicited output ...
    enum class incident {
        none,
        reset,
        reset_with_banner,
        hang_up,
        fall_silent,
        chatter,
        flood,
        disk_full,
        folder_gone,
        folder_blocked,
        disk_well,
        clock_jump
    };
    incident next_incident();

    rng& choices() { return rng_; }

  private:
    rng rng_;
    // In percent of replies.
    int delayed_ = 0, overtaken_ = 0, lost_ = 0, twice_ = 0, cut_ = 0, rubbish_ = 0, dropped_ = 0,
        crlf_ = 0, trickled_ = 0;
    int refused_ = 0, slow_opening_ = 0, split_ = 0, incidents_ = 0;
};
