#include "qt_run_loop.h"

#include <algorithm>
#include <limits>

qt_run_loop::qt_run_loop() = default;
qt_run_loop::~qt_run_loop() = default;

run_loop::milliseconds qt_run_loop::now() const {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch());
}

void qt_run_loop::arm(timer_id id, milliseconds delay) {
    if (delay.count() <= 0) {
        QMetaObject::invokeMethod(
            this, [this, id] { fall_due(id); }, Qt::QueuedConnection);
        return;
    }
    auto timer = std::make_unique<QTimer>();
    timer->setSingleShot(true);
    timer->setTimerType(Qt::PreciseTimer);
    connect(timer.get(), &QTimer::timeout, this, [this, id] { timer_fired(id); });
    // A delay beyond Qt's range (24 days) is as good as never.
    constexpr milliseconds LONGEST{std::numeric_limits<int>::max()};
    timer->start(std::min(delay, LONGEST));
    timers_.emplace(id, std::move(timer));
}

void qt_run_loop::timer_fired(timer_id id) {
    // The timer is inside its own signal: let it go only after that.
    if (auto found = timers_.extract(id))
        found.mapped().release()->deleteLater();
    fall_due(id);
}

void qt_run_loop::disarm(timer_id id) {
    if (auto found = timers_.extract(id))
        found.mapped().release()->deleteLater();
}

void qt_run_loop::wake() {
    QMetaObject::invokeMethod(
        this, [this] { deliver_due(); }, Qt::QueuedConnection);
}
