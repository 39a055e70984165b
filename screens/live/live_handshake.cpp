#include "live_handshake.h"

#include "globalVars.h"
#include "obd_screen.h"
#include "text.h"
#include "transports.h"

#include <algorithm>

namespace {

constexpr handshake_texts LIVE_TEXTS{
    .reset_not_understood = "Did not understand cmd .. Try again",
    .echo_off_not_understood = "Did not understand cm .. Try again",
    .echo_off_improper = "Not a proper reply: ",
    .echo_off_improper_shows_reply = false,
    .protocol_prefix = "Protocol: ",
    .headers_given_up =
        "Retried 3 times and Did not get a reply from interface.  Check pairing/connections",
    .first_pids_failed = "Failed to receive available PIDs",
    .more_pids_failed = "Failed to receive available PIDs",
    .first_pids_screened = true,
    .rejection_leaves = true,
};

// How far after a search notice carriage returns are removed.
constexpr std::size_t RETURNS_REMOVED_WITHIN = 4;

} // namespace

live_handshake::live_handshake(obd_screen& screen) : adapter_handshake(screen, LIVE_TEXTS) {}

std::string live_handshake::check_initial_car_reply() {
    const std::string reply = odb_curReplyMsg;
    if (g_obd_msg_state == S_FAIL) {
        screen_.beep();
        connected_2_KS_interface = false;
        next_step_idx = 0;
        screen_.set_status_msg("Timed out .. Try again");
        screen_.toolies.myMsgBox(screen_.localized(chosen_transport().car_silent_key));
        return REPLY_REJECTED;
    }
    if (contains(reply, "UNABLE TO CONNECT")) {
        const std::string text = screen_.localized("no_reply_from_car_MSG");
        screen_.set_status_msg(text);
        screen_.toolies.myMsgBox(text);
        return REPLY_REJECTED;
    }
    // No test for "?" here: such a reply passes, and the step that reads it decides.
    if (contains(reply, "BUS INIT:") && contains(reply, "ERROR")) {
        screen_.toolies.myMsgBox(screen_.localized("init_OBD_error_MSG"));
        return REPLY_REJECTED;
    }
    std::string text = replace_all(reply, "\n\r", "\r");
    text = replace_all(text, "\r\n", "\r");
    text = replace_all(text, "\r\r", "\r");
    if (const std::size_t dots = text.find("..."); dots != std::string::npos) {
        const std::string rest = text.substr(dots + 3);
        const std::size_t head = std::min(rest.size(), RETURNS_REMOVED_WITHIN);
        text = without(std::string_view(rest).substr(0, head), "\r") + rest.substr(head);
    }
    return text;
}
