// Alerts for the command line: printed to standard error, remembered, answered with the first button.
#pragma once

#include "alerts.h"

#include <cstdio>
#include <string>
#include <vector>

class console_alerts final : public alerts {
  public:
    using alerts::alerts;

    void beep() override {}
    const std::vector<std::string>& messages() const { return messages_; }
    // The same alert over and over: nobody is there to leave the screen.
    bool endless() const { return repeated_ >= MOST_REPEATED; }

  protected:
    int run_modal(const alert_request& request) override {
        std::string text = request.title.empty() ? request.message : request.title + ": " + request.message;
        if (!request.informative.empty())
            text += "\n" + request.informative;
        repeated_ = !messages_.empty() && messages_.back() == text ? repeated_ + 1 : 1;
        std::string printed = text; // an adapter's bytes must not drive the terminal
        for (char& c : printed)
            if (c == '\r')
                c = '\n';
            else if (static_cast<unsigned char>(c) < 0x20 && c != '\n' && c != '\t')
                c = ' ';
        std::fprintf(stderr, "%s\n", printed.c_str());
        messages_.push_back(std::move(text));
        return 0;
    }

  private:
    static constexpr int MOST_REPEATED = 10;
    std::vector<std::string> messages_;
    int repeated_ = 0;
};
