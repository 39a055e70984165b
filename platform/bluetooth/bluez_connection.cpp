#include "bluez_connection.h"

#include "bluez_call.h"
#include "low_energy_port.h"
#include "system_log.h"

#include <QDBusUnixFileDescriptor>
#include <QDBusVirtualObject>

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr int HAND_OVER_MS = 3'000; // between BlueZ's "connected" and its descriptor

QDBusMessage manager_call(const char* method, const QString& path) {
    QDBusMessage message = bluez_call(BLUEZ_ROOT, PROFILE_MANAGER_INTERFACE, method);
    message << QVariant::fromValue(QDBusObjectPath(path));
    return message;
}

QString next_profile_path() {
    static int number = 0;
    return QStringLiteral("/org/kestrom/serial_port_%1").arg(++number);
}

} // namespace

// Our end of org.bluez.Profile1, which BlueZ calls.
class profile_object final : public QDBusVirtualObject {
  public:
    explicit profile_object(bluez_connection& owner) : owner_(owner) {
        QDBusConnection bus = owner_.devices_.bus();
        bus.registerVirtualObject(path_, this);
    }
    ~profile_object() override {
        QDBusConnection bus = owner_.devices_.bus();
        bus.asyncCall(manager_call("UnregisterProfile", path_));
        bus.unregisterObject(path_);
    }

    const QString& path() const { return path_; }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        if (message.interface() != PROFILE_INTERFACE)
            return false;
        if (message.member() == QLatin1String("NewConnection") && message.arguments().size() >= 2) {
            const auto handed = qdbus_cast<QDBusUnixFileDescriptor>(message.arguments().at(1));
            owner_.new_connection(
                handed.isValid() ? ::fcntl(handed.fileDescriptor(), F_DUPFD_CLOEXEC, 0) : -1);
        }
        // Release and RequestDisconnection: the socket reports the end.
        bus.send(message.createReply());
        return true;
    }

  private:
    bluez_connection& owner_;
    const QString path_ = next_profile_path();
};

bluez_connection::bluez_connection(bluez_devices& devices, std::string address)
    : devices_(devices), address_(std::move(address)) {
    for (QTimer* limit : {&reach_limit_, &total_limit_}) {
        limit->setSingleShot(true);
        connect(limit, &QTimer::timeout, this, [this] { finish(bluetooth_problem::out_of_reach); });
    }
    total_limit_.start(TOTAL_MS);
    connect(&devices_, &bluez_devices::changed, this, &bluez_connection::follow_devices,
            Qt::QueuedConnection);
    QMetaObject::invokeMethod(this, &bluez_connection::follow_devices, Qt::QueuedConnection);
}

bluez_connection::~bluez_connection() {
    if (!finished_)
        undo();
    if (descriptor_ != -1) {
        ::shutdown(descriptor_, SHUT_RDWR);
        ::close(descriptor_);
    }
}

void bluez_connection::follow_devices() {
    if (finished_ || devices_.starting())
        return;
    if (const bluetooth_problem problem = devices_.problem(); problem != bluetooth_problem::none) {
        finish(problem);
        return;
    }
    const auto device = devices_.find(address_);
    if (!device_path_.isEmpty()) {
        if (!device)
            finish(bluetooth_problem::out_of_reach); // BlueZ has dropped the device
        else if (low_energy_ ? low_energy_->has_port() : device->connected)
            reach_limit_.stop();
        return;
    }
    if (device && devices_.disconnecting(device->path))
        return; // a pending disconnection, which would end the new connection too
    if (device) {
        connect_device(*device);
    } else if (!searched_) {
        searched_ = true;
        devices_.search();
    } else if (!devices_.searching()) {
        finish(bluetooth_problem::out_of_reach);
    }
}

void bluez_connection::connect_device(const bluetooth_entry& device) {
    device_path_ = device.path;
    connected_before_ = device.connected;
    devices_.stop_search(); // a search slows down connecting
    also_low_energy_ = device.low_energy;
    over_classic_ = fallen_back_
                        ? !over_classic_
                        : device.classic &&
                              (device.classic_port != serial_port_offer::no || !device.low_energy);
    if (!device.connected || !over_classic_)
        reach_limit_.start(REACH_MS);
    if (over_classic_)
        register_profile();
    else
        open_low_energy();
}

void bluez_connection::register_profile() {
    profile_ = std::make_unique<profile_object>(*this);
    QDBusMessage message = manager_call("RegisterProfile", profile_->path());
    message << SERIAL_PORT_UUID_TEXT
            << QVariantMap{{QStringLiteral("Role"), QStringLiteral("client")},
                           {QStringLiteral("Name"), QStringLiteral("Kestrom")}};
    when_answered(profile_.get(), devices_.bus().asyncCall(message),
                  [this](const QDBusMessage& reply) {
                      if (finished_)
                          return;
                      if (is_error(reply))
                          call_failed(reply);
                      else
                          connect_profile();
                  });
}

void bluez_connection::connect_profile() {
    connecting_ = true;
    QDBusMessage message = bluez_call(device_path_, DEVICE_INTERFACE, "ConnectProfile");
    message << SERIAL_PORT_UUID_TEXT;
    when_answered(profile_.get(), devices_.bus().asyncCall(message, 2 * TOTAL_MS),
                  [this](const QDBusMessage& reply) {
                      if (finished_)
                          return;
                      if (is_error(reply))
                          call_failed(reply);
                      else // no descriptor: already connected, for another program
                          QTimer::singleShot(HAND_OVER_MS, this,
                                             [this] { finish(bluetooth_problem::in_use); });
                  });
}

// A dual adapter may have its serial port on the other side only; for a device of unknown kind
// BlueZ decides.
bool bluez_connection::falls_back(bluetooth_problem problem) const {
    if (fallen_back_ || device_path_.isEmpty())
        return false;
    const auto device = devices_.find(address_);
    const bool other_kind =
        over_classic_ ? also_low_energy_ : device && device->classic_port == serial_port_offer::yes;
    return other_kind &&
           (problem == bluetooth_problem::no_serial_port || problem == bluetooth_problem::refused ||
            problem == bluetooth_problem::out_of_reach);
}

// Starts over: BlueZ may have dropped a device that it could not reach.
void bluez_connection::fall_back(bluetooth_problem problem) {
    fallen_back_ = true;
    first_problem_ = problem;
    if (made_link())
        devices_.disconnect_device(device_path_); // or BlueZ would reuse the link
    device_path_.clear();
    searched_ = false;
    if (profile_) // not now: one of its calls may be on the stack
        profile_.release()->deleteLater();
    if (low_energy_)
        low_energy_.release()->deleteLater();
    total_limit_.start(TOTAL_MS);
    QMetaObject::invokeMethod(this, &bluez_connection::follow_devices, Qt::QueuedConnection);
}

void bluez_connection::open_low_energy() {
    connecting_ = true;
    low_energy_ = std::make_unique<low_energy_port>(devices_, device_path_);
    connect(low_energy_.get(), &low_energy_port::opened, this,
            [this] { new_connection(low_energy_->take_descriptor()); });
    connect(low_energy_.get(), &low_energy_port::failed, this, [this](const QDBusMessage& reply) {
        if (!finished_)
            call_failed(reply);
    });
}

void bluez_connection::call_failed(const QDBusMessage& reply) {
    const auto device = devices_.find(address_);
    qCInfo(log_platform, "Bluetooth connection to %s: %s: %s", address_.c_str(),
           qUtf8Printable(reply.errorName()), qUtf8Printable(reply.errorMessage()));
    finish(problem_of_error(reply.errorName().toStdString(), reply.errorMessage().toStdString(),
                            device && device->paired));
}

void bluez_connection::new_connection(int descriptor) {
    if (finished_ || descriptor == -1) {
        if (descriptor != -1)
            ::close(descriptor);
        return;
    }
    descriptor_ = descriptor;
    finish(bluetooth_problem::none);
}

int bluez_connection::take_descriptor() {
    return std::exchange(descriptor_, -1);
}

// Undoes what this attempt began; this also ends a pending call.
void bluez_connection::undo() {
    if (connecting_ && made_link())
        devices_.disconnect_device(device_path_);
}

void bluez_connection::finish(bluetooth_problem problem) {
    if (finished_)
        return;
    if (falls_back(problem)) {
        fall_back(problem);
        return;
    }
    finished_ = true;
    problem_ =
        fallen_back_ && problem == bluetooth_problem::no_serial_port ? first_problem_ : problem;
    reach_limit_.stop();
    total_limit_.stop();
    if (problem != bluetooth_problem::none)
        undo();
    QMetaObject::invokeMethod(this, &bluez_connection::done, Qt::QueuedConnection);
}
