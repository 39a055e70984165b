// Answers as a recorded adapter did. A command gets the bytes that followed it in the recording, in
// the same pieces and at the same times. It is searched for after the last one found, then from the
// start; one that was never recorded gets "?".
//
// Each client gets the next recorded connection; after the last, the first again.
#pragma once

#include "adapter.h"
#include "output_queue.h"
#include "recording.h"

class recorded_adapter final : public adapter {
  public:
    // Each answer comes after `latency`, or if absent after `timing` times its recorded delay.
    explicit recorded_adapter(recording recorded, double timing = 1,
                              std::optional<milliseconds> latency = {});

    void connection_opened(milliseconds now) override;
    void receive(std::string_view bytes, milliseconds now) override;
    std::optional<milliseconds> next_output() const override;
    std::string take_output(milliseconds now) override { return output_.take(now); }
    // Where the recorded adapter hung up, once all output is sent.
    bool wants_close(milliseconds now) const override;

  private:
    void answer(std::string_view typed, milliseconds now);
    void play(std::size_t exchange, milliseconds now);
    milliseconds delay(milliseconds recorded) const;

    recording recorded_;
    double timing_;
    std::optional<milliseconds> latency_;
    output_queue output_;
    std::string typed_;
    std::size_t next_connection_ = 0;
    std::size_t next_ = 0; // exchange
    std::optional<milliseconds> hangs_up_;
};
