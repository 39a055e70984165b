#include "command_runner.h"

#include "console_alerts.h"
#include "display_text.h"
#include "Ks_lite_delegate.h"
#include "progress_line.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace {
constexpr double DEFAULT_BOUND_SECONDS = 60;
constexpr double LONGEST_BOUND_MS = 2e9;
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
    if (asked_.timeout_seconds || !task_->has_no_time_limit())
        bound_.start(static_cast<int>(std::min(
            asked_.timeout_seconds.value_or(DEFAULT_BOUND_SECONDS) * 1000, LONGEST_BOUND_MS)));
    task_->start();
    begun_ = true;
}

void command_runner::take_status(const std::string& text) {
    if (text.empty())
        return;
    if (!task_->prints_progress())
        show_progress(text);
    if (task_->has_no_time_limit() && !output_.statuses.empty()) // it may last a day
        output_.statuses.back() = text;
    else
        output_.statuses.push_back(text);
}

void command_runner::look() {
    if (status_ && !delegate_.restoring_adapter())
        leave();
    else if (begun_ && !ended_ && (task_->over() || messages_.endless()))
        finish();
}

void command_runner::finish() {
    std::string why = task_->what_went_wrong();
    // A failure reported only in a message box leaves an older text on the status line.
    if (why.empty())
        why = messages_.last_printed();
    if (why.empty() && !output_.statuses.empty())
        why = output_.statuses.back();
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
    output_.messages = messages_.messages();
    task_->print(succeeded, output_);
    status_ = succeeded && !output_lost() ? 0 : 1;
    if (!succeeded && !output_lost()) {
        const bool just_read = !why.empty() && why == messages_.last_printed();
        std::fprintf(stderr, "kestrom: %s failed%s%s\n", asked_.command.c_str(),
                     just_read ? "" : ": ", just_read ? "" : printable(why).c_str());
    }
    look();
}

void command_runner::leave() {
    delegate_.forget_restore(); // whatever the result
    if (const auto done = std::exchange(done_, nullptr))
        done(*status_);
}
