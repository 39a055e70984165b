#include "adapter_connection.h"

#include <algorithm>

adapter_connection::adapter_connection(QTcpSocket* socket, adapter& served,
                                       const QElapsedTimer& clock, QObject* parent)
    : QObject(parent), socket_(socket), adapter_(served), clock_(clock) {
    socket_->setParent(this);
    socket_->setSocketOption(QAbstractSocket::LowDelayOption,
                             adapter_.sends_without_delay() ? 1 : 0);
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &adapter_connection::write_due);
    connect(socket_, &QTcpSocket::readyRead, this, &adapter_connection::read);
    connect(socket_, &QTcpSocket::disconnected, this, &adapter_connection::over);
}

void adapter_connection::start() {
    adapter_.connection_opened(now());
    read();
}

void adapter_connection::read() {
    const QByteArray bytes = socket_->readAll();
    adapter_.receive(std::string_view(bytes.constData(), std::size_t(bytes.size())), now());
    write_due();
}

void adapter_connection::write_due() {
    if (adapter_.wants_close(now())) {
        socket_->disconnectFromHost();
        return;
    }
    const std::string due = adapter_.take_output(now());
    if (!due.empty()) {
        socket_->write(due.data(), qint64(due.size()));
        socket_->flush();
    }
    if (const auto next = adapter_.next_output())
        timer_.start(int(std::clamp<long long>((*next - now()).count(), 0, 60000)));
}
