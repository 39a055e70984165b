#include "car_task.h"
#include "command_functions.h"
#include "console_alerts.h"
#include "display_text.h"
#include "expertCtrlr.h"
#include "Ks_lite_delegate.h"
#include "progress_line.h"
#include "reply_accumulator.h"
#include "transports.h"

#include <algorithm>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <unistd.h>

namespace {

class send_command final : public car_task {
  public:
    using car_task::car_task;

    void start() override {
        delegate_.do_expert();
        screen_ = static_cast<expertCtrlr*>(delegate_.current_screen());
        screen_->received = [this](const std::string& chunk) { take_reply(chunk); };
        // The console sends once before a Bluetooth channel is open and again after: that first
        // command's time-out would end a later one.
        channel_awaited_ = chosen_transport().sends_while_opening;
        if (channel_awaited_)
            delegate_.openInterfaceConnection();
        else
            next_send();
    }

    bool over() override {
        if (channel_awaited_ && *chosen_transport().connected) {
            channel_awaited_ = false;
            next_send();
        }
        if (!reply_complete_)
            return !delegate_.anything_outstanding();
        keep_reply();
        if (succeeded())
            return true;
        next_send();
        return false;
    }

    bool succeeded() const override { return replies_.size() == asked_.arguments.size(); }

    std::string what_went_wrong() const override {
        if (channel_awaited_)
            return messages_.last_printed().empty() ? "no connection" : messages_.last_printed();
        return "no reply to '" + asked_.arguments[sent_ - 1] + "'" +
               (too_long_                   ? ": no prompt within 64 KiB"
                : screen_->status().empty() ? ""
                                            : ": " + screen_->status());
    }

    void print(bool, const conversation_log& log) override {
        if (!asked_.json)
            return; // each was printed on arrival
        ordered_json list = ordered_json::array();
        for (std::size_t i = 0; i < replies_.size(); ++i)
            list.push_back({{"command", asked_.arguments[i]}, {"reply", replies_[i]}});
        print_conversation({{"replies", list}}, screen_->status(), log);
    }

  private:
    void next_send() {
        reply_.clear();
        reply_complete_ = false;
        screen_->set_command(asked_.arguments[sent_++]);
        screen_->clickSend();
    }

    void take_reply(const std::string& chunk) {
        reply_ += chunk;
        too_long_ = reply_.size() > LONGEST_REPLY;
        if (too_long_)
            finish_();
        if (const auto whole = find_reply(reply_)) {
            reply_ = reply_.substr(whole->begin, whole->end - whole->begin);
            reply_complete_ = true;
        }
    }

    void keep_reply() {
        reply_complete_ = false;
        replies_.push_back(reply_);
        if (asked_.json)
            return;
        clear_progress();
        // Lines for a person; every byte for a program.
        std::string text = isatty(STDOUT_FILENO) ? printable(reply_) : reply_;
        text += '\n';
        std::fwrite(text.data(), 1, text.size(), stdout);
    }

    expertCtrlr* screen_ = nullptr;
    bool channel_awaited_ = false;
    std::size_t sent_ = 0;
    std::string reply_;
    bool reply_complete_ = false;
    bool too_long_ = false;
    std::vector<std::string> replies_;
};

bool plain_ascii(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return c >= ' ' && c <= '~'; });
}

} // namespace

std::unique_ptr<car_task> begin_send(const car_task_doors& doors) {
    return std::make_unique<send_command>(doors);
}

void check_send(const cli_request& asked) {
    for (const std::string& text : asked.arguments)
        if (text.empty() || text.size() > LONGEST_CONSOLE_COMMAND || !plain_ascii(text))
            throw usage_error("a command is 1 to 38 plain characters: '" + text + "'");
}
