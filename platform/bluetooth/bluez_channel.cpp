#include "bluez_channel.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr std::size_t READ_SIZE = 1024;

// Waits for room to write until `deadline`; false when it has passed.
bool wait_for_room(int descriptor, std::chrono::steady_clock::time_point deadline) {
    using namespace std::chrono;
    const auto left = ceil<milliseconds>(deadline - steady_clock::now()).count();
    if (left <= 0)
        return false;
    pollfd room{descriptor, POLLOUT, 0};
    const int ready = ::poll(&room, 1, static_cast<int>(left));
    return ready > 0 || (ready < 0 && errno == EINTR);
}

} // namespace

bluez_channel::bluez_channel(run_loop& loop, std::unique_ptr<bluez_connection> connection,
                             rfcomm_channel_delegate delegate)
    : loop_(loop), connection_(std::move(connection)), delegate_(std::move(delegate)) {
    post([this] { opened(); });
}

bluez_channel::~bluez_channel() {
    closeChannel();
}

void bluez_channel::post(std::function<void()> call) {
    loop_.after(run_loop::milliseconds(0),
                [alive = std::weak_ptr<bool>(alive_), call = std::move(call)] {
                    if (!alive.expired())
                        call();
                });
}

void bluez_channel::opened() {
    descriptor_ = connection_->take_descriptor();
    ::fcntl(descriptor_, F_SETFL, ::fcntl(descriptor_, F_GETFL) | O_NONBLOCK);
    readable_ = std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Read);
    // The notifier only wakes the run loop, and stays off until that call has been delivered.
    connect(readable_.get(), &QSocketNotifier::activated, this, [this] {
        readable_->setEnabled(false);
        post([this] { received(); });
    });
    state_ = state::open;
    delegate_.open_complete(0);
}

void bluez_channel::received() {
    if (state_ != state::open)
        return;
    std::array<char, READ_SIZE> bytes;
    const ssize_t count = ::recv(descriptor_, bytes.data(), bytes.size(), MSG_DONTWAIT);
    if (count > 0) {
        readable_->setEnabled(true);
        delegate_.data(std::string_view(bytes.data(), static_cast<std::size_t>(count)));
    } else if (count < 0 && (errno == EAGAIN || errno == EINTR)) {
        readable_->setEnabled(true);
    } else {
        close_socket();
        delegate_.closed();
    }
}

int bluez_channel::writeSync(std::string_view bytes) {
    if (state_ != state::open)
        return ENOTCONN;
    const auto deadline = std::chrono::steady_clock::now() + WRITE_LIMIT;
    while (!bytes.empty()) {
        const ssize_t count =
            ::send(descriptor_, bytes.data(), bytes.size(), MSG_DONTWAIT | MSG_NOSIGNAL);
        if (count >= 0)
            bytes.remove_prefix(static_cast<std::size_t>(count));
        else if (errno != EAGAIN && errno != EINTR)
            return errno;
        else if (!wait_for_room(descriptor_, deadline))
            return ETIMEDOUT;
    }
    return 0;
}

void bluez_channel::close_socket() {
    state_ = state::closed;
    readable_.reset();
    connection_.reset(); // another program may register for the serial port now
    if (descriptor_ == -1)
        return;
    ::shutdown(descriptor_, SHUT_RDWR); // BlueZ keeps a copy of the descriptor
    ::close(descriptor_);
    descriptor_ = -1;
}

int bluez_channel::closeChannel() {
    alive_.reset();
    close_socket();
    return 0;
}
