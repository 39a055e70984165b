// A virtual car and its Wi-Fi adapter on a TCP port. One client at a time, as on a real adapter:
// another one waits until the first has gone. All see the same car, so cleared codes stay cleared.
#pragma once

#include "virtual_adapter.h"

#include <QElapsedTimer>
#include <QTcpServer>

#include <memory>
#include <string>

class adapter_connection;

class tcp_adapter_server : public QObject {
    Q_OBJECT

  public:
    explicit tcp_adapter_server(car the_car, adapter_options options = {},
                                QObject* parent = nullptr);
    // Any other adapter.
    explicit tcp_adapter_server(std::unique_ptr<adapter> served, QObject* parent = nullptr);
    ~tcp_adapter_server() override;

    // Port 0 picks a free one. False: error() says why. With the fault "refuse" the port is taken
    // but every connection refused.
    bool listen(const std::string& address, int port);
    int port() const { return port_; }
    const std::string& error() const { return error_; }

    const car& the_car() const { return car_; }

  private:
    bool refuse_at(const std::string& address, int port);
    void serve_next();

    car car_;
    std::unique_ptr<adapter> adapter_;
    QElapsedTimer clock_;
    QTcpServer server_;
    std::unique_ptr<QTcpSocket> refusing_;
    adapter_connection* connection_ = nullptr;
    int port_ = 0;
    std::string error_;
};
