#include "bluez_devices.h"

#include "system_log.h"

#include <QDBusArgument>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <algorithm>

namespace {

QDBusMessage call(const QString& path, const QString& interface, const char* method) {
    return QDBusMessage::createMethodCall(BLUEZ, path, interface, QLatin1String(method));
}

bool switched_on(const interface_properties& interfaces) {
    return interfaces.value(ADAPTER_INTERFACE).value(QStringLiteral("Powered")).toBool();
}

bool is_hex(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
}

} // namespace

std::optional<std::string> bluetooth_address(std::string_view text) {
    constexpr std::size_t LENGTH = 17;
    if (text.size() != LENGTH)
        return std::nullopt;
    std::string address(text);
    for (std::size_t i = 0; i < LENGTH; ++i) {
        if (i % 3 == 2 ? text[i] != ':' && text[i] != '-' : !is_hex(text[i]))
            return std::nullopt;
        address[i] = i % 3 == 2 ? ':' : static_cast<char>(text[i] >= 'a' ? text[i] - 32 : text[i]);
    }
    return address;
}

bluez_devices::bluez_devices(QDBusConnection bus)
    : bus_(std::move(bus)), watcher_(BLUEZ, bus_,
                                     QDBusServiceWatcher::WatchForRegistration |
                                         QDBusServiceWatcher::WatchForUnregistration) {
    search_limit_.setSingleShot(true);
    connect(&search_limit_, &QTimer::timeout, this, &bluez_devices::stop_search);
    if (!bus_.isConnected()) {
        starting_ = false;
        load_problem_ = bluetooth_problem::service_missing;
        return;
    }
    connect(&watcher_, &QDBusServiceWatcher::serviceRegistered, this, &bluez_devices::load);
    connect(&watcher_, &QDBusServiceWatcher::serviceUnregistered, this,
            &bluez_devices::service_went);
    bus_.connect(BLUEZ, QString(), OBJECT_MANAGER_INTERFACE, QStringLiteral("InterfacesAdded"),
                 this, SLOT(interfaces_added(QDBusMessage)));
    bus_.connect(BLUEZ, QString(), OBJECT_MANAGER_INTERFACE, QStringLiteral("InterfacesRemoved"),
                 this, SLOT(interfaces_removed(QDBusMessage)));
    bus_.connect(BLUEZ, QString(), PROPERTIES_INTERFACE, QStringLiteral("PropertiesChanged"), this,
                 SLOT(properties_changed(QDBusMessage)));
    load();
}

bluez_devices::~bluez_devices() {
    stop_search();
}

void bluez_devices::load() {
    // Not by a pending-call watcher: one that finds its answer there already reports it behind
    // signals that came later, and the list would lose what they brought.
    bus_.callWithCallback(call(QStringLiteral("/"), OBJECT_MANAGER_INTERFACE, "GetManagedObjects"),
                          this, SLOT(take(QDBusMessage)), SLOT(load_failed(QDBusError)));
}

void bluez_devices::load_now(int limit_ms) {
    if (!starting_)
        return;
    QDBusMessage question =
        call(QStringLiteral("/"), OBJECT_MANAGER_INTERFACE, "GetManagedObjects");
    question.setAutoStartService(false); // starting it takes longer than anybody may block
    const QDBusMessage reply = bus_.call(question, QDBus::Block, limit_ms);
    if (reply.type() == QDBusMessage::ReplyMessage) // else load()'s answer is still to come
        take(reply);
}

void bluez_devices::take(const QDBusMessage& reply) {
    starting_ = false;
    load_problem_ = bluetooth_problem::none;
    objects_.clear();
    const auto found = qdbus_cast<managed_objects>(reply.arguments().value(0));
    for (auto object = found.begin(); object != found.end(); ++object)
        add(object.key().path(), object.value());
    choose_adapter();
    Q_EMIT changed();
}

void bluez_devices::load_failed(const QDBusError& error) {
    starting_ = false;
    qCInfo(log_platform, "no Bluetooth service: %s", qUtf8Printable(error.message()));
    load_problem_ =
        problem_of_error(error.name().toStdString(), error.message().toStdString(), false);
    if (load_problem_ != bluetooth_problem::not_permitted)
        load_problem_ = bluetooth_problem::service_missing;
    objects_.clear();
    choose_adapter();
    Q_EMIT changed();
}

void bluez_devices::add(const QString& path, const interface_properties& interfaces) {
    known_object& object = objects_[path];
    if (object.order == 0)
        object.order = ++appeared_;
    for (auto part = interfaces.begin(); part != interfaces.end(); ++part)
        object.interfaces.insert(part.key(), part.value());
}

void bluez_devices::interfaces_added(const QDBusMessage& message) {
    if (message.arguments().size() < 2)
        return;
    add(qdbus_cast<QDBusObjectPath>(message.arguments().at(0)).path(),
        qdbus_cast<interface_properties>(message.arguments().at(1)));
    choose_adapter();
    Q_EMIT changed();
}

void bluez_devices::interfaces_removed(const QDBusMessage& message) {
    if (message.arguments().size() < 2)
        return;
    const QString path = qdbus_cast<QDBusObjectPath>(message.arguments().at(0)).path();
    const auto object = objects_.find(path);
    if (object == objects_.end())
        return;
    for (const QString& name : qdbus_cast<QStringList>(message.arguments().at(1)))
        object->interfaces.remove(name);
    if (object->interfaces.isEmpty())
        objects_.erase(object);
    choose_adapter();
    Q_EMIT changed();
}

void bluez_devices::properties_changed(const QDBusMessage& message) {
    const auto object = objects_.find(message.path());
    if (object == objects_.end() || message.arguments().size() < 3)
        return;
    const auto part = object->interfaces.find(message.arguments().at(0).toString());
    if (part == object->interfaces.end())
        return;
    QVariantMap& properties = *part;
    properties.insert(qdbus_cast<QVariantMap>(message.arguments().at(1)));
    for (const QString& name : qdbus_cast<QStringList>(message.arguments().at(2)))
        properties.remove(name);
    choose_adapter();
    Q_EMIT changed();
}

void bluez_devices::choose_adapter() {
    QString first, first_on;
    for (auto object = objects_.begin(); object != objects_.end(); ++object) {
        if (!object->interfaces.contains(ADAPTER_INTERFACE))
            continue;
        if (first.isEmpty())
            first = object.key();
        if (first_on.isEmpty() && switched_on(object->interfaces))
            first_on = object.key();
    }
    const QString chosen = first_on.isEmpty() ? first : first_on;
    if (chosen != adapter_ || first_on.isEmpty()) {
        searching_ = false;
        search_limit_.stop();
    }
    adapter_ = chosen;
    if (search_wanted_ && !searching_ && problem() == bluetooth_problem::none)
        start_search();
}

void bluez_devices::service_went() {
    objects_.clear();
    load_problem_ = bluetooth_problem::service_missing;
    choose_adapter();
    Q_EMIT changed();
}

bluetooth_problem bluez_devices::problem() const {
    if (load_problem_ != bluetooth_problem::none || starting_)
        return load_problem_;
    if (adapter_.isEmpty())
        return bluetooth_problem::no_adapter;
    return switched_on(objects_.value(adapter_).interfaces) ? bluetooth_problem::none
                                                            : bluetooth_problem::switched_off;
}

void bluez_devices::search() {
    stop_search();
    search_wanted_ = true;
    if (!starting_ && problem() == bluetooth_problem::none)
        start_search();
    Q_EMIT changed();
}

void bluez_devices::start_search() {
    searching_ = true;
    search_limit_.start(SEARCH_MS);
    // Adapters with a serial port are classic Bluetooth. Without the filter it is found as well.
    QDBusMessage filter = call(adapter_, ADAPTER_INTERFACE, "SetDiscoveryFilter");
    filter << QVariantMap{{QStringLiteral("Transport"), QStringLiteral("bredr")}};
    bus_.asyncCall(filter);
    auto* answer = new QDBusPendingCallWatcher(
        bus_.asyncCall(call(adapter_, ADAPTER_INTERFACE, "StartDiscovery")), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this,
            [this](QDBusPendingCallWatcher* done) {
                done->deleteLater();
                if (done->isError())
                    search_failed(done->reply());
            });
}

void bluez_devices::search_failed(const QDBusMessage& reply) {
    if (reply.errorName().endsWith(QLatin1String("InProgress")))
        return; // a search is a search
    qCInfo(log_platform, "Bluetooth search: %s", qUtf8Printable(reply.errorMessage()));
    search_wanted_ = false;
    searching_ = false;
    search_limit_.stop();
    Q_EMIT changed();
}

void bluez_devices::stop_search() {
    search_wanted_ = false;
    search_limit_.stop();
    if (!searching_)
        return;
    searching_ = false;
    bus_.asyncCall(call(adapter_, ADAPTER_INTERFACE, "StopDiscovery"));
    Q_EMIT changed();
}

void bluez_devices::disconnect_device(const QString& path) {
    disconnecting_.insert(path);
    auto* answer = new QDBusPendingCallWatcher(
        bus_.asyncCall(call(path, DEVICE_INTERFACE, "Disconnect")), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this,
            [this, path](QDBusPendingCallWatcher* done) {
                done->deleteLater();
                disconnecting_.remove(path);
                const bool gone = !done->isError() ||
                                  done->reply().errorName().endsWith(QLatin1String("NotConnected"));
                // The signal comes after the answer.
                if (const auto object = objects_.find(path); gone && object != objects_.end())
                    object->interfaces[DEVICE_INTERFACE][QStringLiteral("Connected")] = false;
                Q_EMIT changed();
            });
}

bluetooth_entry bluez_devices::entry(const QString& path, const QVariantMap& properties) const {
    const auto text = [&](const char* key) {
        return properties.value(QLatin1String(key)).toString();
    };
    const auto flag = [&](const char* key) {
        return properties.value(QLatin1String(key)).toBool();
    };
    bluetooth_entry found;
    found.path = path;
    found.address = text("Address").toStdString();
    found.name = text("Name").toStdString();
    if (found.name.empty())
        found.name = found.address;
    if (const QVariant signal = properties.value(QStringLiteral("RSSI")); signal.isValid())
        found.signal = signal.toInt();
    found.paired = flag("Paired");
    found.connected = flag("Connected");
    const QStringList services = properties.value(QStringLiteral("UUIDs")).toStringList();
    if (services.contains(SERIAL_PORT_UUID_TEXT, Qt::CaseInsensitive))
        found.serial_port = serial_port_offer::yes;
    else if (flag("ServicesResolved") || (found.paired && !services.isEmpty()))
        found.serial_port = serial_port_offer::no;
    return found;
}

std::vector<bluetooth_entry> bluez_devices::devices() const {
    std::vector<std::pair<quint64, bluetooth_entry>> found;
    for (auto object = objects_.begin(); object != objects_.end(); ++object) {
        const QVariantMap properties = object->interfaces.value(DEVICE_INTERFACE);
        if (properties.isEmpty() || !object.key().startsWith(adapter_ + u'/'))
            continue;
        // A random address belongs to a Low Energy device, which has no serial port.
        if (properties.value(QStringLiteral("AddressType")).toString() == QLatin1String("random"))
            continue;
        found.emplace_back(object->order, entry(object.key(), properties));
    }
    std::ranges::sort(found, [](const auto& a, const auto& b) {
        if (a.second.paired != b.second.paired)
            return a.second.paired;
        if (a.second.paired && a.second.name != b.second.name)
            return a.second.name < b.second.name;
        return a.first < b.first;
    });
    std::vector<bluetooth_entry> entries;
    for (auto& [order, device] : found)
        entries.push_back(std::move(device));
    return entries;
}

std::optional<bluetooth_entry> bluez_devices::find(std::string_view address) const {
    for (bluetooth_entry& device : devices())
        if (device.address == address)
            return std::move(device);
    return std::nullopt;
}
