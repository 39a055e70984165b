// The command line of kestrom-virtual-car.
#pragma once

#include "option_table.h"
#include "virtual_adapter.h"

#include <span>
#include <string>

struct virtual_car_options {
    std::string car = "can11";
    std::string address = "127.0.0.1";
    int port = 35000;
    std::string protocol; // empty: the car's own
    std::string replay;   // a recording to answer from; empty: the car answers
    bool stdio = false;
    bool pty = false;
    bool list = false;
    bool help = false;
    bool version = false;
    adapter_options adapter;
};

// Throws usage_error.
virtual_car_options read_options(std::span<const std::string> arguments);
std::string usage();
