#include "obd_screen.h"

#include "adapter_handshake.h"
#include "alerts.h"
#include "bundle.h"
#include "globalVars.h"
#include "reply_accumulator.h"
#include "status_line.h"
#include "system_log.h"
#include "text.h"
#include "transports.h"

namespace {

toolkit_doors doors_for_toolkit(app_doors& doors) {
    return {&doors.resources, &doors.defaults, &doors.message_boxes, &doors.notifications};
}

// How long another command's reply is awaited, even if a run has changed the reply time-out.
constexpr std::chrono::seconds OLD_REPLY_BOUND{REPLY_TIME_OUT_AT_START};

} // namespace

obd_screen::obd_screen(Ks_lite_delegate& delegate)
    : KS_delegate(delegate), toolies(doors_for_toolkit(delegate.doors())) {}

obd_screen::~obd_screen() {
    KS_delegate.doors().loop.cancel(owed_bound_);
}

void obd_screen::begin_afresh() {
    g_BT_cur_status = BT_DISCONNECTED;
    g_retries = 0;
    odb_curReplyBuffyMsg.clear();
    odb_curReplyMsg.clear();
    g_cur_mode = MODE_HANDSHAKE;
    next_step_idx = 0;
}

void obd_screen::begin_task() {
    end_task();
    task_running_ = true;
}

void obd_screen::end_task() {
    KS_delegate.doors().loop.cancel(owed_bound_);
    owed_bound_ = 0;
    task_running_ = false;
}

bool obd_screen::work_over_link(const std::function<void()>& link_usable) {
    if (!KS_delegate.openInterfaceConnection()) {
        const bool coming_up = KS_delegate.link_coming_up();
        if (const std::string hint = KS_delegate.advice(); !coming_up && !hint.empty())
            set_status_msg(hint);
        return coming_up;
    }
    link_usable();
    if (*chosen_transport().connected) {
        begin_first_step();
    } else if (!KS_delegate.link_coming_up()) { // a channel that has closed is never opened again
        set_status_msg(localized("bt_closed_MSG"));
        return false;
    }
    return true;
}

void obd_screen::begin_first_step() {
    if (!KS_delegate.replies().owes()) {
        work_current_task();
        return;
    }
    when_adapter_is_free(OLD_REPLY_BOUND, [this](bool in_vain) {
        if (!in_vain || KS_delegate.replies().reply_incomplete())
            odb_curReplyBuffyMsg.clear();
        work_current_task();
    });
}

void obd_screen::when_adapter_is_free(run_loop::milliseconds bound,
                                      std::function<void(bool in_vain)> go_on) {
    go_on_ = std::move(go_on);
    owed_bound_ = KS_delegate.doors().loop.after(bound, [this] {
        KS_delegate.give_up_on_replies();
        this->go_on(true);
    });
}

void obd_screen::go_on(bool in_vain) {
    KS_delegate.doors().loop.cancel(owed_bound_);
    owed_bound_ = 0;
    const auto call = std::move(go_on_);
    call(in_vain);
}

void obd_screen::work_current_task() {
    if (!task_running_ || awaits_owed_reply())
        return;
    if (g_cur_mode != MODE_HANDSHAKE)
        work_task(g_cur_mode, next_step_idx);
    else if (handshake())
        handshake()->connect_2_interface(next_step_idx);
}

void obd_screen::handleOBDRcvdMsg(const std::string& text) {
    qCDebug(log_screens, "readDTC:handleOBDRcvdMsg got the stuff%s", text.c_str());
    if (!takes_time_out(text) && completes_reply(text))
        work_current_task();
}

bool obd_screen::takes_time_out(const std::string& text) {
    if (!contains(text, "Timeout"))
        return false;
    beep();
    set_status_msg("Cur op timed out... Please Check/retry");
    return true;
}

bool obd_screen::completes_reply(const std::string& chunk) {
    const bool complete = accumulate_reply(chunk);
    if (!awaits_owed_reply())
        return complete;
    if (!KS_delegate.replies().owes())
        go_on(false);
    return false;
}

void obd_screen::set_status_msg(const std::string& message) {
    note_status(message);
    show_status();
}

void obd_screen::show_status() {
    if (statusLbl)
        statusLbl->set_text(status_);
}

void obd_screen::note_status(const std::string& message) {
    status_ = message;
    if (KS_delegate.status_shown)
        KS_delegate.status_shown(message);
}

void obd_screen::send_and_go_to(std::string_view command, int next_step) {
    cur_cmd = command;
    g_replies_expected = 1;
    next_step_idx = next_step;
    sendOBDcmd(cur_cmd);
}

void obd_screen::show_err_msg(std::string message) {
    cur_err_msg = std::move(message);
    set_status_msg(cur_err_msg);
}

void obd_screen::beep() {
    KS_delegate.doors().message_boxes.beep();
}

std::string obd_screen::localized(std::string_view key) const {
    return KS_delegate.doors().resources.localized(key);
}
