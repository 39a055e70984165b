// Runs one command of the command line on the screens themselves, without a display: presses the
// button, waits until the task is over, and prints what the screen found. Owned by main.
#pragma once

#include "command_line.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class console_alerts;
class expertCtrlr;
class Ks_lite_delegate;
class live_command;
class pids_command;
class readCodes;

class command_runner final : public QObject {
  public:
    command_runner(const cli_request& asked, Ks_lite_delegate& delegate, console_alerts& messages);
    ~command_runner() override;

    // Begins; `done` is told the exit status from the event loop.
    void start(std::function<void(int exit_status)> done);
    // The user wants out.
    void interrupt();

  private:
    void start_codes();
    void start_send();
    void start_live();
    void start_pids();
    void look_for_channel();
    void look();
    bool over() const;
    void finish_codes();
    void end_with_told(bool succeeded);
    void finish_live();
    void next_send();
    void take_reply(const std::string& chunk);
    void end(bool succeeded, const std::string& why);
    void leave_when_adapter_is_back(int exit_status);

    const cli_request& asked_;
    Ks_lite_delegate& delegate_;
    console_alerts& messages_;
    std::function<void(int)> done_;
    QTimer look_timer_, leave_timer_;
    QTimer bound_;
    std::vector<std::string> statuses_;

    std::unique_ptr<live_command> live_;
    std::unique_ptr<pids_command> pids_;
    readCodes* codes_ = nullptr;
    expertCtrlr* expert_ = nullptr;
    bool channel_awaited_ = false;
    std::size_t sent_ = 0;
    std::string reply_;
    bool reply_complete_ = false;
    std::vector<std::string> replies_;
};
