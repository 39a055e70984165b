// The real run loop: Qt's event loop, and one timer for the earliest delayed call. Every command
// arms a time-out that its reply cancels; that only changes entries in a table. The timer is set
// again only for an earlier call; a cancelled call costs one idle wake-up.
#pragma once

#include "run_loop.h"

#include <QObject>
#include <QTimer>

#include <set>
#include <unordered_map>
#include <utility>

class qt_run_loop final : public QObject, public run_loop {
    Q_OBJECT
  public:
    qt_run_loop();
    ~qt_run_loop() override;
    milliseconds now() const override;
    microseconds fine_now() const override;

  protected:
    void arm(timer_id id, milliseconds delay) override;
    void disarm(timer_id id) override;
    void wake() override;

  private:
    void timer_fired();
    void set_timer();

    QTimer timer_;
    milliseconds wakes_at_ = milliseconds::max();
    std::set<std::pair<milliseconds, timer_id>> deadlines_;
    std::unordered_map<timer_id, milliseconds> deadline_of_;
};
