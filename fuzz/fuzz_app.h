// The application without a window, a network or real time, for targets that feed replies to a
// running task. One for all inputs.
#pragma once

#include "app_harness.h"

#include <QApplication>

class fuzz_app {
  public:
    explicit fuzz_app(const std::function<void(user_defaults&)>& prepare) : app(prepare) {}

    // Nothing is left of an earlier input; the adapter is initialised.
    void begin() {
        app.loop.advance(std::chrono::seconds(10)); // until no reply is owed
        app.messages.shown.clear();
        app.statuses.clear();
        if (!app.wires.empty())
            app.wire().written.clear();
        connected_2_KS_interface = true;
        g_retries = 0;
    }
    // Presses the button of a task, which sends its first command.
    void press(const char* button) {
        app.press(button);
        if (!connected_2_WIFI_interface)
            app.connect();
        app.loop.settle();
    }

  private:
    int argc_ = 1;
    char name_[5] = "fuzz";
    char* argv_[2] = {name_, nullptr};
    bool offscreen_ = qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication qt_{argc_, argv_};

  public:
    app_harness app;
};
