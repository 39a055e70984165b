// The virtual adapter on the real clock, in its own thread on a loopback port.
#pragma once

#include "car_library.h"
#include "loopback_server.h"
#include "virtual_adapter.h"

#include <string>

class virtual_server {
  public:
    virtual_server(const std::string& car_name, int baud);

    int port() const { return server_.port(); }
    double processor_seconds() { return server_.processor_seconds(); }

  private:
    void talk(int client);

    car car_;
    virtual_adapter adapter_;
    loopback_server server_;
};
