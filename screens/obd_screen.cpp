#include "obd_screen.h"

#include "alerts.h"
#include "bundle.h"
#include "globalVars.h"
#include "status_line.h"

namespace {

toolkit_doors doors_for_toolkit(app_doors& doors) {
    return {&doors.resources, &doors.defaults, &doors.message_boxes, &doors.notifications};
}

} // namespace

obd_screen::obd_screen(Ks_lite_delegate& delegate)
    : KS_delegate(delegate), toolies(doors_for_toolkit(delegate.doors())) {}

void obd_screen::set_status_msg(const std::string& message) {
    status_ = message;
    if (statusLbl)
        statusLbl->set_text(message);
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
