// The real serial-port door: BlueZ over D-Bus. Nothing is asked of the system before somebody wants
// Bluetooth. Owned by main.
#pragma once

#include "bluez_connection.h"
#include "bluez_devices.h"
#include "run_loop.h"
#include "serial_port_profile.h"

#include <QDBusConnection>

#include <functional>
#include <memory>
#include <string>

class bluez_serial_port final : public serial_port_profile {
  public:
    // Lets the user choose, modally, and answers the connection to the chosen device, finished and
    // without a problem; null when the user did not want to.
    using device_chooser = std::function<std::unique_ptr<bluez_connection>(bluez_devices& devices)>;
    // Shows why a channel did not open; `device` is a name or an address.
    using problem_teller =
        std::function<void(bluetooth_problem problem, const std::string& device)>;

    bluez_serial_port(run_loop& loop, device_chooser choose, problem_teller tell,
                      std::function<QDBusConnection()> bus = QDBusConnection::systemBus);
    ~bluez_serial_port() override;

    std::unique_ptr<device_selector> deviceSelector() override;
    std::shared_ptr<bluetooth_device> device_with_address(std::string_view text) override;

    bluez_devices& devices();

  private:
    friend class bluez_device;
    friend class bluez_selector;

    run_loop& loop_;
    device_chooser choose_;
    problem_teller tell_;
    std::function<QDBusConnection()> bus_;
    std::unique_ptr<bluez_devices> devices_;
};
