// A TCP server on loopback for one client at a time, on a thread of its own, with blocking sockets.
#pragma once

#include <atomic>
#include <functional>
#include <thread>

class loopback_server {
  public:
    // `talk` serves a client on the server's thread until it has gone. The last member of what it
    // uses.
    loopback_server(bool no_delay, std::function<void(int client)> talk);
    ~loopback_server();
    loopback_server(const loopback_server&) = delete;
    loopback_server& operator=(const loopback_server&) = delete;

    int port() const { return port_; }
    // What the server's thread has computed so far.
    double processor_seconds();

  private:
    void serve();

    const int no_delay_;
    std::function<void(int client)> talk_;
    int listener_ = -1;
    int port_ = 0;
    std::atomic<int> client_{-1};
    std::atomic<bool> leaving_{false};
    std::thread thread_;
};
