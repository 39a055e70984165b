// A stream pair that does what a test says: refuse, stall, split, drop. What is written is
// recorded.
#pragma once

#include "run_loop.h"
#include "stream_pair.h"

#include <deque>
#include <memory>
#include <string>
#include <utility>
#include <vector>

class scripted_stream_pair final : public stream_pair {
  public:
    // The far end, which outlives the pair.
    struct wire {
        std::string host;
        long port = 0;
        bool serial = false;
        std::deque<std::string> written;
        std::string incoming;
        std::string error;
        event_handler handler; // empty once the pair is closed
        int opens = 0, closes = 0;
    };

    scripted_stream_pair(run_loop& loop, std::shared_ptr<wire> far_end)
        : loop_(loop), wire_(std::move(far_end)) {}
    ~scripted_stream_pair() override { close(); }

    void open(event_handler handler) override {
        wire_->handler = std::move(handler);
        ++wire_->opens;
    }
    std::string read(std::size_t most) override {
        std::string chunk = wire_->incoming.substr(0, most);
        wire_->incoming.erase(0, most);
        if (!wire_->incoming.empty())
            raise(*wire_, loop_, STREAM_BYTES_AVAILABLE);
        return chunk;
    }
    void write(std::string_view bytes) override { wire_->written.emplace_back(bytes); }
    void close() override {
        if (wire_->handler)
            ++wire_->closes;
        wire_->handler = nullptr;
    }
    std::string error_description() const override { return wire_->error; }

    // An event from the far end, through the run loop as the real pair's.
    static void raise(wire& far_end, run_loop& loop, int code,
                      stream_side side = stream_side::input) {
        loop.after(run_loop::milliseconds(0), [&far_end, side, code] {
            if (const auto handler = far_end.handler)
                handler(side, code);
        });
    }

  private:
    run_loop& loop_;
    std::shared_ptr<wire> wire_;
};
