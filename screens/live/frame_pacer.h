// Paces drawing: at most 20 frames a second, faster than a car sends new values. After a frame that
// took d, the next waits 65 d, but at most a sixth of a second, so that drawing takes 1.5 % of
// the time; and at least 3 d, so that it never takes more than a quarter. Owned by a screen.
#pragma once

#include "run_loop.h"

#include <functional>

class frame_pacer {
  public:
    frame_pacer(run_loop& loop, std::function<void()> draw);
    ~frame_pacer();
    frame_pacer(const frame_pacer&) = delete;
    frame_pacer& operator=(const frame_pacer&) = delete;

    // Requests a frame: drawn from the run loop as soon as the pace allows.
    void request();

  private:
    void draw_frame();

    run_loop& loop_;
    std::function<void()> draw_;
    run_loop::timer_id pending_ = 0;
    bool drawing_ = false;
    bool requested_while_drawing_ = false;
    run_loop::microseconds next_frame_{0};
};
