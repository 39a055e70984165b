// The transports that are streams: a TCP connection to the adapter, or a serial port. A lost
// connection still counts as open; only another adapter in the preferences, or Reconnect, connects
// again.
#include "bundle.h"
#include "globalVars.h"
#include "Ks_lite_delegate.h"
#include "system_log.h"
#include "transports.h"

#include <exception>

namespace {

constexpr std::size_t READ_SIZE = 1024;
constexpr std::chrono::seconds FIRST_COMMAND_DELAY{1};

} // namespace

bool Ks_lite_delegate::openTCP_socky() {
    if (connected_2_WIFI_interface)
        return true;
    way_ = &chosen_transport();
    const stream_address address = way_->address();
    connectToServerUsingCFStream(address.name, address.number);
    doors_.loop.after(TCP_TIME_OUT, [this, attempt = attempt_] { tcpTimeOutHandler(attempt); });
    sent_1st_cmd = false;
    l_set_status_msg("Trying: " + address.shown + " ");
    return false;
}

void Ks_lite_delegate::connectToServerUsingCFStream(const std::string& host, long portNo) {
    const std::uint64_t attempt = ++attempt_;
    attempt_state_ = attempt_state::none;
    opened_to_ = chosen_adapter();
    const stream_pair_factory& make = doors_.*(way_->make_streams);
    streams_ = make ? make(host, portNo) : nullptr; // closes the previous pair
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
        notify_link_lost();
        break;
    }
    case STREAM_END:
        qCWarning(log_link, "Disconected");
        ledger_.link_gone();
        l_set_status_msg("Disconnected");
        notify_link_lost();
        break;
    default:
        break;
    }
}

void Ks_lite_delegate::stream_opened() {
    qCDebug(log_link, "Connected\n");
    connected_2_WIFI_interface = true;
    attempt_state_ = attempt_state::opened;
    l_set_status_msg(way_->connected_text);
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
        return;                         // dropped; the open event restarts the screen's work
    doors_.loop.cancel(deferred_call_); // the screen has started by itself
    deferred_call_ = 0;
    ledger_.command_left(doors_.loop.now());
    if (streams_)
        streams_->write(command);
}

void Ks_lite_delegate::tcpTimeOutHandler(std::uint64_t attempt) {
    if (attempt == attempt_ && attempt_state_ == attempt_state::connecting)
        l_set_status_msg(doors_.resources.localized(way_->slow_key));
}

void Ks_lite_delegate::disconnect() {
    forget_restore();
    if (streams_)
        streams_->close();
    attempt_state_ = attempt_state::none;
    give_up_on_replies();
    ledger_.link_gone();
    // The deferred start waits for the next connection.
    doors_.loop.cancel(deferred_call_);
    deferred_call_ = 0;
}
