// A TCP server on loopback for one client at a time, in its own thread, with blocking sockets.
#pragma once

#include <atomic>
#include <functional>
#include <thread>

class loopback_server {
  public:
    // `talk` serves a client on the server's thread until it disconnects. Declare the server after
    // everything that `talk` uses.
    loopback_server(bool no_delay, std::function<void(int client)> talk);
    ~loopback_server();
    loopback_server(const loopback_server&) = delete;
    loopback_server& operator=(const loopback_server&) = delete;

    int port() const { return port_; }
    // CPU time of the server's thread.
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
