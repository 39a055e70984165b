#include "tcp_stream_pair.h"

#include <QByteArray>
#include <QNetworkProxy>

#include <algorithm>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

namespace {
constexpr qint64 READ_BUFFER = 256 * 1024;
}

tcp_stream_pair::tcp_stream_pair(run_loop& loop, std::string host, long port)
    : loop_(loop), host_(std::move(host)), port_(port) {}

tcp_stream_pair::~tcp_stream_pair() {
    close();
}

void tcp_stream_pair::open(event_handler handler) {
    handler_ = std::move(handler);
    if (port_ < 0 || port_ > 65535) {
        error_ = "Port " + std::to_string(port_) + " is not between 0 and 65535";
        raise(stream_side::input, STREAM_ERROR);
        return;
    }
    connect(&socket_, &QTcpSocket::connected, this, &tcp_stream_pair::connected);
    connect(&socket_, &QTcpSocket::readyRead, this, &tcp_stream_pair::received);
    connect(&socket_, &QTcpSocket::errorOccurred, this, &tcp_stream_pair::failed);
    connect(&socket_, &QTcpSocket::disconnected, this, &tcp_stream_pair::disconnected);
    // The desktop's proxy settings do not apply to an adapter.
    socket_.setProxy(QNetworkProxy::NoProxy);
    socket_.setReadBufferSize(READ_BUFFER); // a flood waits in the kernel, not in our memory
    socket_.connectToHost(QString::fromStdString(host_), static_cast<quint16>(port_));
}

void tcp_stream_pair::connected() {
    socket_.setSocketOption(QAbstractSocket::LowDelayOption, 1);
    acknowledge_at_once();
    raise(stream_side::input, STREAM_OPEN_COMPLETED);
    raise(stream_side::output, STREAM_OPEN_COMPLETED);
    raise(stream_side::output, STREAM_SPACE_AVAILABLE);
}

// Some adapters write a reply in pieces with Nagle's algorithm on; a delayed acknowledgement then
// costs 40 ms per request. The kernel resets the option now and then, so it is set again after each
// read that no command follows; a command carries the acknowledgement with it.
void tcp_stream_pair::acknowledge_at_once() {
    const int on = 1;
    ::setsockopt(static_cast<int>(socket_.socketDescriptor()), IPPROTO_TCP, TCP_QUICKACK, &on,
                 sizeof on);
}

void tcp_stream_pair::received() {
    if (bytes_announced_ || ended_)
        return;
    bytes_announced_ = true;
    // Immediately: waiting a turn of the event loop for every reply would cost a third of the
    // sampling rate.
    loop_.from_event_loop(event(stream_side::input, STREAM_BYTES_AVAILABLE));
}

std::string tcp_stream_pair::read(std::size_t most) {
    bytes_announced_ = false;
    const QByteArray bytes = socket_.read(static_cast<qint64>(most));
    written_since_read_ = false;
    // The socket does not signal again for the remaining bytes: announce them here.
    if (socket_.bytesAvailable() > 0) {
        bytes_announced_ = true;
        raise(stream_side::input, STREAM_BYTES_AVAILABLE);
    } else if (ended_) {
        raise(stream_side::input, STREAM_END);
    }
    return bytes.toStdString();
}

void tcp_stream_pair::write(std::string_view bytes) {
    if (socket_.state() != QAbstractSocket::ConnectedState)
        return;
    written_since_read_ = true;
    // Directly to the system if nothing is queued: through the socket's buffer, every command would
    // switch its write notifier on and off, which costs three more system calls.
    ssize_t sent = 0;
    if (socket_.bytesToWrite() == 0)
        sent = std::max<ssize_t>(::send(static_cast<int>(socket_.socketDescriptor()), bytes.data(),
                                        bytes.size(), MSG_NOSIGNAL | MSG_DONTWAIT),
                                 0);
    bytes.remove_prefix(static_cast<std::size_t>(sent));
    if (bytes.empty())
        return;
    // What did not fit, or failed; the socket then reports the error.
    socket_.write(bytes.data(), static_cast<qint64>(bytes.size()));
    socket_.flush();
}

void tcp_stream_pair::failed(QAbstractSocket::SocketError error) {
    if (error == QAbstractSocket::RemoteHostClosedError)
        return; // disconnected() reports it as the end
    error_ = socket_.errorString().toStdString();
    raise(stream_side::input, STREAM_ERROR);
}

void tcp_stream_pair::disconnected() {
    if (socket_.error() != QAbstractSocket::RemoteHostClosedError || ended_)
        return;
    ended_ = true;
    if (bytes_announced_)
        return; // the end follows the last read
    bytes_announced_ = socket_.bytesAvailable() > 0;
    raise(stream_side::input, bytes_announced_ ? STREAM_BYTES_AVAILABLE : STREAM_END);
}

void tcp_stream_pair::close() {
    alive_.reset();
    handler_ = nullptr;
    socket_.disconnect(this);
    socket_.abort();
}

void tcp_stream_pair::raise(stream_side side, int event_code) {
    loop_.after(run_loop::milliseconds(0), event(side, event_code));
}

std::function<void()> tcp_stream_pair::event(stream_side side, int event_code) {
    return [this, alive = std::weak_ptr<bool>(alive_), side, event_code] {
        if (alive.expired())
            return;
        const event_handler call = handler_; // the pair may be replaced meanwhile
        call(side, event_code);
        if (alive.expired() || event_code != STREAM_BYTES_AVAILABLE)
            return;
        if (!written_since_read_ && socket_.socketDescriptor() != -1)
            acknowledge_at_once();
        // Bytes that arrived during a dialog of the handler raised no signal, since this one had
        // not returned.
        if (socket_.bytesAvailable() > 0 && !bytes_announced_) {
            bytes_announced_ = true;
            raise(stream_side::input, STREAM_BYTES_AVAILABLE);
        }
    };
}
