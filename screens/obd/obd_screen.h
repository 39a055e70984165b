// What the screens that talk to the adapter share: the delegate, the toolkit, the status line, and
// the helpers of a step (put the command in cur_cmd, note the next step, send).
#pragma once

#include "Ks_lite_delegate.h"
#include "mac_toolies.h"
#include "run_loop.h"

#include <functional>
#include <string>
#include <string_view>

class adapter_handshake;
class busy_indicator;
class status_line;

class obd_screen : public screen_controller {
  public:
    explicit obd_screen(Ks_lite_delegate& delegate);
    ~obd_screen() override;

    void work_current_task() override;
    void handleOBDRcvdMsg(const std::string& text) override;
    void set_status_msg(const std::string& message) override;
    const std::string& status() const { return status_; }

    void sendOBDcmd(std::string_view command) { KS_delegate.sendOBDcmd(command); }
    // Puts `command` into cur_cmd, expects one reply, notes the step that the reply runs, and
    // sends.
    void send_and_go_to(std::string_view command, int next_step);

    // Sets cur_err_msg and shows it on the status line.
    void show_err_msg(std::string message);
    void beep();
    std::string localized(std::string_view key) const;

    // Results of the handshake; a screen shows those that it has labels for.
    virtual void show_interface(const std::string& text) { (void)text; }
    virtual void show_protocol(const std::string& text) { (void)text; }
    virtual void show_control_units(int count) { (void)count; }

    Ks_lite_delegate& KS_delegate;
    mac_toolies toolies;
    std::string cur_err_msg;

    // Continues when the adapter owes no reply any more, or after the bound, then with `in_vain`.
    // What arrives until then is dropped: it must not be taken for the answer to the next command,
    // and a character sent meanwhile would interrupt it.
    void when_adapter_is_free(run_loop::milliseconds bound,
                              std::function<void(bool in_vain)> go_on);
    // Ends a task without message or reset.
    void end_task();
    // A task of this screen is running. Otherwise replies and deferred calls belong to another task
    // and are dropped.
    bool task_running() const { return task_running_; }

  protected:
    void use_status_line(status_line& line) { statusLbl = &line; }
    // The two halves of set_status_msg(), for a screen whose texts change faster than they can be
    // read: the first stores the text, the second shows the latest.
    void note_status(const std::string& message);
    void show_status();
    // Resets an earlier screen's state: replies, retries, the step.
    void begin_afresh();
    // Begins a task; what an earlier one waited for is forgotten.
    void begin_task();
    // Opens the link and starts the task over it; if the link is still coming up, the transport
    // starts the task. `link_usable` is called if it is up already. False: no link will come up.
    bool work_over_link(const std::function<void()>& link_usable);
    bool awaits_owed_reply() const { return owed_bound_ != 0; }
    // A step of the running task, outside the handshake.
    virtual void work_task(int task, int step) { (void)task, (void)step; }
    virtual adapter_handshake* handshake() { return nullptr; }
    // False if it is not a time-out. Nothing is cleaned up: the user retries with a button.
    virtual bool takes_time_out(const std::string& text);
    // Whether this chunk completes the running task's next reply; replies owed are handled first.
    bool completes_reply(const std::string& chunk);

  private:
    void begin_first_step();
    void go_on(bool in_vain);

    run_loop::timer_id owed_bound_ = 0;
    std::function<void(bool in_vain)> go_on_;
    status_line* statusLbl = nullptr;
    std::string status_;
    bool task_running_ = false;
};
