// An ELM327-type adapter (v1.5) in a virtual car. The same car, options, bytes and times give the
// same output. Clearing codes changes the car, which it does not own and which must outlive it.
#pragma once

#include "adapter.h"
#include "adapter_state.h"
#include "bus_frames.h"
#include "faults.h"
#include "output_queue.h"
#include "reply_faults.h"
#include "request_reader.h"
#include "vehicle.h"

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

struct adapter_options {
    fault_set faults;
    std::uint64_t seed = 1;
    // How long each request takes; absent: as long as on a real bus, times `timing`.
    std::optional<std::chrono::milliseconds> latency;
    double timing = 1;
    // The serial line between the chip and the radio; 0: none.
    int baud = 0;
    // Of the radio, there and back.
    std::chrono::milliseconds round_trip{0};
    double speed = 1; // of the car's drive relative to the clock
};

class virtual_adapter final : public adapter {
  public:
    virtual_adapter(car& the_car, adapter_options options = {});

    // From now on.
    void set_faults(fault_set faults);

    // What the last client left half said is gone; settings stay, as on a genuine one.
    void connection_opened(milliseconds now) override;
    void receive(std::string_view bytes, milliseconds now) override;

    std::optional<milliseconds> next_output() const override;
    // With the fault one_byte_chunks, one byte per call.
    std::string take_output(milliseconds now) override;

    // What faults demand of the transport.
    bool refuses() const override { return options_.faults.has(fault_kind::refuse); }
    bool wants_close(milliseconds now) const override;
    bool sends_without_delay() const override { return !options_.faults.has(fault_kind::nagle); }

  private:
    bool interrupted(milliseconds now);
    void echo(char c, milliseconds now);
    void finish_command(milliseconds now);
    void send(adapter_reply pieces, milliseconds now);
    adapter_reply answer(const command_line& line, milliseconds now);
    adapter_reply answer_at(const command_line& line, milliseconds now);
    adapter_reply answer_request(const command_line& line, milliseconds now);

    bool connect(adapter_reply& pieces, milliseconds now);
    bool connect_to_only(const bus_protocol* wanted, bool present, adapter_reply& pieces);
    void announce_init(const bus_protocol& bus, bool works, adapter_reply& pieces);
    bool car_is_there(milliseconds now);
    std::optional<byte_string> service_data(const byte_string& request) const;
    std::optional<std::uint32_t> addressed_unit() const;
    bool passes_filter(std::uint32_t address) const;
    bool refuses_digit(int expected, adapter_reply& pieces) const;
    std::vector<unit_answer> ask_car(byte_string request, milliseconds now);
    void damage(std::vector<unit_answer>& answers);
    milliseconds unit_gap() const;
    struct timed_frame {
        milliseconds at; // on the clock
        bus_frame frame;
    };
    std::vector<timed_frame> late_frames(milliseconds since);
    bool collides(milliseconds since) const;
    void show_frames(const std::vector<unit_answer>& answers, int expected, adapter_reply& pieces,
                     milliseconds now);
    void show_frame(bus_frame& frame, milliseconds later, adapter_reply& pieces);
    bool counts(const bus_frame& frame) const;
    milliseconds longest_wait() const;
    milliseconds wait_for_more() const;

    milliseconds arrival(milliseconds now);
    void say(milliseconds at, const std::string& text);
    std::string end_of_line() const;
    milliseconds scaled(milliseconds genuine) const;
    void add_line(adapter_reply& pieces, milliseconds later, std::string_view line) const;
    static milliseconds end_of(const adapter_reply& pieces);

    adapter_options options_;
    vehicle vehicle_;
    adapter_state state_;
    seeded_random random_;
    output_queue output_;
    std::string typed_;
    std::string last_command_;
    std::optional<milliseconds> typing_ends_; // a command not finished by then is dropped
    milliseconds busy_until_{0};
    // When the serial line is next idle, to the chip and from it.
    std::chrono::microseconds line_in_{0}, line_out_{0};
    milliseconds bus_free_{0}; // for the next request
    // Frames after the end of a reply, which the chip receives later or never.
    std::vector<timed_frame> late_;
    // Between two messages: the longest on this bus so far, and in the last reply.
    milliseconds longest_gap_{0}, last_gap_{0};
    // While searching for the bus: the state to restore if the search is aborted.
    struct search {
        adapter_state before;
        milliseconds ends;
    };
    std::optional<search> search_;
    bool restarting_ = false;
    bool closing_ = false;
    long commands_ = 0; // of this connection
    long replies_ = 0, requests_ = 0, values_ = 0, deferred_ = 0, messages_ = 0;
};
