// What a command does with a car: a task that runs on an invisible screen. Owned by command_runner.
#pragma once

#include "command_line.h"
#include "report_printer.h"

#include <functional>
#include <string>

class console_alerts;
class Ks_lite_delegate;

struct car_task_doors {
    const cli_request& asked;
    Ks_lite_delegate& delegate;
    const console_alerts& messages;
    std::function<void()> finish; // ends the command at once; otherwise over() is polled
};

class car_task {
  public:
    explicit car_task(const car_task_doors& doors)
        : asked_(doors.asked), delegate_(doors.delegate), messages_(doors.messages),
          finish_(doors.finish) {}
    virtual ~car_task() = default;

    virtual void start() = 0;
    // Called after every event. May begin the next part.
    virtual bool over() = 0;
    virtual bool succeeded() const = 0;
    // The reason of failure, if only the task knows it.
    virtual std::string what_went_wrong() const { return {}; }
    // Whether an interruption is its normal end.
    virtual bool may_be_interrupted() const { return false; }
    // Whether it may last a day: without --timeout nothing ends it, and only the last status is
    // kept.
    virtual bool has_no_time_limit() const { return false; }
    // Whether it shows its progress itself.
    virtual bool prints_progress() const { return false; }
    // Whether print() will print this message, which must not appear twice.
    virtual bool is_result(const std::string& message) const { return message.empty(); }
    // Prints what was found so far. Also stops a task that is still running.
    virtual void print(bool succeeded, const conversation_log& log) = 0;

  protected:
    const cli_request& asked_;
    Ks_lite_delegate& delegate_;
    const console_alerts& messages_;
    std::function<void()> finish_;
};
