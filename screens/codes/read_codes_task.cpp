// Reading trouble codes: lamp, count and readiness with headers on ("01 01"), then the codes
// ("03").
#include "car_status.h"
#include "codes_view.h"
#include "globalVars.h"
#include "readCodes.h"
#include "system_log.h"
#include "text.h"
#include "trouble_codes.h"

#include <QDateTime>
#include <QLocale>

#include <algorithm>
#include <exception>

namespace {

enum step : int {
    START = 0,
    STATUS_ANSWERED = 1,
    CODES_ANSWERED = 2,
    HEADERS_ON_ANSWERED = 111,
    HEADERS_OFF_ANSWERED = 222,
};

constexpr int MOST_HEADER_REPEATS = 12; // in one task

} // namespace

void readCodes::work_out_read_codes(int step) {
    try {
        switch (step) {
        case START:
            return start_reading();
        case HEADERS_ON_ANSWERED:
            return headers_answered("01 01\r", STATUS_ANSWERED);
        case STATUS_ANSWERED:
            return status_answered();
        case HEADERS_OFF_ANSWERED:
            return headers_answered("03\r", CODES_ANSWERED);
        case CODES_ANSWERED:
            return codes_answered();
        default:
            return;
        }
    } catch (const std::exception& failure) {
        show_err_msg("work_out_read::Did not fully complete [ " + std::string(failure.what()) +
                     " ]");
        toolies.myMsgBox(cur_err_msg);
        leave_cur_op_gracefully("");
    }
}

void readCodes::start_reading() {
    set_status_msg("Starting Read codes");
    if (handshake_.comes_first())
        return;
    g_obd_msg_state = S_WAITING;
    send_and_go_to("AT H1\r", HEADERS_ON_ANSWERED);
}

// After "AT H1" and after "AT H0": continue when confirmed.
void readCodes::headers_answered(std::string_view next_command, int next_step) {
    if (contains(odb_curReplyMsg, "~"))
        return end_by_timeout();
    if (!contains(odb_curReplyMsg, "OK"))
        return retry_headers();
    g_retries = 0;
    g_obd_msg_state = S_WAITING;
    send_and_go_to(next_command, next_step);
}

// A lost confirmation of "AT H0" repeats the whole status exchange. That resets the retries, so an
// adapter that never confirms would be asked forever.
void readCodes::retry_headers() {
    cur_cmd = std::string_view("AT H1\r");
    next_step_idx = HEADERS_ON_ANSWERED;
    g_replies_expected = 1;
    const int before = g_retries;
    g_retries = before + 1;
    if (before <= 3 && ++headers_repeated_ <= MOST_HEADER_REPEATS) {
        g_retries = before + 2; // by two, deliberately
        set_status_msg("Didn't get a confirmation from interface ... Trying again");
        sendOBDcmd(cur_cmd);
        return;
    }
    toolies.myMsgBox(
        "Retried 3 times and Did not get a reply from interface.  Check pairing/connections");
    leave_cur_op_gracefully("");
}

void readCodes::end_by_timeout() {
    connected_2_KS_interface = false;
    next_step_idx = 0;
    set_status_msg("Timed out .. Try again");
    toolies.myMsgBox("Timed out .. Try again");
    leave_cur_op_gracefully("");
}

void readCodes::status_answered() {
    connecting_2_car_port = false;
    const std::string reply = handshake_.check_initial_car_reply();
    if (contains(reply, REPLY_REJECTED))
        return end_task();
    if (contains(reply, "NO DATA") && g_retries <= 0 && !longer_timeout_requested_) {
        longer_timeout_requested_ = true;
        ++g_retries;
        g_obd_msg_state = S_WAITING;
        // Sets the adapter's longest wait, then repeats everything.
        return send_and_go_to("AT ST FF\r", START);
    }
    g_retries = 0;
    set_status_msg("Initial  reply: [" + reply + "]");
    decode_status();
    send_and_go_to("AT H0\r", HEADERS_OFF_ANSWERED);
}

void readCodes::decode_status() {
    const car_status status = read_status(odb_curReplyMsg, g_status_units);
    status_reply_ = without(odb_curReplyMsg, " ");
    status_reported_ = status.reported;
    count_known_ = status.reported && status.all_read;
    status_bus_ = status.bus;
    no_of_codes = status.codes;
    p_cur_01_pid = std::string_view(status.monitors);
    if (!count_known_)
        set_status_msg("Did not read initial header .. continuing");
    view_->set_lamp(status.lamp_on ? "ON" : status.lamp_known ? "OFF" : "N/A");
    view_->set_count(count_known_ ? std::to_string(no_of_codes) : "N/A");
    cur_err_msg =
        QLocale().toString(QDateTime::currentDateTime(), QLocale::ShortFormat).toStdString();
    view_->set_read_on(cur_err_msg);
    for (const unread_piece& one : status.unread)
        if (one.kind != unread_kind::no_answer) // shown as "N/A"
            unread_.push_back(one);
    // The next reading repeats the handshake: the unit may be gone, or was only a damaged header.
    if (std::ranges::count(unread_, unread_kind::silent_unit, &unread_piece::kind) > 0)
        connected_2_KS_interface = false;
}

std::vector<std::string> readCodes::work_reply_to_error_codes_pid(std::string_view mode,
                                                                  std::string_view this_reply) {
    codes_reading read =
        read_codes(mode, this_reply, bus_known_by(status_bus_, g_bus_form, g_cur_protocol),
                   count_known_ ? std::optional(no_of_codes) : std::nullopt);
    // Old cars answer NO DATA if nothing is stored, but not after they have counted codes.
    if (read.no_data && (!status_reported_ || no_of_codes > 0))
        read.unread.push_back({unread_kind::no_answer, {}});
    // A status that arrives only now was cut off before, so the codes may have been cut off too.
    for (const std::string& late : read.others)
        if (late.starts_with("4101") && !contains(status_reply_, late))
            read.unread.push_back({unread_kind::no_answer, {}});
    std::ranges::move(read.unread, std::back_inserter(unread_));
    units_rcvd = std::move(read.units);
    return std::move(read.codes);
}

void readCodes::codes_answered() {
    const std::string reply = odb_curReplyMsg;
    if (contains(reply, "~")) {
        unread_.push_back({unread_kind::no_answer, {}});
        refresh_readiness();
        set_status_msg("Failed to receive the error codes");
        return leave_cur_op_gracefully("");
    }
    codes_rcvd = work_reply_to_error_codes_pid("03", without(reply, " "));
    load_the_codes();
    codesReadArray.clear();
    for (const std::string& code : codes_rcvd) {
        codesReadArray.push_back({code, look_upCode(code, P0_Codes)});
        qCDebug(log_screens, "%s - %s", code.c_str(), codesReadArray.back()[1].c_str());
    }
    codes_reported_ = true;
    view_->show_codes(codesReadArray, units_rcvd);
    set_status_msg("Rerieve codes successfully");
    refresh_readiness();
    succeeded_ = unread_.empty();
    view_->show_result(unread_, no_of_codes == 0);
    set_status_msg(succeeded_ && count_known_ &&
                           codesReadArray.size() == static_cast<std::size_t>(no_of_codes)
                       ? "Codes read!. Scroll for full description"
                       : "Codes read...but different no of codes recvd");
    leave_cur_op_gracefully("");
}

void readCodes::refresh_readiness() {
    // Without an answer to "01 01" there is no status to show.
    readinessFlagsArray.clear();
    struct shower { // shows the rows built before a failure, too
        readCodes& screen;
        ~shower() { screen.view_->show_readiness(screen.readinessFlagsArray); }
    } show{*this};
    if (std::string_view(p_cur_01_pid).size() >= 6)
        toolies.handle_readiness_codes(p_cur_01_pid, readinessFlagsArray);
}
