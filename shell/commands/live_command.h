// `kestrom live`: runs the live-data screen without a display and prints one line of values for each
// cycle as it completes. Owned by command_runner.
#pragma once

#include "command_line.h"
#include "mac_toolies.h"
#include "run_loop.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

class actions;
class Ks_lite_delegate;

class live_command {
  public:
    // `done` is told when the asked number of cycles or seconds is over.
    live_command(const cli_request& asked, Ks_lite_delegate& delegate, std::function<void()> done);
    ~live_command();

    void start();
    // The run has ended, by itself or by what was asked.
    bool over() const;
    // The run is over, and the adapter is not yet as it was.
    bool puts_adapter_back() const;
    // At least one cycle was completed, and the run ended as asked.
    bool succeeded() const;
    // Neither a number of cycles nor a time was asked for.
    bool has_no_end() const { return asked_.cycles == 0 && asked_.seconds <= 0; }
    bool sampled() const;
    // Why the run, or its log, ended early; empty when it did not.
    std::string what_went_wrong() const;
    // Stops a run that still goes on and prints the summary.
    void finish();

  private:
    bool choose_parameters();
    void begin_run();
    void begin_sampling();
    void tell_of_waiting();
    void print_header();
    void print_cycle(const std::vector<translated>& values);
    void show_cycles();
    void print_summary() const;
    double seconds() const; // of sampling, up to ended_

    const cli_request& asked_;
    Ks_lite_delegate& delegate_;
    std::function<void()> done_;
    actions* screen_ = nullptr;
    std::optional<run_loop::milliseconds> sampling_since_; // its first request
    run_loop::milliseconds ended_{0};
    run_loop::milliseconds progress_shown_{0};
    run_loop::timer_id limit_ = 0, begin_ = 0, next_look_ = 0;
    std::string refused_; // why no run began
    run_loop::milliseconds told_waiting_since_{0};
    bool finished_as_asked_ = false;
    bool finished_ = false;
    std::vector<std::string> header_of_;
};
