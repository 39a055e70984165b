#include "stdio_adapter.h"

#include <cerrno>
#include <chrono>
#include <poll.h>
#include <unistd.h>

namespace {

using std::chrono::milliseconds;

milliseconds clock_now() {
    return std::chrono::duration_cast<milliseconds>(
        std::chrono::steady_clock::now().time_since_epoch());
}

bool write_all(int output, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = ::write(output, text.data(), text.size());
        if (written < 0 && errno != EINTR)
            return false;
        if (written > 0)
            text.remove_prefix(std::size_t(written));
    }
    return true;
}

// Milliseconds until output is due; -1 for never.
int patience(const adapter& served) {
    const auto next = served.next_output();
    return next ? int(std::max<long long>(
                      0, std::min<long long>((*next - clock_now()).count(), 60000)))
                : -1;
}

} // namespace

bool serve_descriptors(adapter& served, int input, int output) {
    served.connection_opened(clock_now());
    bool open = true;
    while ((open || served.next_output()) && !served.wants_close(clock_now())) {
        pollfd waited{input, POLLIN, 0};
        if (::poll(&waited, open ? 1 : 0, patience(served)) < 0 && errno != EINTR)
            return false;
        if (open && (waited.revents & (POLLIN | POLLHUP | POLLERR))) {
            char bytes[1024];
            const ssize_t count = ::read(input, bytes, sizeof bytes);
            open = count > 0 || (count < 0 && errno == EINTR);
            if (count > 0)
                served.receive(std::string_view(bytes, std::size_t(count)), clock_now());
        }
        if (!write_all(output, served.take_output(clock_now())))
            return false;
    }
    return true;
}
