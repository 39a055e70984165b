// The door to time: delayed calls on the one main thread, in order.
//
// Deliveries never nest. While a delivery runs, or while a modal dialog is up (modal_hold),
// whatever falls due is queued in order and delivered afterwards; a queued call can still be
// cancelled, so a held reply cancels the time-out queued after it. Only this class implements the
// rule: transports, timers and screens simply schedule.
#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <unordered_map>

class run_loop {
  public:
    using milliseconds = std::chrono::milliseconds;
    using microseconds = std::chrono::microseconds;
    using timer_id = std::uint64_t; // 0 is no timer

    virtual ~run_loop() = default;

    // Runs `call` once, `delay` from now. Never runs it before returning.
    timer_id after(milliseconds delay, std::function<void()> call);
    // Runs `call` before returning if nothing else is being delivered, held or queued; else like
    // after(0). Only for slots called directly by the event loop, with no operation of the program
    // on the stack.
    void from_event_loop(std::function<void()> call);
    // Cancels a call that has not run yet; an unknown or finished id is ignored.
    void cancel(timer_id id);
    // Calls that have neither run nor been cancelled.
    bool idle() const { return calls_.empty(); }

    virtual milliseconds now() const = 0;
    // The same clock, for measuring less than a millisecond.
    virtual microseconds fine_now() const { return now(); }

    bool held() const { return holds_ > 0; }

    // Called whenever everything due has been delivered and no dialog is open.
    std::function<void()> delivered;

  protected:
    virtual void arm(timer_id id, milliseconds delay) = 0;
    virtual void disarm(timer_id id) = 0;
    // Requests one call of deliver_due() from the event loop, soon.
    virtual void wake() = 0;

    void fall_due(timer_id id);
    void deliver_due();

  private:
    friend class modal_hold;

    void deliver_all();

    std::unordered_map<timer_id, std::function<void()>> calls_;
    std::deque<timer_id> due_;
    timer_id last_id_ = 0;
    int holds_ = 0;
    bool delivering_ = false;
};

// Keeps the run loop from delivering while it lives. Around every modal dialog.
class modal_hold {
  public:
    explicit modal_hold(run_loop& loop) : loop_(loop) { ++loop_.holds_; }
    ~modal_hold();
    modal_hold(const modal_hold&) = delete;
    modal_hold& operator=(const modal_hold&) = delete;

  private:
    run_loop& loop_;
};
