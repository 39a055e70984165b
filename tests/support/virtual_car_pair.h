// A stream pair with the virtual adapter at its far end, on the test's clock: a whole car without a
// socket.
#pragma once

#include "run_loop.h"
#include "stream_pair.h"
#include "virtual_adapter.h"

#include <memory>
#include <string>
#include <utility>

class virtual_car_pair final : public stream_pair {
  public:
    virtual_car_pair(run_loop& loop, virtual_adapter& adapter) : loop_(loop), adapter_(adapter) {}
    ~virtual_car_pair() override { close(); }

    void open(event_handler handler) override {
        handler_ = std::move(handler);
        if (adapter_.refuses()) {
            raise(stream_side::input, STREAM_ERROR);
            return;
        }
        adapter_.connection_opened(loop_.now());
        raise(stream_side::input, STREAM_OPEN_COMPLETED);
        raise(stream_side::output, STREAM_OPEN_COMPLETED);
    }
    std::string read(std::size_t most) override {
        const std::string chunk = incoming_.substr(0, most);
        incoming_.erase(0, most);
        if (!incoming_.empty())
            raise(stream_side::input, STREAM_BYTES_AVAILABLE);
        return chunk;
    }
    void write(std::string_view bytes) override {
        if (!handler_ || gone_)
            return;
        adapter_.receive(bytes, loop_.now());
        pump();
    }
    void close() override {
        alive_.reset();
        handler_ = nullptr;
    }
    std::string error_description() const override { return "Connection refused"; }
    void lose() {
        gone_ = true;
        raise(stream_side::input, STREAM_END);
    }

  private:
    // Passes on what the adapter has to say by now, and comes back when more is due.
    void pump() {
        if (gone_)
            return;
        // The first read empties what there is, so one event serves several pieces, as with a
        // socket.
        for (auto due = adapter_.next_output(); due && *due <= loop_.now();
             due = adapter_.next_output()) {
            const bool announce = incoming_.empty();
            incoming_ += adapter_.take_output(loop_.now());
            if (announce && !incoming_.empty())
                raise(stream_side::input, STREAM_BYTES_AVAILABLE);
        }
        if (adapter_.wants_close(loop_.now())) {
            lose();
        } else if (const auto due = adapter_.next_output()) {
            later(*due - loop_.now(), [this] { pump(); });
        }
    }
    void raise(stream_side side, int code) {
        later(run_loop::milliseconds(0), [this, side, code] {
            const event_handler call = handler_;
            call(side, code);
        });
    }
    template <class call>
    void later(run_loop::milliseconds delay, call what) {
        loop_.after(delay, [alive = std::weak_ptr<bool>(alive_), what] {
            if (!alive.expired())
                what();
        });
    }

    run_loop& loop_;
    virtual_adapter& adapter_;
    event_handler handler_;
    std::string incoming_;
    bool gone_ = false;
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};

// Every connection leads to this adapter.
inline stream_pair_factory streams_to(run_loop& loop, virtual_adapter& adapter) {
    return [&](const std::string&, long) -> std::unique_ptr<stream_pair> {
        return std::make_unique<virtual_car_pair>(loop, adapter);
    };
}
