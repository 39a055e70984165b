// The real run loop: Qt's event loop and its timers.
#pragma once

#include "run_loop.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <unordered_map>

class qt_run_loop final : public QObject, public run_loop {
    Q_OBJECT
  public:
    qt_run_loop();
    ~qt_run_loop() override;
    milliseconds now() const override;

  protected:
    void arm(timer_id id, milliseconds delay) override;
    void disarm(timer_id id) override;
    void wake() override;

  private:
    void timer_fired(timer_id id);
    std::unordered_map<timer_id, std::unique_ptr<QTimer>> timers_;
};
