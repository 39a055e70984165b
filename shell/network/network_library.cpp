// The library that load_network() loads.
#include "network.h"
#include "tcp_adapter_server.h"
#include "tcp_stream_pair.h"

#include <stdexcept>

namespace {

class served_tcp_car final : public network::served_car {
  public:
    explicit served_tcp_car(const car& the_car) : server_(the_car) {
        if (!server_.listen("127.0.0.1", 0))
            throw std::runtime_error("the virtual car cannot listen on 127.0.0.1: " +
                                     server_.error());
    }
    int port() const override { return server_.port(); }

  private:
    tcp_adapter_server server_;
};

class tcp_network final : public network {
    std::unique_ptr<stream_pair> make_streams(run_loop& loop, const std::string& host,
                                              long port) override {
        return std::make_unique<tcp_stream_pair>(loop, host, port);
    }
    std::unique_ptr<served_car> serve(const car& the_car) override {
        return std::make_unique<served_tcp_car>(the_car);
    }
};

} // namespace

extern "C" Q_DECL_EXPORT network* kestrom_network() {
    static tcp_network tcp;
    return &tcp;
}
