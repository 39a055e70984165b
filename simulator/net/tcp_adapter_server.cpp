#include "tcp_adapter_server.h"

#include "adapter_connection.h"

#include <QHostAddress>

tcp_adapter_server::tcp_adapter_server(car the_car, adapter_options options, QObject* parent)
    : tcp_adapter_server(nullptr, parent) {
    car_ = std::move(the_car);
    adapter_ = std::make_unique<virtual_adapter>(car_, std::move(options));
}

tcp_adapter_server::tcp_adapter_server(std::unique_ptr<adapter> served, QObject* parent)
    : QObject(parent), adapter_(std::move(served)) {
    clock_.start();
    connect(&server_, &QTcpServer::newConnection, this, &tcp_adapter_server::serve_next);
}

tcp_adapter_server::~tcp_adapter_server() {
    if (connection_)
        connection_->disconnect(this);
}

bool tcp_adapter_server::listen(const std::string& address, int port) {
    const QHostAddress host(QString::fromStdString(address));
    if (host.isNull() || port < 0 || port > 65535) {
        error_ =
            host.isNull() ? "not an IP address: " + address : "not a port: " + std::to_string(port);
        return false;
    }
    if (adapter_->refuses())
        return refuse_at(address, port);
    if (!server_.listen(host, quint16(port))) {
        error_ = server_.errorString().toStdString();
        return false;
    }
    port_ = server_.serverPort();
    return true;
}

// A socket that is bound but does not listen: no other program gets the port, and clients are
// refused.
bool tcp_adapter_server::refuse_at(const std::string& address, int port) {
    refusing_ = std::make_unique<QTcpSocket>();
    if (!refusing_->bind(QHostAddress(QString::fromStdString(address)), quint16(port))) {
        error_ = refusing_->errorString().toStdString();
        return false;
    }
    port_ = refusing_->localPort();
    return true;
}

void tcp_adapter_server::serve_next() {
    if (connection_ && connection_->is_open())
        return;
    QTcpSocket* socket = server_.nextPendingConnection();
    // A client that left while waiting would send no further event.
    while (socket && socket->state() != QAbstractSocket::ConnectedState) {
        socket->deleteLater();
        socket = server_.nextPendingConnection();
    }
    if (!socket)
        return;
    if (connection_)
        connection_->deleteLater();
    connection_ = new adapter_connection(socket, *adapter_, clock_, this);
    connect(connection_, &adapter_connection::over, this, &tcp_adapter_server::serve_next,
            Qt::QueuedConnection);
    connection_->start();
}
