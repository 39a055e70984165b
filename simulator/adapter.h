// Whatever answers a client as an adapter does: the virtual one, or a recording of a genuine one.
// It has neither clock, event loop nor sockets: its owner tells it what arrived and when, and asks
// what is due.
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

    // When something is due; nothing when there is nothing to say.
    virtual std::optional<milliseconds> next_output() const = 0;
    // What is due by now.
    virtual std::string take_output(milliseconds now) = 0;

    // What is asked of the transport.
    virtual bool refuses() const { return false; }
    virtual bool wants_close(milliseconds now) const = 0;
    virtual bool sends_without_delay() const { return true; } // TCP_NODELAY
};
