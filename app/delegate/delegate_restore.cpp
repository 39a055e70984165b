// Restores the adapter's settings after a task that changed them, by the link's own commands. A
// screen's command interrupts this; the commands are kept until all have succeeded or the adapter
// has been reset.
#include "Ks_lite_delegate.h"
#include "text.h"

#include <utility>

namespace {

constexpr std::chrono::seconds BOUND{3}; // for each reply, and for one still owed
constexpr int MOST_TRIES = 3;            // of a command that gets some other answer

bool accepted(std::string_view reply) {
    return contains(reply, "OK") || contains(reply, "?"); // an unknown setting was never changed
}

} // namespace

void Ks_lite_delegate::restore_adapter(std::function<void(bool well)> done) {
    when_restored_.push_back(std::move(done));
    if (restoring_adapter())
        return;
    restore_next_ = 0;
    restore_tries_ = 0;
    restore_ok_ = true;
    if (ledger_.owes())
        limit_restore([this] { send_restore_command(); });
    else
        send_restore_command();
}

void Ks_lite_delegate::limit_restore(std::function<void()> in_vain) {
    doors_.loop.cancel(restore_limit_);
    restore_limit_ = doors_.loop.after(BOUND, [this, in_vain = std::move(in_vain)] {
        give_up_on_replies();
        in_vain();
    });
}

void Ks_lite_delegate::send_restore_command() {
    ++restore_tries_;
    restore_reply_.clear();
    limit_restore([this] { restore_ended(false); });
    send_over_link(std::string(restore_commands_[restore_next_]) + "\r");
}

void Ks_lite_delegate::take_restore_reply(const std::string& text) {
    if (!restoring_adapter())
        return;
    restore_reply_ += text;
    if (ledger_.owes())
        return;
    if (restore_tries_ == 0) { // that was the owed reply
        send_restore_command();
        return;
    }
    const bool taken = accepted(restore_reply_);
    if (!taken && restore_tries_ < MOST_TRIES) {
        send_restore_command();
        return;
    }
    restore_ok_ = restore_ok_ && taken;
    restore_tries_ = 0;
    if (++restore_next_ < restore_commands_.size())
        send_restore_command();
    else
        restore_ended(restore_ok_);
}

void Ks_lite_delegate::restore_ended(bool well) {
    const auto waiting = std::exchange(when_restored_, {});
    stop_restore();
    if (well)
        restore_commands_ = {};
    for (const auto& done : waiting)
        done(well);
}

void Ks_lite_delegate::stop_restore() {
    doors_.loop.cancel(restore_limit_);
    restore_limit_ = 0;
    when_restored_.clear();
}

void Ks_lite_delegate::forget_restore() {
    restore_commands_ = {};
    restore_ended(false);
}

bool Ks_lite_delegate::restore_adapter_before(std::function<void()> then) {
    if (mainViewController && !restoring_adapter() && adapter_changed())
        mainViewController->leave_cur_op_gracefully("");
    if (!adapter_changed())
        return false;
    restore_adapter([this, then = std::move(then)](bool) {
        forget_restore(); // whatever the result
        then();
    });
    return true;
}
