#include "quit_signals.h"

#include <QSocketNotifier>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int ENDING[] = {SIGINT, SIGTERM, SIGHUP};
int write_end = -1;

void wake_up(int) {
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = ::write(write_end, &byte, 1);
}

} // namespace

quit_signals::quit_signals(std::function<void()> quit) {
    if (::pipe2(pipe_, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    write_end = pipe_[1];
    auto* notifier = new QSocketNotifier(pipe_[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, quit = std::move(quit)] {
        char byte;
        [[maybe_unused]] const ssize_t got = ::read(pipe_[0], &byte, 1);
        quit();
    });
    for (const int signal : ENDING)
        std::signal(signal, wake_up);
}

quit_signals::~quit_signals() {
    for (const int signal : ENDING)
        std::signal(signal, SIG_DFL);
    ::close(pipe_[0]);
    ::close(pipe_[1]);
}
