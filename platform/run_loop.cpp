#include "run_loop.h"

#include <utility>

run_loop::timer_id run_loop::after(milliseconds delay, std::function<void()> call) {
    const timer_id id = ++last_id_;
    calls_.emplace(id, std::move(call));
    arm(id, delay);
    return id;
}

void run_loop::cancel(timer_id id) {
    // A cancelled call in due_ is found missing when its turn comes.
    if (calls_.erase(id) > 0)
        disarm(id);
}

void run_loop::fall_due(timer_id id) {
    due_.push_back(id);
    deliver_due();
}

namespace {

struct delivery_guard {
    bool& flag;
    explicit delivery_guard(bool& f) : flag(f) { flag = true; }
    ~delivery_guard() { flag = false; }
};

} // namespace

void run_loop::from_event_loop(std::function<void()> call) {
    if (delivering_ || held() || !due_.empty()) {
        after(milliseconds(0), std::move(call));
        return;
    }
    {
        const delivery_guard guard(delivering_);
        call();
    }
    deliver_due(); // what fell due meanwhile
}

void run_loop::deliver_due() {
    if (delivering_)
        return;
    deliver_all();
    if (delivered && !held())
        delivered();
}

void run_loop::deliver_all() {
    const delivery_guard guard(delivering_);
    while (!held() && !due_.empty()) {
        const timer_id id = due_.front();
        due_.pop_front();
        const auto found = calls_.find(id);
        if (found == calls_.end())
            continue;
        const auto call = std::move(found->second);
        calls_.erase(found);
        call();
    }
}

modal_hold::~modal_hold() {
    // Never deliver from here: the operation that opened the dialog has not finished.
    if (--loop_.holds_ == 0 && !loop_.due_.empty())
        loop_.wake();
}
