// Alerts that record what was asked and answer from a script (default: the first button).
#pragma once

#include "alerts.h"

#include <deque>
#include <functional>
#include <string>
#include <vector>

class scripted_alerts final : public alerts {
  public:
    using alerts::alerts;

    void beep() override { ++beeps; }

    std::vector<alert_request> shown;
    std::deque<int> answers;
    int beeps = 0;
    // Runs while an alert is open, e.g. to let time pass under it.
    std::function<void(const alert_request&)> while_open;

    std::vector<std::string> messages() const {
        std::vector<std::string> texts;
        for (const alert_request& request : shown)
            texts.push_back(request.message);
        return texts;
    }

  protected:
    int run_modal(const alert_request& request) override {
        shown.push_back(request);
        if (while_open)
            while_open(request);
        if (answers.empty())
            return 0;
        const int answer = answers.front();
        answers.pop_front();
        return answer;
    }
};
