// Sampling as fast as the car answers (toolkit/sampling): the same run with fewer, larger and
// faster requests. The adapter is set up for it and restored afterwards.
#include "adapter_handshake.h"
#include "fast_sampler.h"
#include "globalVars.h"
#include "sampling_loop.h"
#include "text.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace {

// Longer than any adapter waits for the car, so that a late reply still meets its request.
constexpr run_loop::milliseconds PATIENCE{6000};

std::string capitals(std::string text) {
    std::ranges::transform(text, text.begin(), [](unsigned char c) { return std::toupper(c); });
    return text;
}

} // namespace

sampling_loop::~sampling_loop() {
    screen_.KS_delegate.doors().loop.cancel(timer_);
}

std::optional<int> sampling_loop::fast_level() const {
    return fast_ ? std::optional(fast_->level()) : std::nullopt;
}

void sampling_loop::begin_fast() {
    std::vector<std::string> pids;
    for (const sample_request& one : requests_)
        pids.push_back(capitals(one.pid));
    fast_ = std::make_unique<fast_sampler>(pids, g_bus_form == bus_form::can, *most_a_second_);
    // A change of screen stops nothing: whatever comes next begins with the handshake, and that
    // with a reset.
    screen_.KS_delegate.restore_later(fast_sampler::restoring_commands());
    fast_given_up_ = false;
    connected_2_KS_interface = KS_did_connect_2_car = false;
    ask_fast();
}

void sampling_loop::ask_fast() {
    if (fast_->finished()) {
        plain_pause_ = fast_->pause_afterwards();
        if (!fast_given_up_)
            listener_.fast_sampling_gains_nothing();
        restore_adapter();
        continue_plain_ = true;
        return;
    }
    const fast_sampler::question asked = fast_->next(screen_.KS_delegate.doors().loop.now());
    send_after(asked.pause, [this, command = asked.command] { send_fast(command); });
}

void sampling_loop::send_after(run_loop::milliseconds pause, std::function<void()> send) {
    if (pause.count() <= 0) {
        send();
        return;
    }
    stop_timer(); // a second reply in one piece asks once more
    pausing_ = true;
    timer_ = screen_.KS_delegate.doors().loop.after(pause, [this, send = std::move(send)] {
        pausing_ = false;
        timer_ = 0;
        send();
    });
}

void sampling_loop::send_fast(const std::string& command) {
    run_loop& loop = screen_.KS_delegate.doors().loop;
    fast_->sent(loop.now());
    stop_timer();
    send_command(command, FAST_REPLY);
    timer_ = loop.after(PATIENCE, [this] {
        timer_ = 0;
        fast_silent_ = true;
        screen_.KS_delegate.give_up_on_replies();
        send_command("", FAST_REPLY);
    });
}

void sampling_loop::send_command(const std::string& command, int next_step) {
    cur_cmd = std::string_view(command + "\r");
    next_step_idx = next_step;
    prep_and_send_cmd(cur_cmd, g_this_delta);
}

void sampling_loop::stop_timer() {
    screen_.KS_delegate.doors().loop.cancel(timer_);
    timer_ = 0;
    pausing_ = false;
}

void sampling_loop::take_fast_reply() {
    stop_timer();
    if (ended_by(odb_curReplyMsg))
        return;
    const auto now = screen_.KS_delegate.doors().loop.now();
    const fast_sampler::outcome out = std::exchange(fast_silent_, false)
                                          ? fast_->timed_out(now)
                                          : fast_->take(odb_curReplyMsg, now);
    for (const fast_sampler::sample& one : out.samples)
        for (const sample_request& asked : requests_)
            if (capitals(asked.pid) == one.pid)
                file_reply(asked, one.reply, one.reply);
    if (out.ends_cycle)
        end_cycle();
    fast_given_up_ = fast_given_up_ || out.change == fast_sampler::news::given_up;
    if (out.change != fast_sampler::news::none)
        listener_.fast_sampling_reduced(out.change == fast_sampler::news::given_up);
    if (out.answer_is_missing) {
        screen_.KS_delegate.replies().answer_is_missing();
        screen_.when_adapter_is_free(STRAGGLER_BOUND, [this](bool) { ask_fast(); });
    } else {
        ask_fast(); // before writing and notifying, which take time
    }
    if (out.ends_cycle)
        complete_cycle();
}

void sampling_loop::restore_adapter() {
    stop_timer();
    fast_.reset();
    next_step_idx = NOTHING;
    screen_.KS_delegate.restore_adapter([this](bool well) { adapter_restored(well); });
}

void sampling_loop::adapter_restored(bool well) {
    if (well)
        connected_2_KS_interface = KS_did_connect_2_car = true;
    if (std::exchange(continue_plain_, false))
        ask(requests_.front());
}
