#include "reference_client.h"

#include <algorithm>
#include <arpa/inet.h>
#include <array>
#include <cstdio>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

reference_client::reference_client(int port, std::vector<std::string> pids)
    : pids_(std::move(pids)) {
    wire_ = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    if (::connect(wire_, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
        std::perror("the reference client");
    const int on = 1;
    ::setsockopt(wire_, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    for (const char* command : {"ATZ", "ATE0", "ATH1", "ATL0", "0100"})
        exchange(command);
    for (const std::string& pid : pids_) {
        const std::string reply = exchange("01" + pid);
        const auto lines = std::count(reply.begin(), reply.end(), '\r') - 1;
        const bool has_data = reply.find("NO DATA") == std::string::npos;
        requests_.push_back("01" + pid + (has_data ? std::to_string(lines) : ""));
    }
}

reference_client::~reference_client() {
    ::close(wire_);
}

double reference_client::values_a_second(std::chrono::milliseconds span) {
    using clock = std::chrono::steady_clock;
    const auto start = clock::now();
    long values = 0;
    while (clock::now() - start < span) {
        const std::string reply = exchange(requests_[next_++ % requests_.size()]);
        if (reply.empty())
            break;
        values += reply.find("NO DATA") == std::string::npos; // a fast run counts the same way
    }
    return static_cast<double>(values) /
           std::chrono::duration<double>(clock::now() - start).count();
}

std::string reference_client::exchange(const std::string& command) {
    const std::string line = command + "\r";
    std::string reply;
    if (::send(wire_, line.data(), line.size(), MSG_NOSIGNAL) < 0)
        return {};
    std::array<char, 256> room{};
    while (!reply.ends_with('>')) {
        const ssize_t got = ::read(wire_, room.data(), room.size());
        if (got <= 0)
            return {};
        reply.append(room.data(), static_cast<std::size_t>(got));
    }
    return reply;
}
