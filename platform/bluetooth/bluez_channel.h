// A channel to a Bluetooth device's serial port: carries bytes over a connection's socket. Owned by
// the link.
#pragma once

#include "bluez_connection.h"
#include "run_loop.h"
#include "serial_port_profile.h"

#include <QObject>
#include <QSocketNotifier>

#include <functional>
#include <memory>

class bluez_channel final : public QObject, public rfcomm_channel {
    Q_OBJECT
  public:
    // `connection` has succeeded.
    bluez_channel(run_loop& loop, std::unique_ptr<bluez_connection> connection,
                  rfcomm_channel_delegate delegate);
    ~bluez_channel() override;

    static constexpr std::chrono::seconds WRITE_LIMIT{2};

    int writeSync(std::string_view bytes) override;
    int closeChannel() override;

  private:
    enum class state { opening, open, closed };

    void opened();
    void received();
    void close_socket();
    void post(std::function<void()> call);

    run_loop& loop_;
    std::unique_ptr<bluez_connection> connection_;
    rfcomm_channel_delegate delegate_;
    std::unique_ptr<QSocketNotifier> readable_;
    state state_ = state::opening;
    int descriptor_ = -1;
    // Scheduled calls hold a weak pointer to this, so that a destroyed channel makes none.
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};
