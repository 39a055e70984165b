#include "command_runner.h"

#include "console_alerts.h"
#include "expertCtrlr.h"
#include "globalVars.h"
#include "Ks_lite_delegate.h"
#include "live_command.h"
#include "pids_command.h"
#include "progress_line.h"
#include "readCodes.h"
#include "reply_accumulator.h"
#include "report_printer.h"
#include "text.h"
#include "unread_text.h"

#include <cstdio>
#include <unistd.h>

namespace {
constexpr int LOOK_EVERY_MS = 5;
constexpr int MOST_LOOKS_AT_LEAVING = 200; // a second
constexpr double DEFAULT_BOUND_SECONDS = 60;
} // namespace

command_runner::command_runner(const cli_request& asked, Ks_lite_delegate& delegate,
                               console_alerts& messages)
    : asked_(asked), delegate_(delegate), messages_(messages) {
    delegate_.status_shown = [this](const std::string& text) {
        if (text.empty())
            return;
        if (!live_ || !live_->sampled()) // cycles tell more then
            show_progress(text);
        if (live_ && !statuses_.empty()) // a run may last a day: only the last one counts
            statuses_.back() = text;
        else
            statuses_.push_back(text);
    };
    connect(&look_timer_, &QTimer::timeout, this, [this] { look(); });
    bound_.setSingleShot(true);
    connect(&bound_, &QTimer::timeout, this, [this] { end(false, "the time limit has passed"); });
}

command_runner::~command_runner() = default;

void command_runner::start(std::function<void(int)> done) {
    done_ = std::move(done);
    if (asked_.timeout_seconds || asked_.command != "live")
        bound_.start(static_cast<int>(
            std::min(asked_.timeout_seconds.value_or(DEFAULT_BOUND_SECONDS) * 1000, 2e9)));
    look_timer_.start(LOOK_EVERY_MS);
    if (asked_.command == "send")
        start_send();
    else if (asked_.command == "live")
        start_live();
    else if (asked_.command == "pids")
        start_pids();
    else
        start_codes();
}

void command_runner::start_codes() {
    delegate_.do_read_codes();
    codes_ = static_cast<readCodes*>(delegate_.current_screen());
    if (asked_.command == "clear")
        codes_->clearCodes_clicked();
    else
        codes_->readCodes_clicked();
}

void command_runner::start_send() {
    delegate_.do_expert();
    expert_ = static_cast<expertCtrlr*>(delegate_.current_screen());
    expert_->received = [this](const std::string& chunk) { take_reply(chunk); };
    // The console sends once before a Bluetooth channel is open and again after: that first
    // command's time-out would end a later one.
    channel_awaited_ = g_connect_with == KS_USE_BT;
    if (channel_awaited_)
        delegate_.openInterfaceConnection();
    else
        next_send();
}

void command_runner::look_for_channel() {
    if (connected_2_BT_interface) {
        channel_awaited_ = false;
        next_send();
    } else if (!delegate_.anything_outstanding()) {
        const std::string& told = messages_.last_printed();
        end(false, told.empty() ? "no Bluetooth connection" : told);
    }
}

void command_runner::start_live() {
    live_ = std::make_unique<live_command>(asked_, delegate_, [this] { finish_live(); });
    live_->start();
}

void command_runner::start_pids() {
    pids_ = std::make_unique<pids_command>(delegate_);
    pids_->start();
}

void command_runner::next_send() {
    reply_.clear();
    reply_complete_ = false;
    expert_->set_command(asked_.arguments[sent_++]);
    expert_->clickSend();
}

void command_runner::take_reply(const std::string& chunk) {
    reply_ += chunk;
    if (reply_.size() > LONGEST_REPLY)
        end(false, "no prompt within 64 KiB");
    if (const auto whole = find_reply(reply_)) {
        reply_ = reply_.substr(whole->begin, whole->end - whole->begin);
        reply_complete_ = true;
    }
}

bool command_runner::over() const {
    if (codes_ && !codes_->task_running())
        return true;
    if (live_)
        return live_->over() || messages_.endless();
    if (pids_)
        return pids_->over() || messages_.endless();
    return reply_complete_ || messages_.endless() || !delegate_.anything_outstanding();
}

void command_runner::look() {
    // An alert that is up is part of the task.
    if (delegate_.doors().loop.held())
        return;
    if (channel_awaited_) {
        look_for_channel();
        return;
    }
    if (!over())
        return;
    if (codes_) {
        finish_codes();
        return;
    }
    if (live_) {
        finish_live();
        return;
    }
    if (pids_) {
        end_with_told(pids_->succeeded());
        return;
    }
    if (!reply_complete_) {
        end(false, "no reply to '" + asked_.arguments[sent_ - 1] + "'" +
                       (statuses_.empty() ? "" : ": " + statuses_.back()));
        return;
    }
    replies_.push_back(reply_);
    if (!asked_.json) {
        clear_progress();
        print_raw_reply(reply_);
    }
    if (sent_ < asked_.arguments.size())
        next_send();
    else
        end(true, "");
}

void command_runner::finish_codes() {
    end_with_told(codes_->succeeded());
}

void command_runner::end_with_told(bool succeeded) {
    // A failure that was only told in a message box leaves an older text on the status line.
    std::string why = messages_.last_printed();
    if (why.empty() && codes_)
        why = unread_causes(delegate_.doors().resources, codes_->report().unread);
    if (why.empty() && !statuses_.empty())
        why = statuses_.back();
    end(succeeded, why);
}

void command_runner::finish_live() {
    std::string why = live_->what_went_wrong();
    const bool logged = why.empty();
    if (logged && !messages_.last_printed().empty())
        why = messages_.last_printed();
    else if (logged && !statuses_.empty())
        why = statuses_.back();
    end(live_->succeeded() && logged, why);
}

void command_runner::interrupt() {
    // A run without an end is ended so.
    end(live_ && live_->has_no_end() && live_->sampled(), "interrupted");
}

void command_runner::end(bool succeeded, const std::string& why) {
    look_timer_.stop();
    bound_.stop();
    clear_progress();
    if (live_) {
        live_->finish();
    } else if (asked_.json) {
        const conversation_log log{pids_    ? statuses_.empty() ? "" : statuses_.back()
                                      : codes_ ? codes_->status()
                                            : expert_->status(),
                                   messages_.messages(), statuses_};
        if (pids_)
            pids_->print_json(log);
        else if (codes_)
            print_codes_json(codes_->report(), log);
        else
            print_replies_json(asked_.arguments, replies_, log);
    } else if (pids_ && succeeded) {
        pids_->print_text();
    } else if (const codes_report report = codes_ ? codes_->report() : codes_report{};
               report.codes_told) {
        print_codes_text(report);
        if (succeeded && report.count &&
            static_cast<std::size_t>(*report.count) != report.codes.size())
            std::fprintf(stderr, "kestrom: %s\n", printable(codes_->status()).c_str());
    } else if (codes_ && succeeded) {
        std::printf("%s\n", codes_->status().c_str());
    }
    if (output_lost()) {
        leave_when_adapter_is_back(1);
        return;
    }
    if (!succeeded && !why.empty() && why == messages_.last_printed()) // it has just been read
        std::fprintf(stderr, "kestrom: %s failed\n", asked_.command.c_str());
    else if (!succeeded)
        std::fprintf(stderr, "kestrom: %s failed: %s\n", asked_.command.c_str(),
                     printable(why).c_str());
    leave_when_adapter_is_back(succeeded ? 0 : 1);
}

// After a fast run the adapter is put back first, when it does as it is told within a second.
void command_runner::leave_when_adapter_is_back(int exit_status) {
    if (!live_ || !live_->puts_adapter_back()) {
        done_(exit_status);
        return;
    }
    connect(&leave_timer_, &QTimer::timeout, this, [this, exit_status, looks = 0]() mutable {
        if (live_->puts_adapter_back() && ++looks < MOST_LOOKS_AT_LEAVING)
            return;
        leave_timer_.stop();
        done_(exit_status);
    });
    leave_timer_.start(LOOK_EVERY_MS);
}
