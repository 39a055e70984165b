#include "frame_pacer.h"

#include <algorithm>
#include <utility>

namespace {

constexpr run_loop::microseconds SHORTEST_INTERVAL{1'000'000 / 20};
constexpr int WAIT_AFTER_FRAME = 3; // times what the frame took

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
    next_frame_ = std::max(begun + SHORTEST_INTERVAL, ended + WAIT_AFTER_FRAME * (ended - begun));
    if (requested_while_drawing_)
        request();
}
