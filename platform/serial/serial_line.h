// The door to one serial port: 8 bits, no parity, no flow control.
#pragma once

#include "serial_problem.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

class serial_line {
  public:
    // Called from the event loop, never from inside an operation.
    struct listener {
        std::function<void()> readable;
        std::function<void()> lost; // what can be read now is the last
    };

    virtual ~serial_line() = default;

    virtual serial_failure open(const std::string& path, listener events) = 0;
    // Discards what came at the previous speed. False: the port does not support it.
    virtual bool set_speed(long baud) = 0;
    // At most `most` bytes received so far.
    virtual std::string read(std::size_t most) = 0;
    virtual bool more_to_read() const = 0;
    virtual void write(std::string_view bytes) = 0;
    // Raises no event.
    virtual void close() = 0;
    // Why a port has disappeared.
    virtual serial_failure why_gone() const = 0;
};
