#include "bluez_devices.h"

#include "bluez_call.h"
#include "system_log.h"

#include <QDBusArgument>
#include <QDBusError>

#include <algorithm>

namespace {

bool switched_on(const interface_properties& interfaces) {
    return interfaces.value(ADAPTER_INTERFACE).value(QStringLiteral("Powered")).toBool();
}

constexpr int NOT_MEASURED = 127; // by the controller
constexpr char NO_CLASSIC = 0x04; // in a Low Energy device's advertisement

// A classic device reports its class when it is found; a Low Energy one has a random address, a
// serial service, or flags in its advertisement, which not every BlueZ passes on.
void set_kind(bluetooth_entry& device, const QVariantMap& properties, bool serial_service) {
    const QByteArray flags = properties.value(QStringLiteral("AdvertisingFlags")).toByteArray();
    const bool random =
        properties.value(QStringLiteral("AddressType")).toString() == QLatin1String("random");
    device.low_energy = random || serial_service || !flags.isEmpty();
    device.classic = !random && (device.classic_port == serial_port_offer::yes ||
                                 properties.value(QStringLiteral("Class")).toUInt() != 0 ||
                                 (!flags.isEmpty() && !(flags.front() & NO_CLASSIC)));
}

bluetooth_entry entry(const QString& path, const QVariantMap& properties) {
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
    if (const QVariant signal = properties.value(QStringLiteral("RSSI"));
        signal.isValid() && signal.toInt() != NOT_MEASURED)
        found.signal = signal.toInt();
    found.paired = flag("Paired");
    found.connected = flag("Connected");
    found.resolved = flag("ServicesResolved");
    const QStringList services = properties.value(QStringLiteral("UUIDs")).toStringList();
    const bool all_known = found.resolved || (found.paired && !services.isEmpty());
    const bool serial_service = std::ranges::any_of(services, is_serial_service);
    if (services.contains(SERIAL_PORT_UUID_TEXT, Qt::CaseInsensitive))
        found.classic_port = serial_port_offer::yes;
    else if (all_known)
        found.classic_port = serial_port_offer::no;
    found.serial_port = serial_service ? serial_port_offer::yes : found.classic_port;
    set_kind(found, properties, serial_service);
    return found;
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
    // Not a pending-call watcher: if the answer is there already, it reports it after later
    // signals, and the list would lose what they added.
    bus_.callWithCallback(
        bluez_call(QStringLiteral("/"), OBJECT_MANAGER_INTERFACE, "GetManagedObjects"), this,
        SLOT(take(QDBusMessage)), SLOT(load_failed(QDBusError)));
}

void bluez_devices::load_now(int limit_ms) {
    if (!starting_)
        return;
    QDBusMessage request =
        bluez_call(QStringLiteral("/"), OBJECT_MANAGER_INTERFACE, "GetManagedObjects");
    request.setAutoStartService(false); // starting BlueZ takes longer than we may block
    const QDBusMessage reply = bus_.call(request, QDBus::Block, limit_ms);
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
    QDBusMessage filter = bluez_call(adapter_, ADAPTER_INTERFACE, "SetDiscoveryFilter");
    filter << QVariantMap{{QStringLiteral("Transport"), QStringLiteral("auto")}}; // both kinds
    bus_.asyncCall(filter);
    when_answered(this, bus_.asyncCall(bluez_call(adapter_, ADAPTER_INTERFACE, "StartDiscovery")),
                  [this](const QDBusMessage& reply) {
                      if (is_error(reply))
                          search_failed(reply);
                  });
}

void bluez_devices::search_failed(const QDBusMessage& reply) {
    if (reply.errorName().endsWith(QLatin1String("InProgress")))
        return; // already searching
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
    bus_.asyncCall(bluez_call(adapter_, ADAPTER_INTERFACE, "StopDiscovery"));
    Q_EMIT changed();
}

void bluez_devices::disconnect_device(const QString& path) {
    disconnecting_.insert(path);
    when_answered(this, bus_.asyncCall(bluez_call(path, DEVICE_INTERFACE, "Disconnect")),
                  [this, path](const QDBusMessage& reply) {
                      disconnecting_.remove(path);
                      const bool gone = !is_error(reply) ||
                                        reply.errorName().endsWith(QLatin1String("NotConnected"));
                      // The signal comes after the answer.
                      if (const auto object = objects_.find(path); gone && object != objects_.end())
                          for (const char* state : {"Connected", "ServicesResolved"})
                              object->interfaces[DEVICE_INTERFACE][QLatin1String(state)] = false;
                      Q_EMIT changed();
                  });
}

bool bluez_devices::is_device(const QString& path, const known_object& object) const {
    return object.interfaces.contains(DEVICE_INTERFACE) && path.startsWith(adapter_ + u'/');
}

std::vector<bluetooth_entry> bluez_devices::devices() const {
    std::vector<std::pair<quint64, bluetooth_entry>> found;
    for (auto object = objects_.begin(); object != objects_.end(); ++object) {
        if (!is_device(object.key(), *object))
            continue;
        bluetooth_entry device = entry(object.key(), object->interfaces.value(DEVICE_INTERFACE));
        if (device.classic || !device.low_energy || device.paired ||
            device.name != device.address || device.serial_port == serial_port_offer::yes)
            found.emplace_back(object->order, std::move(device));
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
    for (auto object = objects_.begin(); object != objects_.end(); ++object)
        if (is_device(object.key(), *object) &&
            object->interfaces.value(DEVICE_INTERFACE).value(QStringLiteral("Address")) ==
                QString::fromUtf8(address.data(), static_cast<qsizetype>(address.size())))
            return find_path(object.key());
    return std::nullopt;
}

std::optional<bluetooth_entry> bluez_devices::find_path(const QString& path) const {
    const auto object = objects_.find(path);
    if (object == objects_.end() || !is_device(path, *object))
        return std::nullopt;
    return entry(path, object->interfaces.value(DEVICE_INTERFACE));
}

std::vector<gatt_characteristic> bluez_devices::characteristics(const QString& device) const {
    std::vector<gatt_characteristic> found;
    for (auto object = objects_.begin(); object != objects_.end(); ++object) {
        const QVariantMap properties = object->interfaces.value(CHARACTERISTIC_INTERFACE);
        if (properties.isEmpty() || !object.key().startsWith(device + u'/'))
            continue;
        const QString service =
            qvariant_cast<QDBusObjectPath>(properties.value(QStringLiteral("Service"))).path();
        found.push_back({object.key(), properties.value(QStringLiteral("UUID")).toString(),
                         objects_.value(service)
                             .interfaces.value(SERVICE_INTERFACE)
                             .value(QStringLiteral("UUID"))
                             .toString(),
                         properties.value(QStringLiteral("Flags")).toStringList()});
    }
    return found;
}
