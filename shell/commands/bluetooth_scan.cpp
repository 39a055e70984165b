#include "bluetooth_scan.h"

#include "bundle.h"
#include "progress_line.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>

#include <algorithm>
#include <iomanip>
#include <ostream>

namespace {

constexpr int PROGRESS_EVERY_MS = 250;

// A device may name itself anything: nothing of that drives the terminal, and a row stays a row.
std::string printable_name(const std::string& name) {
    QString text = QString::fromStdString(name);
    for (QChar& c : text)
        if (!c.isPrint() && !c.isSurrogate())
            c = u' ';
    return text.toStdString();
}

void print_json(const std::vector<bluetooth_entry>& devices, std::ostream& out) {
    QJsonArray list;
    for (const bluetooth_entry& device : devices) {
        const QJsonValue offer = device.serial_port == serial_port_offer::unknown
                                     ? QJsonValue()
                                     : QJsonValue(device.serial_port == serial_port_offer::yes);
        list.append(QJsonObject{{QStringLiteral("address"), QString::fromStdString(device.address)},
                                {QStringLiteral("name"), QString::fromStdString(device.name)},
                                {QStringLiteral("paired"), device.paired},
                                {QStringLiteral("signal_dbm"),
                                 device.signal ? QJsonValue(*device.signal) : QJsonValue()},
                                {QStringLiteral("serial_port"), offer}});
    }
    out << QJsonDocument(QJsonObject{{QStringLiteral("devices"), list}}).toJson().toStdString();
}

void print_text(const std::vector<bluetooth_entry>& devices, std::ostream& out) {
    constexpr const char* OFFERS[] = {"not known yet", "yes", "no"};
    out << "Address            Paired  Signal    Serial port    Name\n";
    for (const bluetooth_entry& device : devices) {
        const std::string signal =
            device.signal ? std::to_string(*device.signal) + " dBm" : std::string("-");
        out << device.address << "  " << std::left << std::setw(8) << (device.paired ? "yes" : "no")
            << std::setw(10) << signal << std::setw(15)
            << OFFERS[static_cast<int>(device.serial_port)] << printable_name(device.name) << '\n';
    }
    if (devices.empty())
        out << "none\n";
}

} // namespace

int run_bluetooth_scan(bluez_devices& devices, const bundle& texts, double seconds, bool json,
                       std::ostream& out, std::ostream& err) {
    QEventLoop waiting;
    // A queued look: what ends the wait may be true already.
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
    if (problem != bluetooth_problem::none) {
        err << "kestrom: " << problem_text(problem, texts) << '\n';
        return 1;
    }
    if (json)
        print_json(devices.devices(), out);
    else
        print_text(devices.devices(), out);
    return 0;
}
