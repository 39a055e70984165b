// What answers a client as an adapter: the virtual one, or a recording of a real one. It has no
// clock, event loop or sockets: its owner passes in what arrived and when, and asks what is due.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

class adapter {
  public:
    using milliseconds = std::chrono::milliseconds;

    virtual ~adapter() = default;

    // A client has connected.
    virtual void connection_opened(milliseconds now) = 0;
    virtual void receive(std::string_view bytes, milliseconds now) = 0;

    // When the next output is due, if any.
    virtual std::optional<milliseconds> next_output() const = 0;
    // The output that is due by now.
    virtual std::string take_output(milliseconds now) = 0;

    // Requests to the transport.
    virtual bool refuses() const { return false; }
    virtual bool wants_close(milliseconds now) const = 0;
    virtual bool sends_without_delay() const { return true; } // TCP_NODELAY
};
