// The stream pair over a serial port. It is open once an adapter has answered: at the given speed,
// else at the first usual one that works.
//
// The probe is not a command. At a wrong speed it never reads as a carriage return, so it has no
// effect; at the right one it voids a half-typed command and interrupts a running one, and the
// adapter answers with a prompt.
#pragma once

#include "line_stream_pair.h"
#include "serial_line.h"

#include <memory>
#include <vector>

class bundle;

class serial_stream_pair final : public line_stream_pair {
  public:
    // `speed` 0: tries the usual ones.
    serial_stream_pair(run_loop& loop, const bundle& texts, std::unique_ptr<serial_line> line,
                       std::string path, long speed);
    ~serial_stream_pair() override { close(); }

    void open(event_handler handler) override;
    void write(std::string_view bytes) override;
    void close() override;

  private:
    enum class state { closed, asking, open };

    std::string take(std::size_t most) override { return line_->read(most); }
    bool more_to_take() const override { return line_->more_to_read(); }
    void try_next_speed();
    void ask(std::size_t question);
    void take_answer();
    void opened();
    void readable();
    void lost();
    void fail(const serial_failure& why);

    const bundle& texts_;
    std::unique_ptr<serial_line> line_;
    std::string path_;
    std::vector<long> speeds_;
    std::size_t tried_ = 0;
    std::string answer_; // since the last probe
    bool answered_ = false;
    run_loop::timer_id patience_ = 0;
    state state_ = state::closed;
};
