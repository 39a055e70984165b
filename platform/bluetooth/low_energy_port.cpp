#include "low_energy_port.h"

#include "bluez_call.h"
#include "system_log.h"

#include <QDBusUnixFileDescriptor>

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr int CALL_MS = 120'000; // callers have their own limits; pairing may ask the user
constexpr int WRITE_HEADER = 3;  // of the attribute protocol, in each message
constexpr int SMALLEST_MTU = 23;
constexpr int LARGEST_MTU = 517;

// Distinguishes a closed connection from an empty message.
bool hung_up(int descriptor) {
    pollfd end{descriptor, 0, 0};
    return ::poll(&end, 1, 0) != 0;
}

} // namespace

low_energy_port::low_energy_port(bluez_devices& devices, QString device, int write_ms)
    : devices_(devices), device_(std::move(device)), write_ms_(write_ms) {
    settle_.setSingleShot(true);
    settle_.setInterval(SETTLE_MS);
    connect(&settle_, &QTimer::timeout, this, [this] {
        Q_EMIT failed(QDBusMessage::createError(QStringLiteral("org.bluez.Error.NotAvailable"),
                                                QStringLiteral("no serial service")));
    });
    connect(&devices_, &bluez_devices::changed, this, &low_energy_port::follow_devices,
            Qt::QueuedConnection);
    when_answered(
        this, devices_.bus().asyncCall(bluez_call(device_, DEVICE_INTERFACE, "Connect"), CALL_MS),
        [this](const QDBusMessage& reply) {
            if (is_error(reply)) {
                Q_EMIT failed(reply);
                return;
            }
            connected_ = true;
            follow_devices();
        });
}

low_energy_port::~low_energy_port() {
    for (const int descriptor : {notifications_, ours_, theirs_})
        if (descriptor != -1)
            ::close(descriptor);
}

int low_energy_port::take_descriptor() {
    return std::exchange(theirs_, -1);
}

void low_energy_port::follow_devices() {
    const auto device = devices_.find_path(device_);
    if (notifications_ != -1 && !(device && device->connected))
        link_lost();
    else if (connected_ && !port_ && device && device->resolved)
        find_characteristics();
}

// BlueZ may keep a known device's socket open.
void low_energy_port::link_lost() {
    notified();
    end();
}

void low_energy_port::find_characteristics() {
    port_ = find_serial_port(devices_.characteristics(device_));
    if (!port_) {
        if (!settle_.isActive())
            settle_.start();
        return;
    }
    settle_.stop();
    subscribe();
}

// AcquireNotify rather than StartNotify: no other program can subscribe and receive some of the
// replies, and the subscription ends with the connection.
void low_energy_port::subscribe() {
    QDBusMessage message = bluez_call(port_->notifies, CHARACTERISTIC_INTERFACE, "AcquireNotify");
    message << QVariantMap();
    when_answered(
        this, devices_.bus().asyncCall(message, CALL_MS), [this](const QDBusMessage& reply) {
            const auto socket = qdbus_cast<QDBusUnixFileDescriptor>(reply.arguments().value(0));
            if (is_error(reply) || !socket.isValid())
                Q_EMIT failed(reply);
            else
                carry(::fcntl(socket.fileDescriptor(), F_DUPFD_CLOEXEC, 0),
                      reply.arguments().value(1).toInt());
        });
}

void low_energy_port::carry(int notifications, int mtu) {
    notifications_ = notifications;
    piece_ = static_cast<std::size_t>(std::clamp(mtu, SMALLEST_MTU, LARGEST_MTU) - WRITE_HEADER);
    int ends[2] = {-1, -1};
    ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, ends);
    ours_ = ends[0];
    theirs_ = ends[1];
    const auto notifier = [this](int descriptor, QSocketNotifier::Type type, auto handle) {
        auto made = std::make_unique<QSocketNotifier>(descriptor, type);
        connect(made.get(), &QSocketNotifier::activated, this, handle);
        return made;
    };
    received_ = notifier(notifications_, QSocketNotifier::Read, &low_energy_port::notified);
    written_ = notifier(ours_, QSocketNotifier::Read, &low_energy_port::program_wrote);
    room_ = notifier(ours_, QSocketNotifier::Write, &low_energy_port::hand_over);
    Q_EMIT opened();
}

void low_energy_port::notified() {
    std::array<char, LARGEST_MTU> bytes;
    ssize_t count = 0;
    do {
        count = ::recv(notifications_, bytes.data(), bytes.size(), MSG_DONTWAIT);
        unread_.append(bytes.data(), std::max<ssize_t>(count, 0));
    } while (count > 0 || (count == 0 && !hung_up(notifications_)));
    hand_over();
    if (count == 0 || (errno != EAGAIN && errno != EINTR) || unread_.size() > MOST_UNREAD)
        end();
}

void low_energy_port::hand_over() {
    const ssize_t count =
        ::send(ours_, unread_.constData(), static_cast<std::size_t>(unread_.size()),
               MSG_DONTWAIT | MSG_NOSIGNAL);
    unread_.remove(0, std::max<ssize_t>(count, 0));
    room_->setEnabled(!unread_.isEmpty());
    if (ended_ && unread_.isEmpty())
        ::shutdown(ours_, SHUT_RDWR);
}

// One piece at a time; the rest waits in the socket until this one has been accepted.
void low_energy_port::program_wrote() {
    written_->setEnabled(false);
    std::array<char, LARGEST_MTU> bytes;
    const ssize_t count = ::recv(ours_, bytes.data(), piece_, MSG_DONTWAIT);
    if (count <= 0)
        return;
    QDBusMessage message = bluez_call(port_->written, CHARACTERISTIC_INTERFACE, "WriteValue");
    message << QByteArray(bytes.data(), count)
            << QVariantMap{{QStringLiteral("type"), port_->with_response
                                                        ? QStringLiteral("request")
                                                        : QStringLiteral("command")}};
    when_answered(
        this, devices_.bus().asyncCall(message, write_ms_), [this](const QDBusMessage& reply) {
            if (is_error(reply)) { // half a command is worse than none
                qCInfo(log_platform, "Low Energy write: %s: %s", qUtf8Printable(reply.errorName()),
                       qUtf8Printable(reply.errorMessage()));
                end();
            } else {
                written_->setEnabled(!ended_);
            }
        });
}

void low_energy_port::end() {
    if (std::exchange(ended_, true))
        return;
    received_->setEnabled(false);
    written_->setEnabled(false);
    hand_over();
}
