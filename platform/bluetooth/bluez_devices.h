// The Bluetooth devices that BlueZ knows, paired or found by a search, kept up to date, and whether
// Bluetooth can be used at all. Only load_now() blocks, for a limited time. Owned by the
// serial-port door.
#pragma once

#include "bluetooth_problem.h"
#include "bluez_names.h"
#include "gatt_serial.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QSet>
#include <QTimer>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

class QDBusError;
class QDBusMessage;

enum class serial_port_offer { unknown, yes, no }; // unknown: the device was never asked

struct bluetooth_entry {
    QString path;              // BlueZ's object
    std::string address;       // "00:1A:7D:DA:71:13"
    std::string name;          // arbitrary UTF-8; the address if the device reports no name
    std::optional<int> signal; // dBm, of the running or last search
    bool paired = false;
    bool connected = false;
    bool resolved = false; // connected, and its services are known
    // A dual device is both; a device of unknown kind neither.
    bool classic = false;
    bool low_energy = false;
    serial_port_offer classic_port = serial_port_offer::unknown;
    serial_port_offer serial_port = serial_port_offer::unknown; // of either kind
};

// "00:1A:7D:DA:71:13" from either case, with colons or dashes; nothing if it is not an address.
std::optional<std::string> bluetooth_address(std::string_view text);

class bluez_devices final : public QObject {
    Q_OBJECT
  public:
    explicit bluez_devices(QDBusConnection bus);
    ~bluez_devices() override;

    static constexpr int SEARCH_MS = 12'000; // an inquiry takes 10.24 s

    const QDBusConnection& bus() const { return bus_; }
    // BlueZ has not answered yet.
    bool starting() const { return starting_; }
    // What prevents any search or connection.
    bluetooth_problem problem() const;
    bool searching() const { return searching_; }
    // Of the adapter in use: paired ones by name, then the others in the order found. Omits beacons
    // and the like, which advertise neither a name nor a serial port.
    std::vector<bluetooth_entry> devices() const;
    std::optional<bluetooth_entry> find(std::string_view address) const; // beacons too
    std::optional<bluetooth_entry> find_path(const QString& path) const;
    // Of a Low Energy device whose services are known.
    std::vector<gatt_characteristic> characteristics(const QString& device) const;

    // Searches for SEARCH_MS once BlueZ is ready; restarts a running search.
    void search();
    void stop_search();
    // Ends the device's baseband connection.
    void disconnect_device(const QString& path);
    bool disconnecting(const QString& path) const { return disconnecting_.contains(path); }
    // Blocks until BlueZ answers, for `limit_ms` at most.
    void load_now(int limit_ms);

  Q_SIGNALS:
    void changed();

  private Q_SLOTS:
    void take(const QDBusMessage& reply);
    void load_failed(const QDBusError& error);
    void interfaces_added(const QDBusMessage& message);
    void interfaces_removed(const QDBusMessage& message);
    void properties_changed(const QDBusMessage& message);

  private:
    struct known_object {
        interface_properties interfaces;
        quint64 order = 0; // of appearance
    };

    void load();
    void add(const QString& path, const interface_properties& interfaces);
    void start_search();
    void search_failed(const QDBusMessage& reply);
    void choose_adapter();
    void service_went();
    bool is_device(const QString& path, const known_object& object) const;

    QDBusConnection bus_;
    QDBusServiceWatcher watcher_;
    QTimer search_limit_;
    QMap<QString, known_object> objects_;
    quint64 appeared_ = 0;
    QSet<QString> disconnecting_;
    QString adapter_; // the first that is switched on, else the first; empty: none
    bluetooth_problem load_problem_ = bluetooth_problem::none;
    bool starting_ = true;
    bool search_wanted_ = false;
    bool searching_ = false;
};
