// One attempt to open a Bluetooth device's serial port: find the device, register as a client of
// the Serial Port profile, let BlueZ look up the service, pair if necessary and connect, and take
// the descriptor. Devices that are Low Energy, dual without a classic serial port, or of unknown
// kind go to low_energy_port. Lives as long as the channel: without the registration BlueZ would
// close it.
#pragma once

#include "bluez_devices.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <optional>
#include <string>

class low_energy_port;
class profile_object;
class QDBusMessage;

class bluez_connection final : public QObject {
    Q_OBJECT
  public:
    // `address` as bluetooth_address() returns it. Starts immediately; done() comes later.
    bluez_connection(bluez_devices& devices, std::string address);
    // Cancels an unfinished attempt.
    ~bluez_connection() override;

    static constexpr int REACH_MS = 20'000; // until the device answers at all
    static constexpr int TOTAL_MS = 60'000; // pairing may ask the user

    bool finished() const { return finished_; }
    // Once finished; none means connected.
    bluetooth_problem problem() const { return problem_; }
    const std::string& address() const { return address_; }
    // Whether this attempt made the baseband connection, rather than another program.
    bool made_link() const { return !connected_before_; }
    // The connected socket, once, or -1. The caller shuts it down before closing it: BlueZ keeps a
    // copy.
    int take_descriptor();

  Q_SIGNALS:
    void done();

  private:
    friend class profile_object;

    void follow_devices();
    void connect_device(const bluetooth_entry& device);
    void register_profile();
    void connect_profile();
    bool falls_back(bluetooth_problem problem) const;
    void fall_back(bluetooth_problem problem);
    void open_low_energy();
    void call_failed(const QDBusMessage& reply);
    void new_connection(int descriptor);
    void finish(bluetooth_problem problem);
    void undo();

    bluez_devices& devices_;
    std::string address_;
    QString device_path_; // empty until BlueZ knows the device
    std::unique_ptr<profile_object> profile_;
    std::unique_ptr<low_energy_port> low_energy_;
    bool over_classic_ = false; // else over Low Energy
    bool also_low_energy_ = false;
    bool fallen_back_ = false; // from classic to Low Energy or back, after first_problem_
    bluetooth_problem first_problem_ = bluetooth_problem::none;
    QTimer reach_limit_, total_limit_;
    bool searched_ = false;
    bool connecting_ = false;
    bool connected_before_ = false;
    bool finished_ = false;
    bluetooth_problem problem_ = bluetooth_problem::none;
    int descriptor_ = -1;
};
