// `kestrom pids`: what parameters the car supports. Owned by command_runner.
#pragma once

#include "report_printer.h"

class actions;
class Ks_lite_delegate;

class pids_command {
  public:
    explicit pids_command(Ks_lite_delegate& delegate) : delegate_(delegate) {}

    void start();
    bool over() const;
    bool succeeded() const;
    void print_text() const;
    void print_json(const conversation_log& log) const;

  private:
    Ks_lite_delegate& delegate_;
    actions* screen_ = nullptr;
};
