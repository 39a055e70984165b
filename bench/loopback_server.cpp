#include "loopback_server.h"

#include <arpa/inet.h>
#include <ctime>
#include <netinet/tcp.h>
#include <pthread.h>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

loopback_server::loopback_server(bool no_delay, std::function<void(int client)> talk)
    : no_delay_(no_delay), talk_(std::move(talk)) {
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

loopback_server::~loopback_server() {
    leaving_ = true;
    ::shutdown(listener_, SHUT_RDWR);
    if (const int client = client_; client >= 0)
        ::shutdown(client, SHUT_RDWR);
    thread_.join();
    ::close(listener_);
}

double loopback_server::processor_seconds() {
    clockid_t clock{};
    timespec spent{};
    if (pthread_getcpuclockid(thread_.native_handle(), &clock) == 0)
        clock_gettime(clock, &spent);
    return static_cast<double>(spent.tv_sec) + static_cast<double>(spent.tv_nsec) * 1e-9;
}

void loopback_server::serve() {
    while (!leaving_) {
        const int client = ::accept(listener_, nullptr, nullptr);
        if (client < 0)
            continue;
        client_ = client;
        ::setsockopt(client, IPPROTO_TCP, TCP_NODELAY, &no_delay_, sizeof no_delay_);
        talk_(client);
        client_ = -1;
        ::close(client);
    }
}
