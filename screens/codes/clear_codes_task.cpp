// Clearing trouble codes: "04" and its positive answer "44".
#include "alerts.h"
#include "codes_view.h"
#include "globalVars.h"
#include "readCodes.h"
#include "text.h"

#include <exception>

void readCodes::work_out_clear_codes(int step) {
    try {
        if (step == 0) {
            set_status_msg("Starting Clear codes");
            if (handshake_.comes_first())
                return;
            g_obd_msg_state = S_WAITING;
            send_and_go_to("04\r", 1);
        } else if (step == 1) {
            clear_answered();
        }
    } catch (const std::exception& failure) {
        const std::string message =
            "work_out_clear_codes::Did not fully complete [ " + std::string(failure.what()) + " ]";
        set_status_msg(message);
        leave_cur_op_gracefully("");
        KS_delegate.doors().message_boxes.show({.message = message});
    }
}

void readCodes::clear_answered() {
    connecting_2_car_port = false;
    std::string reply = handshake_.check_initial_car_reply();
    if (contains(reply, REPLY_REJECTED)) {
        end_task();
        return;
    }
    if (const std::size_t dots = reply.find("..."); dots != std::string::npos)
        reply.erase(0, dots + 3);
    reply = without(without(without(reply, " "), "\r"), "\n");
    show_err_msg("Got proper reply: (" + reply + ")");
    leave_cur_op_gracefully("");
    if (!contains(reply, "44")) {
        set_status_msg("Did not get a confirmation ..Please Check");
        return;
    }
    codesReadArray.clear();
    readinessFlagsArray.clear();
    unread_.clear();
    view_->show_codes(codesReadArray);
    view_->show_readiness(readinessFlagsArray);
    succeeded_ = true;
    constexpr char DONE[] = "Codes cleared sucessfully!!";
    set_status_msg(DONE);
    KS_delegate.doors().message_boxes.show({.message = DONE});
    view_->reset_labels();
}
