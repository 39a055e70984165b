#include "command_runner.h"

#include "console_alerts.h"
#include "display_text.h"
#include "Ks_lite_delegate.h"
#include "progress_line.h"

#include <algorithm>
#include <cstdio>

namespace {
constexpr double DEFAULT_BOUND_SECONDS = 60;
constexpr double LONGEST_BOUND_MS = 2e9;
constexpr int TIDYING_BOUND_MS = 1000;
} // namespace

command_runner::command_runner(const cli_request& asked, Ks_lite_delegate& delegate,
                               console_alerts& messages)
    : asked_(asked), delegate_(delegate), messages_(messages),
      task_(find_command(asked.command)->begin({asked, delegate, messages, [this] { finish(); }})) {
    messages_.is_result = [this](const std::string& message) { return task_->is_result(message); };
    delegate_.status_shown = [this](const std::string& text) { take_status(text); };
    delegate_.doors().loop.delivered = [this] { look(); };
    bound_.setSingleShot(true);
    connect(&bound_, &QTimer::timeout, this, [this] { end(false, "the time limit has passed"); });
}

command_runner::~command_runner() {
    messages_.is_result = nullptr;
    delegate_.status_shown = nullptr;
    delegate_.doors().loop.delivered = nullptr;
}

void command_runner::start(std::function<void(int)> done) {
    done_ = std::move(done);
    if (asked_.timeout_seconds || !task_->has_no_bound())
        bound_.start(static_cast<int>(std::min(
            asked_.timeout_seconds.value_or(DEFAULT_BOUND_SECONDS) * 1000, LONGEST_BOUND_MS)));
    task_->start();
    begun_ = true;
}

void command_runner::take_status(const std::string& text) {
    if (text.empty())
        return;
    if (!task_->tells_progress())
        show_progress(text);
    if (task_->has_no_bound() && !told_.statuses.empty()) // it may last a day
        told_.statuses.back() = text;
    else
        told_.statuses.push_back(text);
}

void command_runner::look() {
    if (begun_ && !ended_ && (task_->over() || messages_.endless()))
        finish();
    else if (leaves_with_ && !task_->tidies_up())
        leave(*leaves_with_);
}

// When the adapter is as it was, at the latest after a second.
void command_runner::leave(int exit_status) {
    if (!task_->tidies_up()) {
        leaves_with_.reset();
        bound_.stop();
        done_(exit_status);
    } else if (!leaves_with_) {
        leaves_with_ = exit_status;
        bound_.callOnTimeout([this] { done_(*leaves_with_); });
        bound_.start(TIDYING_BOUND_MS);
    }
}

void command_runner::finish() {
    std::string why = task_->what_went_wrong();
    // A failure that was only told in a message box leaves an older text on the status line.
    if (why.empty())
        why = messages_.last_printed();
    if (why.empty() && !told_.statuses.empty())
        why = told_.statuses.back();
    end(task_->succeeded(), why);
}

void command_runner::interrupt() {
    end(task_->may_be_interrupted(), "interrupted");
}

void command_runner::end(bool succeeded, const std::string& why) {
    if (ended_)
        return;
    ended_ = true;
    bound_.stop();
    clear_progress();
    told_.messages = messages_.messages();
    task_->print(succeeded, told_);
    if (output_lost()) {
        leave(1);
        return;
    }
    if (!succeeded && !why.empty() && why == messages_.last_printed()) // it has just been read
        std::fprintf(stderr, "kestrom: %s failed\n", asked_.command.c_str());
    else if (!succeeded)
        std::fprintf(stderr, "kestrom: %s failed: %s\n", asked_.command.c_str(),
                     printable(why).c_str());
    leave(succeeded ? 0 : 1);
}
