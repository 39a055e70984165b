// The real stream pair: one TCP socket.
#pragma once

#include "run_loop.h"
#include "stream_pair.h"

#include <QObject>
#include <QTcpSocket>

#include <memory>

class tcp_stream_pair final : public QObject, public stream_pair {
    Q_OBJECT
  public:
    tcp_stream_pair(run_loop& loop, std::string host, long port);
    ~tcp_stream_pair() override;

    void open(event_handler handler) override;
    std::string read(std::size_t most) override;
    void write(std::string_view bytes) override;
    void close() override;
    std::string error_description() const override { return error_; }

  private:
    void connected();
    void received();
    void failed(QAbstractSocket::SocketError error);
    void disconnected();
    void acknowledge_at_once();
    void raise(stream_side side, int event_code);
    std::function<void()> event(stream_side side, int event_code);

    run_loop& loop_;
    std::string host_;
    long port_;
    QTcpSocket socket_;
    event_handler handler_;
    std::string error_;
    // Scheduled events hold a weak pointer to this, so that a destroyed pair raises none.
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
    bool bytes_announced_ = false;
    bool written_since_read_ = false;
    bool ended_ = false;
};
