#include "answering_server.h"

#include "car_library.h"

#include <algorithm>
#include <arpa/inet.h>
#include <array>
#include <cstdio>
#include <ctime>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <pthread.h>
#include <string>
#include <sys/socket.h>
#include <unistd.h>

namespace {

sockaddr_in loopback(int port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    return address;
}

constexpr double SECONDS_A_SAMPLE = 0.02;

unsigned byte_of(double value) {
    return static_cast<unsigned>(std::clamp(value, 0.0, 255.0));
}

} // namespace

driving_car::driving_car() : drive_(load_car("can11").engine, 1) {}

std::string driving_car::answer(std::string_view pid) {
    const engine_state& now = drive_.at(static_cast<double>(samples_++) * SECONDS_A_SAMPLE);
    std::array<char, 32> text{};
    if (pid == "0C") {
        const auto quarters = static_cast<unsigned>(now.rpm * 4);
        std::snprintf(text.data(), text.size(), "41 0C %02X %02X ", quarters / 256 % 256,
                      quarters % 256);
        return text.data();
    }
    const unsigned byte = pid == "0D"   ? byte_of(now.speed_kmh)
                          : pid == "11" ? byte_of(now.throttle * 2.55)
                                        : byte_of(now.coolant_celsius + 40);
    std::snprintf(text.data(), text.size(), "41 %.2s %02X ", pid.data(), byte);
    return text.data();
}

std::string answering_server::reply_to(const std::string& command) {
    if (command.starts_with("AT Z") || command.starts_with("AT I"))
        return "ELM327 v1.5\r\r>";
    if (command.starts_with("AT DP"))
        return "AUTO, ISO 15765-4 (CAN 11/500)\r\r>";
    if (command.starts_with("AT"))
        return "OK\r\r>";
    if (command.starts_with("01 00"))
        return "7E8 06 41 00 BE 1F A8 12 \r\r>";
    return car_.answer(std::string_view(command).substr(3, 2)) + "\r\r>";
}

answering_server::answering_server(answering_manner manner)
    : manner_(manner), server_(manner.pieces == 1, [this](int client) { answer(client); }) {}

void answering_server::answer(int client) {
    std::string command;
    std::array<char, 256> room{};
    for (;;) {
        while (command.find('\r') == std::string::npos) {
            const ssize_t got = ::read(client, room.data(), room.size());
            if (got <= 0)
                return;
            command.append(room.data(), static_cast<std::size_t>(got));
        }
        const std::size_t end = command.find('\r');
        const std::string reply = reply_to(command.substr(0, end));
        command.erase(0, end + 1);
        if (manner_.before.count() > 0)
            std::this_thread::sleep_for(manner_.before);
        const std::size_t piece = reply.size() / static_cast<std::size_t>(manner_.pieces) + 1;
        for (std::size_t at = 0; at < reply.size(); at += piece) {
            if (at > 0)
                std::this_thread::sleep_for(manner_.between);
            const std::string part = reply.substr(at, piece);
            if (::send(client, part.data(), part.size(), MSG_NOSIGNAL) < 0)
                return;
        }
    }
}

double bare_exchanges_a_second(int port, std::chrono::milliseconds span) {
    const int wire = ::socket(AF_INET, SOCK_STREAM, 0);
    const sockaddr_in address = loopback(port);
    const int on = 1;
    if (::connect(wire, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
        return 0;
    ::setsockopt(wire, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    static constexpr const char* COMMANDS[] = {"01 0D\r", "01 11\r", "01 0C\r", "01 05\r"};
    using clock = std::chrono::steady_clock;
    const auto start = clock::now();
    long exchanges = 0;
    std::array<char, 256> room{};
    while (clock::now() - start < span) {
        if (::write(wire, COMMANDS[exchanges % 4], 6) != 6)
            break;
        ssize_t got = 0;
        do {
            got = ::read(wire, room.data(), room.size());
        } while (got > 0 && room[static_cast<std::size_t>(got) - 1] != '>');
        if (got <= 0)
            break;
        ++exchanges;
    }
    const std::chrono::duration<double> elapsed = clock::now() - start;
    ::close(wire);
    return static_cast<double>(exchanges) / elapsed.count();
}
