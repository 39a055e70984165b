// The door to modal message boxes. The window shows them, the command line prints them, tests
// script their answers. Owned by the start-up code.
#pragma once

#include "run_loop.h"

#include <string>
#include <vector>

enum class alert_style { warning = 0, informational = 1, critical = 2 };

struct alert_request {
    std::string message;                    // the sentence in bold; plain text
    std::string informative{};              // further text; plain text
    std::string title{};                    // window title; empty: the program's name
    std::vector<std::string> buttons{"OK"}; // the first is the default
    alert_style style = alert_style::warning;
    bool is_help = false; // shown as help, whatever its style
};

class alerts {
  public:
    explicit alerts(run_loop& loop) : loop_(loop) {}
    virtual ~alerts() = default;

    // Shows the alert and returns the index of the button chosen once it is dismissed; dismissing
    // without choosing counts as the last button. Nothing is delivered by the run loop meanwhile.
    int show(const alert_request& request) {
        const modal_hold hold(loop_);
        return run_modal(request);
    }

    virtual void beep() = 0;

  protected:
    virtual int run_modal(const alert_request& request) = 0;

  private:
    run_loop& loop_;
};
