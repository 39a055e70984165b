#include "virtual_server.h"

#include <algorithm>
#include <array>
#include <poll.h>
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
    : car_(load_car(car_name)), adapter_(car_, with_baud(baud)),
      server_(true, [this](int client) { talk(client); }) {}

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
