// Alerts for the command line: printed to standard error, remembered, answered with the first
// button. Questions are not printed: --yes has answered them.
#pragma once

#include "alerts.h"
#include "display_text.h"
#include "progress_line.h"

#include <cstdio>
#include <functional>
#include <string>
#include <vector>

class console_alerts final : public alerts {
  public:
    using alerts::alerts;

    void beep() override {}
    const std::vector<std::string>& messages() const { return messages_; }
    // The last message printed; empty if none.
    const std::string& last_printed() const { return last_printed_; }
    // The same alert again and again: there is no user to leave the screen.
    bool endless() const { return repeated_ >= MOST_REPEATED; }
    // Whether the command itself will print that message.
    std::function<bool(const std::string&)> is_result;

  protected:
    int run_modal(const alert_request& request) override {
        repeated_ = !messages_.empty() && messages_.back() == request.message ? repeated_ + 1 : 1;
        messages_.push_back(request.message);
        if (request.buttons.size() > 1 || (is_result && is_result(request.message)))
            return 0;
        last_printed_ = request.message;
        std::string printed = request.message;
        if (!request.informative.empty())
            printed += "\n" + request.informative;
        clear_progress();
        std::fprintf(stderr, "%s\n", printable(printed).c_str());
        return 0;
    }

  private:
    static constexpr int MOST_REPEATED = 10;
    std::vector<std::string> messages_;
    std::string last_printed_;
    int repeated_ = 0;
};
