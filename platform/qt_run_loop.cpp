#include "qt_run_loop.h"

#include <algorithm>
#include <limits>

qt_run_loop::qt_run_loop() {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &qt_run_loop::timer_fired);
}

qt_run_loop::~qt_run_loop() = default;

run_loop::milliseconds qt_run_loop::now() const {
    return std::chrono::duration_cast<milliseconds>(fine_now());
}

run_loop::microseconds qt_run_loop::fine_now() const {
    using namespace std::chrono;
    return duration_cast<microseconds>(steady_clock::now().time_since_epoch());
}

void qt_run_loop::arm(timer_id id, milliseconds delay) {
    if (delay.count() <= 0) {
        QMetaObject::invokeMethod(
            this, [this, id] { fall_due(id); }, Qt::QueuedConnection);
        return;
    }
    // A delay beyond Qt's range (24 days) amounts to never.
    constexpr milliseconds LONGEST{std::numeric_limits<int>::max()};
    // Rounded up: never early.
    const milliseconds deadline =
        std::chrono::ceil<milliseconds>(fine_now()) + std::min(delay, LONGEST);
    deadlines_.emplace(deadline, id);
    deadline_of_.emplace(id, deadline);
    if (deadline < wakes_at_)
        set_timer();
}

void qt_run_loop::set_timer() {
    wakes_at_ = deadlines_.empty() ? milliseconds::max() : deadlines_.begin()->first;
    if (!deadlines_.empty())
        timer_.start(std::max(wakes_at_ - now(), milliseconds(0)));
}

void qt_run_loop::timer_fired() {
    wakes_at_ = milliseconds::max();
    const milliseconds until = now();
    while (!deadlines_.empty() && deadlines_.begin()->first <= until) {
        const timer_id id = deadlines_.begin()->second;
        disarm(id);
        fall_due(id);
    }
    set_timer();
}

void qt_run_loop::disarm(timer_id id) {
    if (const auto found = deadline_of_.find(id); found != deadline_of_.end()) {
        deadlines_.erase({found->second, id});
        deadline_of_.erase(found);
    }
}

void qt_run_loop::wake() {
    QMetaObject::invokeMethod(
        this, [this] { deliver_due(); }, Qt::QueuedConnection);
}
