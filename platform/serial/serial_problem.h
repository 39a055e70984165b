// Why a serial port does not work, as far as the user can act on it.
#pragma once

#include <filesystem>
#include <string>

class bundle;

enum class serial_problem {
    none,
    not_chosen,
    not_there,
    taken,         // another service has the cable, and its port has gone
    not_permitted, // `detail` is the group that has access
    busy,
    silent, // no adapter answers; `detail` is the speeds
    other   // `detail` is the system's words
};

struct serial_failure {
    serial_problem problem = serial_problem::none;
    std::string detail{};
};

// What happened and what to do, in the user's language.
std::string problem_text(const serial_failure& failure, const bundle& texts,
                         const std::string& path);

// Why `path` cannot be opened: missing, or no permission. A missing port counts as taken if some
// program drives the cable's chip directly; the kernel lists these in `own_drivers`.
serial_failure
problem_of_path(const std::string& path,
                const std::filesystem::path& own_drivers = "/sys/bus/usb/drivers/usbfs");
// The same for a file with this mode and group.
serial_failure refused_by(unsigned mode, unsigned group);
