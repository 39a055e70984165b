// An adapter that answers at once, for measuring the program that asks: a TCP server on loopback,
// on a thread of its own, with blocking sockets and nothing else in its way.
#pragma once

#include "drive_cycle.h"
#include "loopback_server.h"

#include <chrono>
#include <string>
#include <string_view>

// What a car on its drive answers to the four parameters of a run, one sample every 20 ms, in the
// order asked.
class driving_car {
  public:
    driving_car();
    // Spaced bytes, as an adapter sends them, without line end.
    std::string answer(std::string_view pid);

  private:
    drive_cycle drive_;
    long samples_ = 0;
};

struct answering_manner {
    int pieces = 1;                       // that a reply is written in, with Nagle's algorithm on
    std::chrono::milliseconds between{0}; // the pieces
    std::chrono::milliseconds before{0};  // a reply
};

class answering_server {
  public:
    explicit answering_server(answering_manner manner = {});

    int port() const { return server_.port(); }
    // What the server's thread has computed so far.
    double processor_seconds() { return server_.processor_seconds(); }

  private:
    void answer(int client);

    std::string reply_to(const std::string& command);

    answering_manner manner_;
    driving_car car_;
    loopback_server server_;
};

// A minimal client: writes the command, reads up to the prompt. Returns exchanges per second.
double bare_exchanges_a_second(int port, std::chrono::milliseconds span);
