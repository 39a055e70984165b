// The real stream pair: one TCP socket.
#pragma once

#include "line_stream_pair.h"

#include <QObject>
#include <QTcpSocket>

class tcp_stream_pair final : public QObject, public line_stream_pair {
    Q_OBJECT
  public:
    tcp_stream_pair(run_loop& loop, std::string host, long port);
    ~tcp_stream_pair() override;

    void open(event_handler handler) override;
    void write(std::string_view bytes) override;
    void close() override;

  private:
    std::string take(std::size_t most) override;
    bool more_to_take() const override { return socket_.bytesAvailable() > 0; }
    void bytes_handled() override;
    void connected();
    void failed(QAbstractSocket::SocketError error);
    void disconnected();
    void acknowledge_at_once();

    std::string host_;
    long port_;
    QTcpSocket socket_;
    bool written_since_read_ = false;
};
