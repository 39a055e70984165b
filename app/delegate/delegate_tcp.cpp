// The Wi-Fi transport: a TCP connection to the adapter. A lost connection still counts as open;
// only another adapter in the preferences, or the user who wants it back, connects again.
#include "bundle.h"
#include "globalVars.h"
#include "Ks_lite_delegate.h"
#include "system_log.h"

#include <charconv>
#include <exception>

namespace {

constexpr std::size_t READ_SIZE = 1024;
constexpr std::chrono::seconds FIRST_COMMAND_DELAY{1};

// Decimal value of the leading digits; no number: 0. A number beyond long is beyond every port too.
long decimal_value(const std::string& text) {
    const std::size_t start = text.find_first_not_of(" \t");
    if (start == std::string::npos)
        return 0;
    long number = 0;
    const auto read = std::from_chars(text.data() + start, text.data() + text.size(), number);
    return read.ec == std::errc::result_out_of_range ? 65536 : number;
}

} // namespace

bool Ks_lite_delegate::openTCP_socky() {
    if (connected_2_WIFI_interface)
        return true;
    const long port = decimal_value(g_cur_wifi_port);
    connectToServerUsingCFStream(g_cur_wifi_IP, port);
    doors_.loop.after(TCP_TIME_OUT, [this, attempt = attempt_] { tcpTimeOutHandler(attempt); });
    sent_1st_cmd = false;
    l_set_status_msg("Trying: " + g_cur_wifi_IP + ":" + std::to_string(port) + " ");
    return false;
}

void Ks_lite_delegate::connectToServerUsingCFStream(const std::string& host, long portNo) {
    const std::uint64_t attempt = ++attempt_;
    attempt_state_ = attempt_state::none;
    opened_to_ = chosen_adapter();
    streams_ = doors_.make_streams(host, portNo); // a pair before this one is closed with it
    if (!streams_)
        return;
    attempt_state_ = attempt_state::connecting;
    streams_->open([this, attempt](stream_side side, int event_code) {
        if (attempt == attempt_)
            stream(side, event_code);
    });
}

void Ks_lite_delegate::stream(stream_side, int handleEvent) {
    switch (handleEvent) {
    case STREAM_OPEN_COMPLETED:
        stream_opened();
        break;
    case STREAM_BYTES_AVAILABLE:
        bytes_available();
        break;
    case STREAM_SPACE_AVAILABLE:
        qCDebug(log_link, "NSStreamEventHasSpaceAvailable");
        break;
    case STREAM_ERROR: {
        const std::string why = streams_->error_description();
        qCWarning(log_link, "Error %s", why.c_str());
        attempt_state_ = attempt_state::failed;
        ledger_.link_gone();
        l_set_status_msg("Couldn't connect...Please Check\n\n" + why);
        tell_link_lost();
        break;
    }
    case STREAM_END:
        qCWarning(log_link, "Disconected");
        ledger_.link_gone();
        l_set_status_msg("Disconnected");
        tell_link_lost();
        break;
    default:
        break;
    }
}

void Ks_lite_delegate::stream_opened() {
    qCDebug(log_link, "Connected\n");
    connected_2_WIFI_interface = true;
    attempt_state_ = attempt_state::opened;
    l_set_status_msg("TCP Connected!! ... Sending intial request");
    if (sent_1st_cmd)
        return;
    sent_1st_cmd = true;
    doors_.loop.cancel(deferred_call_);
    deferred_call_ = doors_.loop.after(FIRST_COMMAND_DELAY, [this] {
        deferred_call_ = 0;
        work_over_new_link("Connected!  Querying ...");
    });
}

void Ks_lite_delegate::bytes_available() {
    try {
        const std::string data = streams_->read(READ_SIZE);
        if (data.empty())
            qCDebug(log_link, "No data.");
        qCDebug(log_link, "%s", data.c_str());
        post_received(data);
    } catch (const std::exception& failure) {
        l_set_status_msg(std::string("Failed receiving data [ ") + failure.what() + " ]");
    }
}

void Ks_lite_delegate::sendOBDcmd_TCP(std::string_view command) {
    if (!openTCP_socky())
        return;                         // dropped; the open event starts the screen's work again
    doors_.loop.cancel(deferred_call_); // the screen has begun by itself
    deferred_call_ = 0;
    ledger_.command_left(doors_.loop.now());
    if (streams_)
        streams_->write(command);
}

void Ks_lite_delegate::tcpTimeOutHandler(std::uint64_t attempt) {
    if (attempt == attempt_ && attempt_state_ == attempt_state::connecting)
        l_set_status_msg(doors_.resources.localized("tcp_no_answer_yet_MSG"));
}

void Ks_lite_delegate::disconnect() {
    forget_put_back();
    if (streams_)
        streams_->close();
    attempt_state_ = attempt_state::none;
    give_up_on_replies();
    ledger_.link_gone();
    // Whatever was to begin on this connection begins on the next.
    doors_.loop.cancel(deferred_call_);
    deferred_call_ = 0;
}
