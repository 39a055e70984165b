// One client's connection to an adapter: carries bytes between socket and adapter, and wakes when
// output is due. Owned by the server; it never deletes itself, but signals when it is over.
#pragma once

#include "adapter.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTcpSocket>
#include <QTimer>

class adapter_connection : public QObject {
    Q_OBJECT

  public:
    // Takes over the socket. `clock` is the server's, shared by all connections.
    adapter_connection(QTcpSocket* socket, adapter& served, const QElapsedTimer& clock,
                       QObject* parent);

    // Reads what has already arrived, which may end the connection: connect to over() first.
    void start();
    bool is_open() const { return socket_->state() == QAbstractSocket::ConnectedState; }

  Q_SIGNALS:
    void over();

  private:
    std::chrono::milliseconds now() const { return std::chrono::milliseconds(clock_.elapsed()); }
    void read();
    void write_due();

    QTcpSocket* socket_;
    adapter& adapter_;
    const QElapsedTimer& clock_;
    QTimer timer_;
};
