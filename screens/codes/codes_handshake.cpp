#include "codes_handshake.h"

#include "globalVars.h"
#include "obd_screen.h"
#include "text.h"
#include "transports.h"

namespace {

constexpr handshake_texts CODES_TEXTS{
    .reset_not_understood = "Did not understand cmd  ... Try again",
    .echo_off_not_understood = "Did not understand cmd  ... Try again ",
    .echo_off_improper = "Not a proper reply:",
    .echo_off_improper_shows_reply = true,
    .protocol_prefix = " ",
    .headers_given_up =
        "Retried 3 times and Did not get a reply from interface.  Check pairing/connections ",
    .first_pids_failed = "Failed to receive available PIDs ",
    .more_pids_failed = "Failed to receive available PIDs ",
    .first_pids_screened = false,
    .rejection_leaves = false,
};

} // namespace

codes_handshake::codes_handshake(obd_screen& screen) : adapter_handshake(screen, CODES_TEXTS) {}

std::string codes_handshake::check_initial_car_reply() {
    const std::string reply = odb_curReplyMsg;
    if (g_obd_msg_state == S_FAIL) {
        connected_2_KS_interface = false;
        next_step_idx = 0;
        screen_.toolies.myMsgBox("Timed out .. Try again");
        return REPLY_REJECTED;
    }
    if (contains(reply, "UNABLE TO CONNECT")) {
        screen_.beep();
        screen_.set_status_msg(screen_.localized("no_reply_from_car_MSG"));
        screen_.toolies.myMsgBox(screen_.localized(chosen_transport().car_silent_key));
        return REPLY_REJECTED;
    }
    if (contains(reply, "?")) {
        constexpr char MESSAGE[] = "Did not understand cmd  ... Try again";
        screen_.set_status_msg(MESSAGE);
        screen_.toolies.myMsgBox(MESSAGE);
        return REPLY_REJECTED;
    }
    if (contains(reply, "BUS INIT:") && contains(reply, "ERROR")) {
        screen_.toolies.myMsgBox(screen_.localized("init_OBD_error_MSG"));
        return REPLY_REJECTED;
    }
    std::string text = replace_all(reply, "\r\n", "\r");
    text = replace_all(text, "\n\r", "\r");
    text = replace_all(text, "\r\r", "\r");
    text = without(text, ">");
    if (const std::size_t dots = text.find("..."); dots != std::string::npos)
        text = trimmed(std::string_view(text).substr(dots + 3), "\r");
    return text;
}
