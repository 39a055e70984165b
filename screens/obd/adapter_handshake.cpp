#include "adapter_handshake.h"

#include "car_status.h"
#include "globalVars.h"
#include "obd_screen.h"
#include "reading.h"
#include "text.h"

#include <algorithm>
#include <exception>

namespace {

enum step : int {
    START = 0,
    RESET_ANSWERED = 1,
    ECHO_OFF_ANSWERED = 2,
    PROTOCOL_ANSWERED = 3,
    PIDS_00_ANSWERED = 4,
    HEADERS_OFF_ANSWERED = 5,
    IDENTITY_ANSWERED = 250,
    HEADERS_ON_ANSWERED = 301,
    PIDS_20_ANSWERED = 402,
    PIDS_40_ANSWERED = 403,
};

constexpr std::string_view NOT_UNDERSTOOD = "Did not understand cmd  ... Try again ";
// How often "AT SP A3" is tried; an adapter that still reports a fixed protocol, or whose answers
// lag by one, will not change.
constexpr int MOST_FIXED_PROTOCOLS = 10;

constexpr std::string_view NO_INTERFACE =
    "Unable to connect to interface ... Timed out .. Try again";

// Duplicated lines do not mean more units.
int different_answers(const reading& read) {
    int count = 0;
    for (auto one = read.answers.begin(); one != read.answers.end(); ++one)
        count += std::find(read.answers.begin(), one, *one) == one;
    return count;
}

} // namespace

// One request for supported PIDs, and that of the next group, which its bitmap may announce.
struct adapter_handshake::pid_group {
    int number;
    std::string_view request;
    const char* next_pid; // null: the last group
    std::string_view next_command;
    int next_step;
    const bounded_text<16>* mask;
};

bool adapter_handshake::comes_first() {
    if (connected_2_KS_interface)
        return false;
    next_step_idx = START;
    g_cur_mode = MODE_HANDSHAKE;
    connect_2_interface(START);
    return true;
}

bool adapter_handshake::connect_2_interface(int step) {
    static const pid_group GROUP_00{0,         "01 00",          "20",
                                    "01 20\r", PIDS_20_ANSWERED, &g_Supported_obd_mask_0};
    static const pid_group GROUP_20{1,         "01 20",          "40",
                                    "01 40\r", PIDS_40_ANSWERED, &g_Supported_obd_mask_1};
    static const pid_group GROUP_40{2, "01 40", nullptr, "", 0, nullptr};
    try {
        switch (step) {
        case START:
            start();
            break;
        case RESET_ANSWERED:
            reset_answered();
            break;
        case ECHO_OFF_ANSWERED:
            echo_off_answered();
            break;
        case IDENTITY_ANSWERED:
            identity_answered();
            break;
        case PROTOCOL_ANSWERED:
            protocol_answered();
            break;
        case HEADERS_ON_ANSWERED:
            headers_on_answered();
            break;
        case PIDS_00_ANSWERED:
            pids_answered(GROUP_00);
            break;
        case PIDS_20_ANSWERED:
            pids_answered(GROUP_20);
            break;
        case PIDS_40_ANSWERED:
            pids_answered(GROUP_40);
            break;
        case HEADERS_OFF_ANSWERED:
            return headers_off_answered();
        default:
            break;
        }
    } catch (const std::exception& failure) {
        fail_with_status("connect_2_interface::Did not fully complete [ " +
                         std::string(failure.what()) + " ]");
    }
    return false;
}

void adapter_handshake::start() {
    fixed_protocol_replies_ = 0;
    g_bus_form = bus_form::unknown; // it may be another car
    g_status_units.clear();
    if (!KS_did_connect_2_car)
        screen_.KS_delegate.forget_restore();
    send_waiting(KS_did_connect_2_car ? "AT E0\r" : "AT Z\r", RESET_ANSWERED);
}

void adapter_handshake::reset_answered() {
    const std::string reply = odb_curReplyMsg;
    if (g_obd_msg_state == S_FAIL) {
        if (g_BT_cur_status != BT_DISCONNECTED && g_retries <= 0) {
            ++g_retries;
            send("AT E0\r", RESET_ANSWERED);
            return;
        }
        g_retries = 0;
        fail_with_box(NO_INTERFACE);
    } else if (contains(reply, "?")) {
        if (g_retries > 1) {
            g_retries = 0;
            fail_with_box(texts_.reset_not_understood);
            return;
        }
        ++g_retries;
        screen_.set_status_msg("Did not understand cmd  ... Retrying");
        send("AT E0\r", RESET_ANSWERED);
    } else if (contains(reply, "OK") || contains(reply, "ELM")) {
        screen_.set_status_msg(" Did  get a reply from from ELM chip");
        send("AT E0\r", ECHO_OFF_ANSWERED);
    } else {
        screen_.cur_err_msg = "Not a proper reply: (" + reply + ")";
        if (g_retries > 1) {
            g_retries = 0;
            fail_with_status(screen_.cur_err_msg);
            return;
        }
        ++g_retries;
        screen_.set_status_msg(screen_.cur_err_msg);
        send("AT E0\r", RESET_ANSWERED);
    }
}

void adapter_handshake::echo_off_answered() {
    const std::string reply = check_initial_car_reply();
    if (contains(reply, "?")) {
        fail_with_box(texts_.echo_off_not_understood);
    } else if (contains(reply, REPLY_REJECTED)) {
        if (texts_.rejection_leaves)
            screen_.leave_cur_op_gracefully("");
        else
            screen_.end_task();
    } else if (contains(reply, "OK")) {
        screen_.set_status_msg("Got a ECHO off from ELM chip");
        send_waiting("AT I\r", IDENTITY_ANSWERED);
    } else {
        std::string message(texts_.echo_off_improper);
        if (texts_.echo_off_improper_shows_reply)
            message += "(" + reply + ")";
        fail_with_box(message);
    }
}

void adapter_handshake::identity_answered() {
    if (g_obd_msg_state == S_FAIL) {
        fail_with_status(NO_INTERFACE);
        return;
    }
    const std::string reply = odb_curReplyMsg;
    if (contains(reply, "?")) {
        fail_with_box(NOT_UNDERSTOOD);
        return;
    }
    if (cur_cmd.contains("AT I")) { // this step also takes the answer to "AT SP A3"
        screen_.show_err_msg("Interface : " + reply);
        screen_.show_interface(screen_.cur_err_msg);
        g_cur_interface = std::string_view(reply);
    }
    send("AT DP\r", PROTOCOL_ANSWERED);
}

// An adapter that answers every "AT DP" with "?" keeps this exchange going until the user leaves;
// the screener reports it each time.
void adapter_handshake::protocol_answered() {
    const std::string reply = check_initial_car_reply();
    if (contains(reply, "?")) {
        screen_.set_status_msg("AT DP not supported by current chip");
        send("AT H1\r", HEADERS_ON_ANSWERED);
        return;
    }
    if (g_cur_protocol.empty()) {
        screen_.show_err_msg(std::string(texts_.protocol_prefix) + reply);
        screen_.show_protocol(screen_.cur_err_msg);
        g_cur_protocol = std::string_view(reply);
    }
    const bool rejected = contains(reply, REPLY_REJECTED);
    if (contains(reply, "AUTO") ||
        (!rejected && ++fixed_protocol_replies_ > MOST_FIXED_PROTOCOLS)) {
        send("AT H1\r", HEADERS_ON_ANSWERED);
    } else {
        odb_curReplyMsg.clear();
        send("AT SP A3\r", IDENTITY_ANSWERED);
    }
}

void adapter_handshake::headers_on_answered() {
    const std::string reply = check_initial_car_reply();
    if (contains(reply, REPLY_REJECTED)) {
        screen_.leave_cur_op_gracefully("");
    } else if (contains(reply, "OK")) {
        g_retries = 0;
        send("01 00\r", PIDS_00_ANSWERED);
    } else {
        headers_on_not_confirmed();
    }
}

void adapter_handshake::headers_on_not_confirmed() {
    send("AT H1\r", HEADERS_ON_ANSWERED);
    const int before = g_retries;
    if (before <= 3) {
        g_retries = before + 2; // by two, deliberately: two repeats, then the end
        screen_.set_status_msg("Didn't get a confirmation from interface ... Trying again");
    } else {
        g_retries = before + 1;
        fail_with_box(texts_.headers_given_up);
    }
}

void adapter_handshake::pids_answered(const pid_group& group) {
    const bool first = group.number == 0;
    std::string reply = odb_curReplyMsg;
    // Without this check the later groups would take silence for an answer.
    if (texts_.first_pids_screened && (first || g_obd_msg_state == S_FAIL)) {
        reply = check_initial_car_reply();
        if (contains(reply, REPLY_REJECTED)) {
            screen_.leave_cur_op_gracefully("");
            return;
        }
    }
    if (contains(reply, "~")) {
        fail_with_box(first ? texts_.first_pids_failed : texts_.more_pids_failed);
        return;
    }
    if (contains(reply, "NODATA") || contains(reply, "?")) {
        screen_.set_status_msg("No data for [" + std::string(group.request) + "] .. trying next");
    } else {
        if (first)
            KS_did_connect_2_car = true;
        screen_.show_err_msg("Initial  reply: (" + reply + ")");
        const std::string bare = without(without(reply, " "), ">");
        mac_toolies::handle_00_replies(bare, group.number);
        if (first) {
            const reading read = read_reply("0100", bare);
            if (read.bus.source == bus_source::headers)
                g_bus_form = read.bus.form;
            g_status_units = units_with_status(read);
            const int units = different_answers(read);
            screen_.cur_err_msg = "No of ECUS: " + std::to_string(units);
            screen_.show_control_units(units);
        }
    }
    if (group.next_pid &&
        mac_toolies::is_this_code_available(*group.mask, group.next_pid, group.number))
        send(group.next_command, group.next_step);
    else
        send("AT H0\r", HEADERS_OFF_ANSWERED);
}

bool adapter_handshake::headers_off_answered() {
    if (g_obd_msg_state == S_FAIL) {
        fail_with_status(NO_INTERFACE);
        return false;
    }
    const std::string reply = odb_curReplyMsg;
    if (contains(reply, "?")) {
        fail_with_box(NOT_UNDERSTOOD);
        return false;
    }
    screen_.set_status_msg("Got the PIDs.. starting current task");
    connected_2_KS_interface = true;
    next_step_idx = 0;
    g_cur_mode = g_cur_task;
    screen_.work_current_task();
    return true;
}

void adapter_handshake::send(std::string_view command, int next_step) {
    screen_.send_and_go_to(command, next_step);
}

void adapter_handshake::send_waiting(std::string_view command, int next_step) {
    g_obd_msg_state = S_WAITING;
    send(command, next_step);
}

void adapter_handshake::fail_with_box(std::string_view message) {
    screen_.toolies.myMsgBox(message);
    screen_.leave_cur_op_gracefully("");
}

void adapter_handshake::fail_with_status(std::string_view message) {
    screen_.set_status_msg(std::string(message));
    screen_.leave_cur_op_gracefully("");
}
