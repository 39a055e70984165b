#include "pseudo_terminal.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <system_error>
#include <termios.h>
#include <unistd.h>
#include <utility>

pseudo_terminal::pseudo_terminal() : far_end_(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC)) {
    char name[64];
    if (far_end_ < 0 || ::grantpt(far_end_) != 0 || ::unlockpt(far_end_) != 0 ||
        ::ptsname_r(far_end_, name, sizeof name) != 0 ||
        (kept_ = ::open(name, O_RDWR | O_NOCTTY | O_CLOEXEC)) < 0) {
        const int error = errno;
        unplug();
        throw std::system_error(error, std::generic_category(), "no pseudo-terminal");
    }
    path_ = name;
    termios line = {}; // a terminal would echo, and turn returns into line feeds
    ::tcgetattr(kept_, &line);
    ::cfmakeraw(&line);
    ::tcsetattr(kept_, TCSANOW, &line);
}

void pseudo_terminal::unplug() {
    for (int* end : {&kept_, &far_end_})
        if (*end >= 0)
            ::close(std::exchange(*end, -1));
}
