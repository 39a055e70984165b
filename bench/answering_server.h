// An adapter that answers immediately, to measure the program alone: a TCP server on loopback, in
// its own thread, with blocking sockets.
#pragma once

#include "drive_cycle.h"
#include "loopback_server.h"

#include <chrono>
#include <string>
#include <string_view>

// A driving car's answers to the four parameters of a run, in request order, one sample every 20
// ms.
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
    int pieces = 1;                       // per reply, with Nagle's algorithm on
    std::chrono::milliseconds between{0}; // the pieces
    std::chrono::milliseconds before{0};  // a reply
};

class answering_server {
  public:
    explicit answering_server(answering_manner manner = {});

    int port() const { return server_.port(); }
    // CPU time of the server's thread.
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
