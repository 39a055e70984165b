// The real serial-port door: BlueZ over D-Bus, which is not used before Bluetooth is needed. Owned
// by main.
#pragma once

#include "bluez_connection.h"
#include "bluez_devices.h"
#include "run_loop.h"
#include "serial_port_profile.h"

#include <QDBusConnection>

#include <functional>
#include <memory>
#include <string>

// How the door talks to the user. `device`: a name or an address.
struct bluetooth_user {
    // Modal: returns a successful connection to the device that the user chose, or null if they
    // cancelled. Empty if there is no user.
    std::function<std::unique_ptr<bluez_connection>(bluez_devices& devices)> choose;
    // Returns when the connection has finished or the user has cancelled.
    std::function<void(bluez_connection& connection, const std::string& device)> wait;
    // Shows why there is no connection.
    std::function<void(bluetooth_problem problem, const std::string& device)> tell;
    // What to do after a failed attempt.
    std::function<std::string(bool after_chooser)> advice;
};

class bluez_serial_port final : public serial_port_profile {
  public:
    bluez_serial_port(run_loop& loop, bluetooth_user user,
                      std::function<QDBusConnection()> bus = QDBusConnection::systemBus);
    ~bluez_serial_port() override;

    std::unique_ptr<device_selector> deviceSelector() override;
    std::shared_ptr<bluetooth_device> device_with_address(std::string_view text) override;
    std::string advice() const override { return user_.advice(chooser_opened_); }

    bluez_devices& devices();

  private:
    friend class bluez_device;
    friend class bluez_selector;

    run_loop& loop_;
    bluetooth_user user_;
    bool chooser_opened_ = false; // in the last attempt
    std::function<QDBusConnection()> bus_;
    std::unique_ptr<bluez_devices> devices_;
};
