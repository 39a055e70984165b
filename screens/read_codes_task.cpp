// Reading trouble codes: lamp, count and readiness with headers on ("01 01"), then the codes
// ("03").
#include "codes_view.h"
#include "globalVars.h"
#include "readCodes.h"
#include "reply_lines.h"
#include "system_log.h"
#include "text.h"

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

// The data of a "01 01" answer behind its header (three bytes, 11-bit or 29-bit CAN); empty when
// there is none.
std::string status_data(std::string_view line) {
    return mac_toolies::pull_PID_msg(line, "01", "").value_or(std::string());
}

// Whether the adapter's answer to "AT DP" tells which bus it talks on; "AUTO" alone does not.
bool names_a_bus(std::string_view protocol) {
    return contains(protocol, "ISO") || contains(protocol, "SAE") || contains(protocol, "J1") ||
           contains(protocol, "CAN");
}

// Whether a "43" answer looks like CAN, when nothing else tells the bus: the older buses always
// fill their seven bytes, CAN sends two and two more for each code.
bool looks_like_can(std::string_view spaceless_reply) {
    const std::size_t answer = spaceless_reply.find("43");
    const std::string_view line = slice(spaceless_reply, answer);
    return answer != std::string_view::npos &&
           line.substr(0, line.find_first_of("\r\n>")).size() != 14;
}

// Of several replies that came in one piece the last that answers: an adapter that says everything
// twice must not count twice.
std::string last_reply_with(std::string_view marker, const std::string& replies) {
    std::string found = replies;
    for (const std::string_view each : split(replies, ">"))
        if (contains(without(each, " "), marker))
            found = std::string(each) + ">";
    return found;
}

constexpr std::size_t SHORTEST_MESSAGE = 6, LONGEST_MESSAGE = 14; // digits

// Digits of a CAN answer in one frame with the codes that it counts.
std::size_t counted_digits(std::string_view line) {
    constexpr std::size_t HEAD = 4, CODE = 4;
    return HEAD + CODE * mac_toolies::convertStr2Byte(slice(line, 2, 2));
}

// A frame may be filled up; what is longer than a frame is an adapter's own putting together, or
// another answer has run into it.
bool holds_its_codes(std::string_view line) {
    const std::size_t counted = counted_digits(line);
    return line.size() == counted ||
           (line.size() > counted && line.size() <= LONGEST_MESSAGE && line.size() % 2 == 0);
}

// On the older buses: without the rest of a code whose other digits are lost; empty for a line that
// is longer than a message, since another answer has run into it, and for a shorter one that is
// just what CAN would send, since then the bus is in doubt.
std::string whole_codes(const std::string& line) {
    if (line.size() < SHORTEST_MESSAGE || line.size() > LONGEST_MESSAGE ||
        (line.size() < LONGEST_MESSAGE && line.size() == counted_digits(line)))
        return {};
    return line.substr(0, line.size() - (line.size() - 2) % 4);
}

// Without the lines that the adapter marks as damaged ("<DATA ERROR"), that have lost a part or
// that another answer has run into.
std::string trustworthy_lines(std::string_view reply, bool is_can) {
    std::string left;
    for (const std::string_view line : split(reply, "\r")) {
        std::string digits = without(line, "\n>");
        if (contains(line, "<"))
            continue;
        if (digits.starts_with("43")) {
            if (!is_can)
                digits = whole_codes(digits);
            else if (!holds_its_codes(digits))
                continue;
        }
        left.append(digits).append("\r");
    }
    return left;
}

constexpr std::size_t SHORTEST_ANSWER = 12; // digits of header, "4101" and byte A
constexpr int MOST_HEADER_REPEATS = 12; // in one task

} // namespace

void readCodes::work_out_read_codes(int step) {
    try {
        switch (step) {
        case START:
            start_reading();
            break;
        case HEADERS_ON_ANSWERED:
            headers_answered("01 01\r", STATUS_ANSWERED);
            break;
        case STATUS_ANSWERED:
            status_answered();
            break;
        case HEADERS_OFF_ANSWERED:
            headers_answered("03\r", CODES_ANSWERED);
            break;
        case CODES_ANSWERED:
            codes_answered();
            break;
        default:
            break;
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

// After "AT H1" and after "AT H0": go on when confirmed.
void readCodes::headers_answered(std::string_view next_command, int next_step) {
    if (contains(odb_curReplyMsg, "~")) {
        end_by_timeout();
        return;
    }
    if (!contains(odb_curReplyMsg, "OK")) {
        retry_headers();
        return;
    }
    g_retries = 0;
    g_obd_msg_state = S_WAITING;
    send_and_go_to(next_command, next_step);
}

// A lost confirmation of "AT H0" repeats the whole status exchange as well. Its end counts from
// zero again, so that an adapter which never confirms would be asked for ever.
void readCodes::retry_headers() {
    cur_cmd = std::string_view("AT H1\r");
    next_step_idx = HEADERS_ON_ANSWERED;
    g_replies_expected = 1;
    const int before = g_retries;
    g_retries = before + 1;
    if (before <= 3 && ++headers_repeated_ <= MOST_HEADER_REPEATS) {
        g_retries = before + 2; // by two on purpose
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
    odb_curReplyMsg = last_reply_with("4101", odb_curReplyMsg);
    const std::string reply = handshake_.check_initial_car_reply();
    if (contains(reply, REPLY_REJECTED)) {
        end_task();
        return;
    }
    if (contains(reply, "NO DATA") && g_retries <= 0 && !longer_timeout_asked_for_) {
        longer_timeout_asked_for_ = true;
        ++g_retries;
        g_obd_msg_state = S_WAITING;
        send_and_go_to("AT ST FF\r",
                       START); // the adapter's longest wait; then everything once more
        return;
    }
    g_retries = 0;
    set_status_msg("Initial  reply: [" + reply + "]");
    decode_status(reply);
    send_and_go_to("AT H0\r", HEADERS_OFF_ANSWERED);
}

void readCodes::decode_status(const std::string& screened_reply) {
    std::vector<std::string> lines = reply_lines(screened_reply);
    for (std::string& line : lines) // the echo, whose line end may be lost
        if (line.starts_with("0101"))
            line.erase(0, 4);
    std::erase(lines, "");
    // Rubbish in a line's header would make another unit or bus of it, rubbish behind it another lamp.
    const auto reads_as_status = [](const std::string& line) {
        const std::string data = status_data(line);
        return is_hex(line) && data.starts_with("4101") && data.size() >= 6;
    };
    const auto came_over_can = [](const std::string& line) { return has_can_header(line, "4101"); };
    status_answer_was_can_ = std::ranges::any_of(lines, [&](const std::string& line) {
        return reads_as_status(line) && came_over_can(line);
    });
    const auto readable = [&](const std::string& line) {
        return reads_as_status(line) && came_over_can(line) == status_answer_was_can_;
    };
    // Short words are notices; anything else may have been a unit's answer.
    const bool all_readable =
        std::ranges::none_of(lines, [&](const auto& line) {
            return !readable(line) && (line.size() >= SHORTEST_ANSWER || is_hex(line));
        });
    const auto answers = std::ranges::count_if(lines, readable);
    no_of_codes = 0;
    status_told_ = false;
    p_cur_01_pid.clear();
    bool lamp_on = false, engine_told = false;
    for (const std::string& line : lines) {
        const std::string data = status_data(line);
        if (!readable(line)) {
            set_status_msg("Did not read initial header .. continuing"); // what others told stays
            continue;
        }
        status_told_ = true;
        const unsigned byte_a = mac_toolies::convertStr2Byte(std::string_view(data).substr(4, 2));
        const bool unit_lamp = (byte_a & 0x80u) != 0;
        if (contains(mac_toolies::pull_ECU(line), "Engine") ||
            (answers == 1 && all_readable)) {
            engine_told = true;
            p_cur_01_pid = std::string_view(data).substr(6);
            lamp_on = lamp_on || unit_lamp;
        }
        // A unit whose lamp bit is clear adds nothing, whatever its count: on purpose.
        if (unit_lamp)
            no_of_codes += static_cast<int>(byte_a & 0x7Fu);
    }

    // Nobody told: neither "OFF" nor "0" would be true. Nor is "OFF" when the engine's answer is
    // the one that cannot be read.
    const bool lamp_unknown = !status_told_ || (!all_readable && !engine_told);
    view_->set_lamp(lamp_on ? "ON" : lamp_unknown ? "N/A" : "OFF");
    view_->set_count(status_told_ ? std::to_string(no_of_codes) : "N/A");
    cur_err_msg =
        QLocale().toString(QDateTime::currentDateTime(), QLocale::ShortFormat).toStdString();
    view_->set_read_on(cur_err_msg);
}

std::vector<std::string>
readCodes::work_reply_to_error_codes_pid(std::string_view mode, std::string_view this_reply) const {
    // The protocol text is the first answer to "AT DP": it may be "AUTO" from before the bus was
    // found, or of the car that the adapter sat in before. The headers of this task's status answer
    // know better, and those of the handshake.
    const bool is_can = status_told_                        ? status_answer_was_can_
                        : g_bus_form != bus_form::unknown ? g_bus_form == bus_form::can
                        : names_a_bus(g_cur_protocol) ? g_cur_protocol.contains("CAN")
                                                      : looks_like_can(this_reply);
    return mac_toolies::decode_trouble_codes(mode, trustworthy_lines(this_reply, is_can), is_can);
}

void readCodes::codes_answered() {
    const std::string reply = last_reply_with("43", odb_curReplyMsg);
    if (contains(reply, "~")) {
        refresh_readiness();
        set_status_msg("Failed to receive the error codes");
        leave_cur_op_gracefully("");
        return;
    }
    const bool answered = contains(without(reply, " "), "43");
    const bool nothing_stored =
        status_told_ && contains(without(reply, " "), "NODATA"); // as old cars put it
    codes_rcvd = work_reply_to_error_codes_pid("03", without(reply, " "));
    load_the_codes();
    codesReadArray.clear();
    for (const std::string& code : codes_rcvd) {
        codesReadArray.push_back({code, look_upCode(code, P0_Codes)});
        qCDebug(log_screens, "%s - %s", code.c_str(), codesReadArray.back()[1].c_str());
    }
    view_->show_codes(codesReadArray);
    set_status_msg("Rerieve codes successfully");
    refresh_readiness();
    succeeded_ = answered || nothing_stored;
    set_status_msg(codesReadArray.size() == static_cast<std::size_t>(no_of_codes)
                       ? "Codes read!. Scroll for full description"
                       : "Codes read...but different no of codes recvd");
    leave_cur_op_gracefully("");
}

void readCodes::refresh_readiness() {
    // Without an answer to "01 01" there is no state to show.
    readinessFlagsArray.clear();
    struct shower { // the rows built before a failure are shown as well
        readCodes& screen;
        ~shower() { screen.view_->show_readiness(screen.readinessFlagsArray); }
    } show{*this};
    if (std::string_view(p_cur_01_pid).size() >= 6)
        toolies.handle_readiness_codes(p_cur_01_pid, readinessFlagsArray);
}
