// A serial port over Low Energy: connects through BlueZ, finds the two characteristics, subscribes,
// and forwards bytes between them and a socket, so that the channel sees a socket as with classic
// Bluetooth. Lives as long as the channel.
#pragma once

#include "bluez_devices.h"
#include "gatt_serial.h"

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include <memory>

class QDBusMessage;

class low_energy_port final : public QObject {
    Q_OBJECT
  public:
    // Starts immediately; signals come later. `device`: BlueZ's object path.
    low_energy_port(bluez_devices& devices, QString device, int write_ms = WRITE_MS);
    ~low_energy_port() override;

    static constexpr int SETTLE_MS =
        2'000; // for the characteristics, once the services are resolved
    static constexpr int WRITE_MS = 10'000; // some adapters never respond to a write request
    static constexpr qsizetype MOST_UNREAD = 1 << 20;

    // The characteristics have been found.
    bool has_port() const { return port_.has_value(); }
    // The program's end of the socket, once, or -1. The other end is shut down when the connection
    // is lost or a write fails, after everything received has been read.
    int take_descriptor();

  Q_SIGNALS:
    void opened();
    void failed(const QDBusMessage& error);

  private:
    void follow_devices();
    void link_lost();
    void find_characteristics();
    void subscribe();
    void carry(int notifications, int mtu);
    void notified();
    void program_wrote();
    void hand_over();
    void end();

    bluez_devices& devices_;
    const QString device_;
    const int write_ms_;
    std::optional<gatt_serial_port> port_;
    QTimer settle_;
    bool connected_ = false;
    bool ended_ = false;
    int notifications_ = -1; // a message per notification
    int ours_ = -1, theirs_ = -1;
    std::size_t piece_ = 0; // bytes that fit into one write
    QByteArray unread_;     // received, but the socket is full
    std::unique_ptr<QSocketNotifier> received_, written_, room_;
};
