// Why a serial port does not work: what the user can do something about is told apart.
#pragma once

#include <filesystem>
#include <string>

class bundle;

enum class serial_problem {
    none,
    not_there,
    taken,         // another service has the cable, and its port has gone
    not_permitted, // `detail` is the group that may
    busy,
    silent, // no adapter answers; `detail` is the speeds
    other   // `detail` is the system's words
};

struct serial_failure {
    serial_problem problem = serial_problem::none;
    std::string detail{};
};

// A sentence for the user and what to do, in the user's language.
std::string problem_text(const serial_failure& failure, const bundle& texts,
                         const std::string& path);

// What opening `path` would fail with for want of the file or the right to it. A port that is not
// there has been taken when a program drives a cable's chip by itself, which the kernel lists in
// `own_drivers`.
serial_failure
problem_of_path(const std::string& path,
                const std::filesystem::path& own_drivers = "/sys/bus/usb/drivers/usbfs");
// The same for a path that cannot be used, with the mode and group of its file.
serial_failure refused_by(unsigned mode, unsigned group);
