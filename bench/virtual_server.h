// The virtual adapter on the real clock: a thread of its own on a loopback port.
#pragma once

#include "car_library.h"
#include "virtual_adapter.h"

#include <atomic>
#include <thread>

class virtual_server {
  public:
    virtual_server(const std::string& car_name, int baud);
    ~virtual_server();
    virtual_server(const virtual_server&) = delete;
    virtual_server& operator=(const virtual_server&) = delete;

    int port() const { return port_; }
    double processor_seconds();

  private:
    void serve();
    void talk(int client);

    car car_;
    virtual_adapter adapter_;
    int listener_ = -1;
    int port_ = 0;
    std::atomic<int> client_{-1};
    std::atomic<bool> leaving_{false};
    std::thread thread_;
};
