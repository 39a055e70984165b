#include "far_end.h"

#include "globalVars.h"

#include <algorithm>

using std::chrono::milliseconds;

namespace {

// One connection of the Wi-Fi transport.
class simulated_pair final : public stream_pair {
  public:
    simulated_pair(far_end& far, bool reachable) : far_(far), reachable_(reachable) {
        far_.count_pairs(1);
    }
    ~simulated_pair() override {
        close();
        far_.count_pairs(-1);
    }

    void open(event_handler handler) override {
        handler_ = std::move(handler);
        const bool refused = !reachable_ || far_.plan().refuses();
        const milliseconds delay = far_.plan().opening();
        later(delay, [this, refused] {
            if (refused)
                return handler_call(STREAM_ERROR);
            connect();
        });
    }
    std::string read(std::size_t most) override {
        std::string chunk;
        std::size_t wanted = std::min(most, far_.plan().chunk(waiting_));
        waiting_ -= wanted;
        while (wanted > 0) {
            auto& [slot, bytes] = incoming_.front();
            const std::string part = bytes.substr(0, wanted);
            far_.ledger().delivered(slot, part);
            chunk += part;
            wanted -= part.size();
            bytes.erase(0, part.size());
            if (bytes.empty())
                incoming_.pop_front();
        }
        if (waiting_ > 0)
            later(milliseconds(0), [this] { handler_call(STREAM_BYTES_AVAILABLE); });
        far_.trace().note("<", chunk);
        return chunk;
    }
    void write(std::string_view bytes) override {
        far_.expect_link_timer(std::chrono::seconds(g_this_delta));
        if (handler_ && connection_)
            far_.write(bytes);
    }
    void close() override {
        alive_.reset();
        connection_.reset();
        handler_ = nullptr;
    }
    std::string error_description() const override { return "Connection refused"; }

  private:
    void connect() {
        connection_ = std::make_shared<far_end::client>();
        connection_->take = [this](std::size_t slot, const std::string& bytes) {
            const bool announce = waiting_ == 0;
            incoming_.emplace_back(slot, bytes);
            waiting_ += bytes.size();
            if (announce)
                later(milliseconds(0), [this] { handler_call(STREAM_BYTES_AVAILABLE); });
        };
        connection_->closed = [this] {
            connection_.reset();
            later(milliseconds(0), [this] { handler_call(STREAM_END); });
        };
        far_.connect(connection_);
        handler_call(STREAM_OPEN_COMPLETED);
        later(milliseconds(0),
              [this] { handler_call(STREAM_OPEN_COMPLETED, stream_side::output); });
    }
    void handler_call(int code, stream_side side = stream_side::input) {
        const event_handler call = handler_;
        if (call)
            call(side, code);
    }
    template <class call>
    void later(milliseconds delay, call what) {
        far_.after(delay, [alive = std::weak_ptr<bool>(alive_), what] {
            if (!alive.expired())
                what();
        });
    }

    far_end& far_;
    bool reachable_;
    event_handler handler_;
    std::shared_ptr<far_end::client> connection_;
    std::deque<std::pair<std::size_t, std::string>> incoming_;
    std::size_t waiting_ = 0;
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};

// Nothing comes back at once, whatever breaks off.
constexpr milliseconds WIRE_TIME{10};
constexpr milliseconds FIRST_COMMAND_OR_FAREWELL{1000};
constexpr std::size_t LONGEST_TRICKLE = 1000;

std::string with_rubbish(std::string bytes, int count, rng& choices) {
    for (; count > 0; --count) {
        const char rubbish = choices.byte();
        bytes.insert(static_cast<std::size_t>(choices.below(static_cast<int>(bytes.size()) + 1)), 1,
                     rubbish == '>' ? '<' : rubbish);
    }
    return bytes;
}

} // namespace

far_end::far_end(virtual_run_loop& loop, event_trace& trace, wire_ledger& ledger, fault_plan& plan)
    : loop_(loop), trace_(trace), ledger_(ledger), plan_(plan) {}

void far_end::plug_in(const car& the_car, adapter_options options) {
    car_ = the_car;
    options_ = std::move(options);
    adapter_.emplace(car_, options_);
    slot_ = wire_ledger::UNSOLICITED;
    fate_ = {};
    held_.clear();
}

void far_end::set_faults(fault_set faults) {
    options_.faults = faults;
    adapter_->set_faults(std::move(faults));
}

void far_end::after(milliseconds delay, std::function<void()> call) {
    const milliseconds due = loop_.now() + delay;
    own_timers_.insert(due);
    loop_.after(delay, [this, due, call = std::move(call)] {
        own_timers_.erase(own_timers_.find(due));
        call();
    });
}

// Timers that the link arms for what has just happened.
void far_end::expect_link_timer(milliseconds delay) {
    link_timers_.insert(loop_.now() + delay);
}

std::vector<milliseconds> far_end::timers_of_others() const {
    std::vector<milliseconds> others;
    auto own = own_timers_;
    loop_.for_each_armed([&](milliseconds due) {
        if (const auto found = own.find(due); found != own.end())
            own.erase(found);
        else if (!link_timers_.contains(due))
            others.push_back(due);
    });
    return others;
}

std::unique_ptr<stream_pair> far_end::make_streams(const std::string& host, long port) {
    expect_link_timer(TCP_TIME_OUT);
    expect_link_timer(std::chrono::seconds(g_this_delta)); // of a dropped command
    const bool reachable = host.starts_with("10.0.0.") && port >= 35000 && port <= 35009;
    return std::make_unique<simulated_pair>(*this, reachable);
}

void far_end::serve(scripted_serial_port& door) {
    door.when_opened = [this, &door] {
        channel_.reset();
        expect_link_timer(std::chrono::seconds(g_this_delta)); // of a command without a channel
        after(plan_.opening(), [this, &door, refused = plan_.refuses(), opens = door.opens,
                                closed = door.closed_channels] {
            expect_link_timer(FIRST_COMMAND_OR_FAREWELL);
            expect_link_timer(std::chrono::seconds(g_this_delta));
            if (opens != door.opens)
                return;
            // Given up: the event still comes.
            if (refused || closed != door.closed_channels)
                return door.channel.open_complete(refused ? 111 : 0);
            channel_ = std::make_shared<client>();
            channel_->take = [this, &door](std::size_t slot, const std::string& bytes) {
                for (std::size_t at = 0; at < bytes.size();) {
                    const std::string part = bytes.substr(at, plan_.chunk(bytes.size() - at));
                    at += part.size();
                    after(milliseconds(0), [this, &door, slot, part] {
                        ledger_.delivered(slot, part);
                        trace_.note("<", part);
                        door.channel.data(part);
                    });
                }
            };
            channel_->closed = [this, &door] {
                channel_.reset();
                after(milliseconds(0), [this, &door] {
                    expect_link_timer(FIRST_COMMAND_OR_FAREWELL);
                    door.channel.closed();
                });
            };
            connect(channel_);
            door.channel.open_complete(0);
        });
    };
    door.when_written = [this, &door](std::string_view bytes) {
        door.written.clear();
        expect_link_timer(std::chrono::seconds(g_this_delta));
        if (channel_) // the stack accepts nothing for a channel that is still opening
            write(bytes);
    };
}

void far_end::connect(const std::shared_ptr<client>& who) {
    client_ = who;
    expect_link_timer(FIRST_COMMAND_OR_FAREWELL);
    // The first command may go to another adapter, which is chosen meanwhile and has no channel
    // yet.
    after(FIRST_COMMAND_OR_FAREWELL,
          [this] { expect_link_timer(std::chrono::seconds(g_this_delta)); });
    ++connection_;
    wire_free_ = loop_.now();
    mid_reply_ = false;
    adapter_->connection_opened(loop_.now());
    slot_ = wire_ledger::UNSOLICITED;
    held_.clear();
}

void far_end::write(std::string_view bytes) {
    trace_.note(">", bytes);
    expect_link_timer(std::chrono::seconds(g_this_delta));
    trace_.expect(!must_be_silent(), "no step runs while an alert is open",
                  "sent: " + std::string(bytes));
    slot_ = ledger_.written(bytes, car_);
    fate_ = plan_.next_reply();
    if (fate_.damages() || fate_.lost)
        ledger_.damaged(slot_);
    held_.clear();
    passed_ = 0;
    adapter_->receive(bytes, loop_.now());
    pump();
}

// Passes on the adapter's output that is due, and schedules the next.
void far_end::pump() {
    for (auto due = adapter_->next_output(); due && *due <= loop_.now();
         due = adapter_->next_output()) {
        const std::string bytes = adapter_->take_output(loop_.now());
        ledger_.said(slot_, bytes);
        apply_fate(bytes);
    }
    if (const auto due = adapter_->next_output())
        after(*due - loop_.now(), [this] { pump(); });
}

void far_end::apply_fate(std::string bytes) {
    if (fate_.lost)
        return;
    rng& choices = plan_.choices();
    if (fate_.cut_at >= 0) {
        const std::size_t room = static_cast<std::size_t>(fate_.cut_at);
        const std::size_t left = room - std::min(room, passed_);
        passed_ += bytes.size();
        bytes.resize(std::min(bytes.size(), left));
    }
    if (fate_.rubbish > 0)
        bytes = with_rubbish(std::move(bytes), fate_.rubbish, choices);
    if (fate_.percent_dropped > 0)
        std::erase_if(bytes, [&](char) { return choices.happens(fate_.percent_dropped); });
    if (fate_.crlf)
        for (std::size_t at = 0; (at = bytes.find('\r', at)) != std::string::npos; at += 2)
            bytes.insert(at + 1, 1, '\n');
    if (!fate_.overtaken && fate_.twice_after < 0)
        return send(slot_, std::move(bytes), fate_.delay);
    held_ += bytes;
    if (!held_.ends_with('>'))
        return;
    send_whole(slot_, held_, fate_.delay);
    if (fate_.twice_after >= 0)
        send_whole(slot_, held_, fate_.delay + milliseconds(fate_.twice_after));
    held_.clear();
}

// Out of turn, but one at a time: duplicating every answer would soon flood the wire.
void far_end::send_whole(std::size_t slot, const std::string& reply, milliseconds delay) {
    milliseconds due = loop_.now() + WIRE_TIME + delay;
    while (!wholes_due_.insert(due).second)
        due += WIRE_TIME;
    after(due - loop_.now(), [this, slot, reply, due, on = connection_] {
        wholes_due_.erase(due);
        arrive(slot, reply, on);
    });
}

// Queued after what is on the wire.
void far_end::send(std::size_t slot, std::string bytes, milliseconds delay) {
    const milliseconds step = fate_.gap;
    const bool in_bytes = step.count() > 0 && bytes.size() <= LONGEST_TRICKLE;
    const std::size_t length = in_bytes ? 1 : std::max<std::size_t>(bytes.size(), 1);
    wire_free_ = std::max(wire_free_, loop_.now() + WIRE_TIME + delay);
    for (std::size_t at = 0; at < bytes.size(); at += length) {
        wire_free_ += at > 0 ? step : milliseconds(0);
        after(wire_free_ - loop_.now(), [this, slot, part = bytes.substr(at, length),
                                         on = connection_] { arrive(slot, part, on); });
    }
}

void far_end::arrive(std::size_t slot, const std::string& bytes, int connection) {
    if (connection != connection_)
        return;
    if (slot != arriving_ && mid_reply_) { // two answers overlap
        ledger_.damaged(arriving_);
        ledger_.damaged(slot);
    }
    arriving_ = slot;
    mid_reply_ = !bytes.ends_with('>');
    if (const auto who = client_.lock())
        who->take(slot, bytes);
}

void far_end::restart_adapter(bool banner) {
    trace_.note("!", banner ? "adapter restarts and says so" : "adapter restarts");
    ledger_.damaged(slot_);
    adapter_.emplace(car_, options_);
    adapter_->connection_opened(loop_.now());
    if (banner)
        chatter("\r\rELM327 v1.5\r\r>");
}

void far_end::fall_silent() {
    trace_.note("!", "far end falls silent");
    ledger_.damaged(slot_);
    client_.reset();
}

void far_end::hang_up() {
    trace_.note("!", "far end hangs up");
    const auto who = client_.lock();
    client_.reset();
    expect_link_timer(FIRST_COMMAND_OR_FAREWELL);
    if (who)
        who->closed();
}
