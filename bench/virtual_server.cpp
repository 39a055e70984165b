#include "virtual_server.h"

#include <algorithm>
#include <arpa/inet.h>
#include <array>
#include <ctime>
#include <netinet/tcp.h>
#include <poll.h>
#include <pthread.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

using clock_type = std::chrono::steady_clock;
using std::chrono::milliseconds;

adapter_options with_baud(int baud) {
    adapter_options options;
    options.baud = baud;
    return options;
}

} // namespace

virtual_server::virtual_server(const std::string& car_name, int baud)
    : car_(load_car(car_name)), adapter_(car_, with_baud(baud)) {
    listener_ = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    ::bind(listener_, reinterpret_cast<sockaddr*>(&address), sizeof address);
    ::listen(listener_, 1);
    socklen_t size = sizeof address;
    ::getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size);
    port_ = ntohs(address.sin_port);
    thread_ = std::thread([this] { serve(); });
}

virtual_server::~virtual_server() {
    leaving_ = true;
    ::shutdown(listener_, SHUT_RDWR);
    if (const int client = client_; client >= 0)
        ::shutdown(client, SHUT_RDWR);
    thread_.join();
    ::close(listener_);
}

double virtual_server::processor_seconds() {
    clockid_t clock{};
    timespec spent{};
    if (pthread_getcpuclockid(thread_.native_handle(), &clock) == 0)
        clock_gettime(clock, &spent);
    return static_cast<double>(spent.tv_sec) + static_cast<double>(spent.tv_nsec) * 1e-9;
}

void virtual_server::serve() {
    while (!leaving_) {
        const int client = ::accept(listener_, nullptr, nullptr);
        if (client < 0)
            continue;
        client_ = client;
        const int on = 1;
        ::setsockopt(client, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
        talk(client);
        client_ = -1;
        ::close(client);
    }
}

void virtual_server::talk(int client) {
    const auto start = clock_type::now();
    const auto now = [&] { return std::chrono::floor<milliseconds>(clock_type::now() - start); };
    adapter_.connection_opened(now());
    std::array<char, 256> room{};
    for (;;) {
        pollfd wire{client, POLLIN, 0};
        timespec wait{};
        if (const auto due = adapter_.next_output()) {
            const auto left = std::max<std::chrono::nanoseconds>(std::chrono::nanoseconds(0),
                                                                 start + *due - clock_type::now());
            wait.tv_sec = std::chrono::floor<std::chrono::seconds>(left).count();
            wait.tv_nsec = (left % std::chrono::seconds(1)).count();
        }
        if (::ppoll(&wire, 1, adapter_.next_output() ? &wait : nullptr, nullptr) > 0) {
            const ssize_t got = ::read(client, room.data(), room.size());
            if (got <= 0)
                return;
            adapter_.receive({room.data(), static_cast<std::size_t>(got)}, now());
        }
        while (adapter_.next_output() && *adapter_.next_output() <= now()) {
            const std::string text = adapter_.take_output(now());
            if (::send(client, text.data(), text.size(), MSG_NOSIGNAL) < 0)
                return;
        }
    }
}
