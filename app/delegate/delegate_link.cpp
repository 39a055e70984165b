// The link half of the delegate: one command out, chunks and time-outs in.
#include "globalVars.h"
#include "Ks_lite_delegate.h"
#include "system_log.h"

void Ks_lite_delegate::sendOBDcmd(std::string_view command) {
    // The timer armed before is left running on purpose: if it belongs to a command that is still
    // unanswered, it will report that.
    obdTimeOutTimer =
        doors_.loop.after(std::chrono::seconds(g_this_delta), [this, given_up = given_up_] {
            if (given_up == given_up_)
                obdTimedOutHandler();
        });
    qCDebug(log_link, "sent %.*s", static_cast<int>(command.size()), command.data());
    if (g_connect_with == KS_USE_BT)
        sendOBDcmd_BT(command);
    else
        sendOBDcmd_TCP(command);
}

void Ks_lite_delegate::obdTimedOutHandler() {
    g_obd_msg_state = S_FAIL;
    odb_curReplyMsg.clear();
    reply_awaited_since_ = {};
    doors_.notifications.post(OBD_EVENT, "Timeout");
}

void Ks_lite_delegate::handleOBDRcvdNotification(const std::string& text) {
    doors_.loop.cancel(obdTimeOutTimer);
    obdTimeOutTimer = 0;
    qCDebug(log_link, "delegate:handleOBD got the stuff%s", text.c_str());
    if (mainViewController)
        mainViewController->handleOBDRcvdMsg(text);
}

void Ks_lite_delegate::post_received(const std::string& text) {
    // A prompt at the very front belongs to an earlier reply when more text follows it.
    if (text == ">" || text.find('>', 1) != std::string::npos)
        reply_awaited_since_ = {};
    doors_.notifications.post(OBD_EVENT, text);
}

bool Ks_lite_delegate::openInterfaceConnection() {
    return g_connect_with == KS_USE_BT ? openSerialPortProfile() : openTCP_socky();
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

void Ks_lite_delegate::tell_link_lost() {
    if (mainViewController)
        mainViewController->link_lost();
}

void Ks_lite_delegate::adapter_changed() {
    connected_2_KS_interface = false;
    g_cur_protocol.clear();
    g_bus_form = bus_form::unknown;
    connected_2_WIFI_interface = false;
    disconnect(); // an attempt that still runs is to the old address as well
}

void Ks_lite_delegate::give_up_on_reply() {
    ++given_up_;
    doors_.loop.cancel(obdTimeOutTimer);
    obdTimeOutTimer = 0;
    reply_awaited_since_ = {};
}

bool Ks_lite_delegate::link_coming_up() const {
    return deferred_call_ != 0 || attempt_state_ == attempt_state::connecting || bluetooth_opening_;
}

bool Ks_lite_delegate::anything_outstanding() const {
    return reply_awaited_since_.count() != 0 || link_coming_up();
}
