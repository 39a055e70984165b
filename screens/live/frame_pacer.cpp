#include "frame_pacer.h"

#include <algorithm>
#include <utility>

namespace {

constexpr run_loop::microseconds SHORTEST_INTERVAL{1'000'000 / 20};
// Times what the frame took.
constexpr int WAIT_AFTER_FRAME = 3;
constexpr int QUIET_AFTER_FRAME = 65;
constexpr run_loop::microseconds LONGEST_QUIET{1'000'000 / 6};

} // namespace

frame_pacer::frame_pacer(run_loop& loop, std::function<void()> draw)
    : loop_(loop), draw_(std::move(draw)) {}

frame_pacer::~frame_pacer() {
    loop_.cancel(pending_);
}

void frame_pacer::request() {
    if (drawing_)
        requested_while_drawing_ = true;
    if (pending_ != 0 || drawing_)
        return;
    const auto wait = std::max(next_frame_ - loop_.fine_now(), run_loop::microseconds(0));
    pending_ =
        loop_.after(std::chrono::ceil<run_loop::milliseconds>(wait), [this] { draw_frame(); });
}

void frame_pacer::draw_frame() {
    pending_ = 0;
    const auto begun = loop_.fine_now();
    drawing_ = true;
    requested_while_drawing_ = false;
    draw_();
    drawing_ = false;
    const auto ended = loop_.fine_now();
    const auto took = ended - begun;
    const auto wait =
        std::max(WAIT_AFTER_FRAME * took, std::min(QUIET_AFTER_FRAME * took, LONGEST_QUIET));
    next_frame_ = std::max(begun + SHORTEST_INTERVAL, ended + wait);
    if (requested_while_drawing_)
        request();
}
