// Turns the signals of a Qt device into the events of a stream pair.
#pragma once

#include "run_loop.h"
#include "stream_pair.h"

#include <memory>

class line_stream_pair : public stream_pair {
  public:
    std::string read(std::size_t most) final;
    std::string error_description() const final { return error_; }

  protected:
    line_stream_pair(run_loop& loop) : loop_(loop) {}

    virtual std::string take(std::size_t most) = 0;
    virtual bool more_to_take() const = 0;
    virtual void bytes_handled() {}

    void listen(event_handler handler) { handler_ = std::move(handler); }
    void stop_listening();
    void raise_open();
    void raise_bytes();
    void raise_end(); // after what can still be read
    void raise_error(std::string why);

    run_loop& loop_;

  private:
    bool announce_rest();
    void raise(stream_side side, int event_code);
    std::function<void()> event(stream_side side, int event_code);

    event_handler handler_;
    std::string error_;
    bool announced_ = false, ended_ = false;
    // Scheduled events hold a weak pointer to this, so that a destroyed pair raises none.
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};
