// What a task changed of the adapter is put back: by commands of the link's own, beside whatever
// the screen does. A screen's command ends that; until it is done, or the adapter was reset, what
// is to be put back stays known.
#include "Ks_lite_delegate.h"
#include "text.h"

#include <utility>

namespace {

constexpr std::chrono::seconds BOUND{3}; // of each reply, and of one that is still owed
constexpr int TIMES_SAID = 3;            // to an adapter that answers something else

bool took_it(std::string_view reply) {
    return contains(reply, "OK") || contains(reply, "?"); // what it does not know, it does not do
}

} // namespace

void Ks_lite_delegate::put_adapter_back(std::function<void(bool well)> done) {
    when_put_back_.push_back(std::move(done));
    if (puts_adapter_back())
        return;
    put_back_next_ = 0;
    put_back_said_ = 0;
    put_back_well_ = true;
    if (ledger_.owes())
        bound_put_back([this] { say_put_back(); });
    else
        say_put_back();
}

void Ks_lite_delegate::bound_put_back(std::function<void()> in_vain) {
    doors_.loop.cancel(put_back_bound_);
    put_back_bound_ = doors_.loop.after(BOUND, [this, in_vain = std::move(in_vain)] {
        give_up_on_replies();
        in_vain();
    });
}

void Ks_lite_delegate::say_put_back() {
    ++put_back_said_;
    put_back_reply_.clear();
    bound_put_back([this] { put_back_ended(false); });
    send_over_link(std::string(to_put_back_[put_back_next_]) + "\r");
}

// A chunk has come, and the screen has seen it.
void Ks_lite_delegate::take_put_back(const std::string& text) {
    if (!puts_adapter_back())
        return;
    put_back_reply_ += text;
    if (ledger_.owes())
        return;
    if (put_back_said_ == 0) { // that was what the adapter owed
        say_put_back();
        return;
    }
    const bool taken = took_it(put_back_reply_);
    if (!taken && put_back_said_ < TIMES_SAID) {
        say_put_back();
        return;
    }
    put_back_well_ = put_back_well_ && taken;
    put_back_said_ = 0;
    if (++put_back_next_ < to_put_back_.size())
        say_put_back();
    else
        put_back_ended(put_back_well_);
}

void Ks_lite_delegate::put_back_ended(bool well) {
    const auto told = std::exchange(when_put_back_, {});
    stop_put_back();
    if (well)
        to_put_back_ = {};
    for (const auto& done : told)
        done(well);
}

void Ks_lite_delegate::stop_put_back() {
    doors_.loop.cancel(put_back_bound_);
    put_back_bound_ = 0;
    when_put_back_.clear();
}

void Ks_lite_delegate::forget_put_back() {
    to_put_back_ = {};
    put_back_ended(false);
}

bool Ks_lite_delegate::puts_adapter_back_first(std::function<void()> then) {
    if (mainViewController && !puts_adapter_back() && adapter_changed())
        mainViewController->leave_cur_op_gracefully("");
    if (!adapter_changed())
        return false;
    put_adapter_back([this, then = std::move(then)](bool) {
        forget_put_back(); // well or not: it was tried
        then();
    });
    return true;
}
