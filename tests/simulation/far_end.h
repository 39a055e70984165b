// The far end of the link: a virtual adapter in a virtual car, and the wire from it, where a plan
// injects faults. Serves one connection at a time, as a stream pair or as the channel of the
// scripted Bluetooth door. Fills the ledger.
#pragma once

#include "fault_plan.h"
#include "ledger.h"
#include "scripted_serial_port.h"
#include "stream_pair.h"
#include "trace.h"
#include "virtual_run_loop.h"

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>

class far_end {
  public:
    // The connected program.
    struct client {
        std::function<void(std::size_t slot, const std::string& bytes)> take;
        std::function<void()> closed;
    };

    far_end(virtual_run_loop& loop, event_trace& trace, wire_ledger& ledger, fault_plan& plan);

    // Another car, and an adapter that has just been powered on.
    void plug_in(const car& the_car, adapter_options options);
    void set_faults(fault_set faults);
    std::unique_ptr<stream_pair> make_streams(const std::string& host, long port);
    void serve(scripted_serial_port& door);

    // --- incidents
    void restart_adapter(bool banner);
    void hang_up();
    void fall_silent(); // without an event
    void chatter(std::string bytes) { send(wire_ledger::UNSOLICITED, std::move(bytes), {}); }

    // Timers that belong neither to the wire nor to the link.
    std::vector<std::chrono::milliseconds> timers_of_others() const;
    void expect_link_timer(std::chrono::milliseconds delay);

    const car& the_car() const { return car_; }
    int open_pairs() const { return open_pairs_; }
    fault_plan& plan() { return plan_; }
    void after(std::chrono::milliseconds delay, std::function<void()> call);
    wire_ledger& ledger() { return ledger_; }
    event_trace& trace() { return trace_; }

    // For the connections.
    void connect(const std::shared_ptr<client>& who);
    void write(std::string_view bytes);
    void count_pairs(int more) { open_pairs_ += more; }
    // True while no command may leave the program: a dialog is open.
    std::function<bool()> must_be_silent = [] { return false; };

  private:
    void pump();
    void apply_fate(std::string bytes);
    void send(std::size_t slot, std::string bytes, run_loop::milliseconds delay);
    void send_whole(std::size_t slot, const std::string& reply, run_loop::milliseconds delay);
    void arrive(std::size_t slot, const std::string& bytes, int connection);

    virtual_run_loop& loop_;
    event_trace& trace_;
    wire_ledger& ledger_;
    fault_plan& plan_;
    car car_;
    adapter_options options_;
    std::optional<virtual_adapter> adapter_;
    std::weak_ptr<client> client_;
    std::shared_ptr<client> channel_;             // while a Bluetooth channel is open
    std::size_t slot_ = wire_ledger::UNSOLICITED; // of the answer that the adapter is sending
    reply_fate fate_;
    std::string held_;       // of an overtaken or duplicate reply, until its prompt
    std::size_t passed_ = 0; // bytes of the reply
    run_loop::milliseconds wire_free_{0};
    std::size_t arriving_ = wire_ledger::UNSOLICITED; // of the latest answer
    bool mid_reply_ = false;                          // whose prompt has not arrived
    std::set<run_loop::milliseconds> wholes_due_;
    std::multiset<std::chrono::milliseconds> own_timers_;
    std::set<std::chrono::milliseconds> link_timers_;
    int open_pairs_ = 0;
    int connection_ = 0; // number of the current one: bytes under way do not reach the next
};
