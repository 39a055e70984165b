// What goes over TCP: the Wi-Fi adapters, and the built-in virtual car as one of them. Qt Network
// and what it draws in take a twentieth of the start to load, so all this lies in a library of its
// own, beside the program or in its library folder, which is loaded when it is first used.
#pragma once

#include "stream_pair.h"

#include <memory>
#include <string>

class run_loop;
struct car;

class network {
  public:
    virtual ~network() = default;
    virtual std::unique_ptr<stream_pair> make_streams(run_loop& loop, const std::string& host,
                                                      long port) = 0;

    class served_car {
      public:
        virtual ~served_car() = default;
        virtual int port() const = 0;
    };
    // On any free port of 127.0.0.1; throws std::runtime_error when there is none.
    virtual std::unique_ptr<served_car> serve(const car& the_car) = 0;
};

// Throws std::runtime_error, with the reason, when the library cannot be loaded.
network& load_network();

// Pairs over TCP; without the library such that fail to open and tell the reason.
stream_pair_factory tcp_streams(run_loop& loop);
