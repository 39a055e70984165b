#include "bluez_devices.h"
#include "command_functions.h"
#include "commands.h"
#include "display_text.h"
#include "progress_line.h"
#include "report_printer.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>
#include <iomanip>
#include <nlohmann/json.hpp>
#include <ostream>

namespace {

constexpr int PROGRESS_EVERY_MS = 250;

// Empty: not known yet.
std::string kind(const bluetooth_entry& device) {
    return !device.low_energy ? device.classic ? "classic" : ""
           : device.classic   ? "both"
                              : "low_energy";
}

ordered_json as_json(const bluetooth_entry& device) {
    return {{"address", device.address},
            {"name", device.name},
            {"paired", device.paired},
            {"signal_dbm", device.signal ? ordered_json(*device.signal) : ordered_json()},
            {"kind", kind(device).empty() ? ordered_json() : ordered_json(kind(device))},
            {"serial_port", device.serial_port == serial_port_offer::unknown
                                ? ordered_json()
                                : ordered_json(device.serial_port == serial_port_offer::yes)}};
}

std::string as_json(const std::vector<bluetooth_entry>& devices, const std::string& error) {
    ordered_json list = ordered_json::array();
    for (const bluetooth_entry& device : devices)
        list.push_back(as_json(device));
    return json_lines(
        {{"devices", list}, {"error", error.empty() ? ordered_json() : ordered_json(error)}});
}

void print_text(const std::vector<bluetooth_entry>& devices, std::ostream& out) {
    constexpr const char* OFFERS[] = {"not known yet", "yes", "no"};
    out << "Address            Paired  Signal    Kind        Serial port    Name\n";
    for (const bluetooth_entry& device : devices) {
        const std::string signal =
            device.signal ? std::to_string(*device.signal) + " dBm" : std::string("-");
        out << device.address << "  " << std::left << std::setw(8) << (device.paired ? "yes" : "no")
            << std::setw(10) << signal << std::setw(12)
            << (kind(device).empty() ? "-" : kind(device)) << std::setw(15)
            << OFFERS[static_cast<int>(device.serial_port)] << printable_line(device.name) << '\n';
    }
    if (devices.empty())
        out << "none\n";
}

} // namespace

int run_bluetooth_scan(const desk& work) {
    bluez_devices devices(QDBusConnection::systemBus());
    constexpr double LONGEST = bluez_devices::SEARCH_MS / 1000.0 + 10; // BlueZ may start
    return scan_devices(work, devices, std::min(work.asked.timeout_seconds.value_or(60), LONGEST));
}

int scan_devices(const desk& work, bluez_devices& devices, double seconds) {
    QEventLoop waiting;
    // A queued check: the condition that ends the wait may already be true.
    const auto look = [&] {
        if (!devices.starting() &&
            (!devices.searching() || devices.problem() != bluetooth_problem::none))
            waiting.quit();
    };
    QObject::connect(&devices, &bluez_devices::changed, &waiting, look, Qt::QueuedConnection);
    QTimer::singleShot(static_cast<int>(std::min(seconds * 1000, 2e9)), &waiting,
                       &QEventLoop::quit);
    QElapsedTimer searching;
    searching.start();
    QTimer ticking;
    QObject::connect(&ticking, &QTimer::timeout, &waiting, [&] {
        show_progress("Searching: " + std::to_string(devices.devices().size()) + " devices, " +
                      std::to_string(searching.elapsed() / 1000) + " s");
    });
    ticking.start(PROGRESS_EVERY_MS);
    devices.search();
    waiting.exec();
    ticking.stop();
    clear_progress();
    const bluetooth_problem problem =
        devices.starting() ? bluetooth_problem::service_missing : devices.problem();
    devices.stop_search();
    const bool failed = problem != bluetooth_problem::none;
    const std::string error = failed ? problem_text(problem, work.resources) : std::string();
    if (work.asked.json)
        work.out << as_json(devices.devices(), error);
    else if (!failed)
        print_text(devices.devices(), work.out);
    if (failed)
        work.err << "kestrom: " << error << '\n';
    return failed ? 1 : 0;
}
