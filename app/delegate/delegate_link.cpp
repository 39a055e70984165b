// The link half of the delegate: one command out, chunks and time-outs in.
#include "bundle.h"
#include "globalVars.h"
#include "Ks_lite_delegate.h"
#include "system_log.h"
#include "transports.h"

void Ks_lite_delegate::sendOBDcmd(std::string_view command) {
    stop_restore(); // a screen's command takes precedence
    send_over_link(command);
}

void Ks_lite_delegate::send_over_link(std::string_view command) {
    // A running timer is deliberately not stopped: it may belong to a command still unanswered.
    obdTimeOutTimer = doors_.loop.after(std::chrono::seconds(g_this_delta),
                                        [this, generation = ledger_.generation()] {
                                            if (generation == ledger_.generation())
                                                obdTimedOutHandler();
                                        });
    qCDebug(log_link, "sent %.*s", static_cast<int>(command.size()), command.data());
    only_connecting_ = false;
    (this->*chosen_transport().send)(command);
}

void Ks_lite_delegate::obdTimedOutHandler() {
    g_obd_msg_state = S_FAIL;
    odb_curReplyMsg.clear();
    ledger_.timed_out();
    set_doubt(true);
    doors_.notifications.post(OBD_EVENT, "Timeout");
}

void Ks_lite_delegate::handleOBDRcvdNotification(const std::string& text) {
    doors_.loop.cancel(obdTimeOutTimer);
    obdTimeOutTimer = 0;
    qCDebug(log_link, "delegate:handleOBD got the stuff%s", text.c_str());
    if (mainViewController)
        mainViewController->handleOBDRcvdMsg(text);
    take_restore_reply(text);
}

void Ks_lite_delegate::post_received(const std::string& text) {
    const bool doubted = link_in_doubt();
    ledger_.received(text, doors_.loop.now());
    if (doubted && !text.empty())
        set_doubt(false);
    doors_.notifications.post(OBD_EVENT, text);
}

bool Ks_lite_delegate::openInterfaceConnection() {
    only_connecting_ = false;
    return (this->*chosen_transport().open)();
}

void Ks_lite_delegate::l_work_current_task(const std::string* message) {
    if (message)
        l_set_status_msg(*message);
    if (mainViewController)
        mainViewController->work_current_task();
}

void Ks_lite_delegate::l_set_status_msg(const std::string& message) {
    if (mainViewController)
        mainViewController->set_status_msg(message);
}

// A link opened by Reconnect has no task to start.
void Ks_lite_delegate::work_over_new_link(const std::string& message) {
    if (only_connecting_ && in_doubt_)
        return; // it has failed again
    if (only_connecting_)
        l_set_status_msg(doors_.resources.localized("ui_reconnected"));
    else
        l_work_current_task(&message);
}

void Ks_lite_delegate::notify_link_lost() {
    restore_commands_ = {};
    if (mainViewController)
        mainViewController->link_lost();
    forget_restore(); // after the task has ended, so that nothing continues
    set_doubt(true);
}

void Ks_lite_delegate::set_doubt(bool in_doubt) {
    in_doubt_ = in_doubt;
    doors_.notifications.post(LINK_EVENT, "");
}

bool Ks_lite_delegate::link_in_doubt() const {
    return in_doubt_ || ledger_.stalled_since(doors_.loop.now()).count() != 0;
}

Ks_lite_delegate::adapter_choice Ks_lite_delegate::chosen_adapter() {
    const transport& way = chosen_transport();
    return {&way, way.address().typed};
}

void Ks_lite_delegate::settings_left() {
    if (!opened_to_.way || opened_to_ == chosen_adapter())
        return;
    drop_link();
}

void Ks_lite_delegate::reconnect() {
    restore_commands_ = {}; // not over a new link: the adapter may have been reset
    if (mainViewController)
        mainViewController->leave_cur_op_gracefully("");
    drop_link();
    if (openInterfaceConnection() || link_coming_up()) {
        only_connecting_ = true;
        return;
    }
    if (const std::string hint = advice(); !hint.empty())
        l_set_status_msg(hint);
    set_doubt(true);
}

std::string Ks_lite_delegate::advice() const {
    const auto advise = chosen_transport().advice;
    return advise ? advise(doors_) : std::string();
}

// Closes the link and forgets what a restarted program would not know.
void Ks_lite_delegate::drop_link() {
    ++attempt_;
    opened_to_ = {};
    connected_2_WIFI_interface = false;
    disconnect();
    drop_channel();
    connected_2_KS_interface = false;
    KS_did_connect_2_car = false;
    g_cur_interface.clear();
    g_cur_protocol.clear();
    g_bus_form = bus_form::unknown;
    g_status_units.clear();
    for (auto* mask : {&g_Supported_obd_mask_0, &g_Supported_obd_mask_1, &g_Supported_obd_mask_2})
        mask->clear();
    g_Supported_obd_mask_3.clear();
    odb_curReplyBuffyMsg.clear();
    g_retries = 0;
    g_this_delta = REPLY_TIME_OUT_AT_START;
    set_doubt(false);
}

void Ks_lite_delegate::give_up_on_replies() {
    ledger_.give_up();
    doors_.loop.cancel(obdTimeOutTimer);
    obdTimeOutTimer = 0;
}

bool Ks_lite_delegate::link_coming_up() const {
    return deferred_call_ != 0 || attempt_state_ == attempt_state::connecting || bluetooth_opening_;
}

bool Ks_lite_delegate::anything_outstanding() const {
    return ledger_.awaited_since().count() != 0 || link_coming_up();
}
