// Runs one command of the command line on the screens themselves, without a display: presses the
// button, observes what happens, and prints the result when the task is over. Owned by main.
#pragma once

#include "car_task.h"
#include "commands.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>
#include <string>

class console_alerts;
class Ks_lite_delegate;

class command_runner final : public QObject {
  public:
    command_runner(const cli_request& asked, Ks_lite_delegate& delegate, console_alerts& messages);
    ~command_runner() override;

    // Begins; `done` is called with the exit status from the event loop.
    void start(std::function<void(int exit_status)> done);
    // The user interrupts.
    void interrupt();

  private:
    void take_status(const std::string& text);
    void look();
    void finish();
    void end(bool succeeded, const std::string& why);
    void leave();

    const cli_request& asked_;
    Ks_lite_delegate& delegate_;
    console_alerts& messages_;
    std::unique_ptr<car_task> task_;
    std::function<void(int)> done_;
    QTimer bound_;
    conversation_log output_;
    bool begun_ = false, ended_ = false;
    std::optional<int> status_; // once ended
};
