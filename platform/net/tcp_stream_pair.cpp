#include "tcp_stream_pair.h"

#include <QNetworkProxy>

#include <algorithm>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

namespace {
constexpr qint64 READ_BUFFER = 256 * 1024;
}

tcp_stream_pair::tcp_stream_pair(run_loop& loop, std::string host, long port)
    : line_stream_pair(loop), host_(std::move(host)), port_(port) {}

tcp_stream_pair::~tcp_stream_pair() {
    close();
}

void tcp_stream_pair::open(event_handler handler) {
    listen(std::move(handler));
    if (port_ < 0 || port_ > 65535)
        return raise_error("Port " + std::to_string(port_) + " is not between 0 and 65535");
    connect(&socket_, &QTcpSocket::connected, this, &tcp_stream_pair::connected);
    connect(&socket_, &QTcpSocket::readyRead, this, [this] { raise_bytes(); });
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
    raise_open();
}

// Some adapters write a reply in pieces with Nagle's algorithm on; a delayed acknowledgement then
// costs 40 ms per request. The kernel resets the option now and then, so it is set again after each
// read that no command follows; a command carries the acknowledgement with it.
void tcp_stream_pair::acknowledge_at_once() {
    const int on = 1;
    ::setsockopt(static_cast<int>(socket_.socketDescriptor()), IPPROTO_TCP, TCP_QUICKACK, &on,
                 sizeof on);
}

std::string tcp_stream_pair::take(std::size_t most) {
    written_since_read_ = false;
    return socket_.read(static_cast<qint64>(most)).toStdString();
}

void tcp_stream_pair::bytes_handled() {
    if (!written_since_read_ && socket_.socketDescriptor() != -1)
        acknowledge_at_once();
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
    raise_error(socket_.errorString().toStdString());
}

void tcp_stream_pair::disconnected() {
    if (socket_.error() == QAbstractSocket::RemoteHostClosedError)
        raise_end();
}

void tcp_stream_pair::close() {
    stop_listening();
    socket_.disconnect(this);
    socket_.abort();
}
