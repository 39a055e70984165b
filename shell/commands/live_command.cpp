#include "actions.h"
#include "car_task.h"
#include "command_functions.h"
#include "constantes.h"
#include "csv_row.h"
#include "display_text.h"
#include "fixed_decimals.h"
#include "Ks_lite_delegate.h"
#include "number_text.h"
#include "parameters.h"
#include "progress_line.h"
#include "text.h"
#include "user_defaults.h"

#include <QTime>

#include <cmath>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <optional>
#include <unistd.h>

namespace {

constexpr int TIME_DECIMALS = 3;
constexpr run_loop::milliseconds PROGRESS_EVERY{200};
constexpr run_loop::milliseconds LOOK_EVERY{500};

int task_of(const std::string& run) {
    if (run == "fuel")
        return TASK_FUEL_ECONOMY;
    if (run == "o2")
        return TASK_O2_SAMPLING;
    return run == "boost" ? TASK_BOOST : TASK_RUN_LOG;
}

double rounded(double value, int decimals) {
    const double places = std::pow(10, decimals);
    return std::round(value * places) / places;
}

class live_command final : public car_task {
  public:
    using car_task::car_task;
    ~live_command() override;

    void start() override;
    bool over() override { return begin_ == 0 && !screen_->awaits_adapter(); }
    // At least one cycle was completed, the run ended as asked, and nothing went wrong.
    bool succeeded() const override;
    std::string what_went_wrong() const override;
    bool may_be_interrupted() const override {
        return asked_.cycles == 0 && asked_.seconds <= 0 && sampled();
    }
    bool has_no_time_limit() const override { return true; }
    bool prints_progress() const override { return sampled(); }
    void print(bool succeeded, const conversation_log& log) override;

  private:
    bool choose_parameters();
    void begin_run();
    void begin_sampling();
    void end_as_asked();
    void tell_of_waiting();
    void print_header();
    void print_cycle(const std::vector<translated>& values);
    void show_cycles();
    void print_summary() const;
    bool sampled() const { return screen_ && screen_->cycles() > 0; }
    double seconds() const; // of sampling, up to ended_
    double rate() const;

    actions* screen_ = nullptr;
    std::optional<run_loop::milliseconds> sampling_since_; // its first request
    run_loop::milliseconds ended_{0};
    run_loop::milliseconds progress_shown_{0};
    run_loop::timer_id limit_ = 0, begin_ = 0, next_look_ = 0;
    std::string refused_; // why no run began
    run_loop::milliseconds reported_wait_since_{0};
    bool finished_as_asked_ = false;
    bool finished_ = false;
    std::vector<std::string> header_of_;
};

live_command::~live_command() {
    delegate_.doors().loop.cancel(limit_);
    delegate_.doors().loop.cancel(begin_);
    delegate_.doors().loop.cancel(next_look_);
}

void live_command::start() {
    delegate_.do_actions();
    screen_ = static_cast<actions*>(delegate_.current_screen());
    if (const int task = task_of(asked_.run); task != TASK_RUN_LOG)
        screen_->choose_run(task);
    screen_->sampling_begins = [this] { begin_sampling(); };
    screen_->cycle_completed = [this](const std::vector<translated>& values) {
        if (finished_)
            return;
        print_cycle(values);
        if (asked_.cycles != 0 && screen_->cycles() >= asked_.cycles)
            end_as_asked();
    };
    if (asked_.pids.empty() && !asked_.all_pids) {
        screen_->runLogs();
        return;
    }
    screen_->ask_what_car_supports([this] {
        // Not from within the callback that ends the scan.
        if (!finished_ && screen_->scan_completed())
            begin_ = delegate_.doors().loop.after(run_loop::milliseconds(0), [this] {
                begin_ = 0;
                begin_run();
            });
    });
}

void live_command::begin_run() {
    if (!choose_parameters()) {
        finish_();
        return;
    }
    screen_->rework_gui_objects(TASK_RUN_LOG);
    screen_->runLogs();
    tell_of_waiting();
}

// Once for each long wait, with the time of day at which it began.
void live_command::tell_of_waiting() {
    const auto now = delegate_.doors().loop.now();
    const auto since = delegate_.replies().stalled_since(now);
    const auto waited = now - since;
    if (since.count() != 0 && since != reported_wait_since_) {
        reported_wait_since_ = since;
        const std::string began = QTime::currentTime()
                                      .addMSecs(-static_cast<int>(waited.count()))
                                      .toString()
                                      .toStdString();
        clear_progress();
        std::fprintf(stderr, "kestrom: waiting for the adapter since %s\n", began.c_str());
    }
    next_look_ = delegate_.doors().loop.after(LOOK_EVERY, [this] { tell_of_waiting(); });
}

// Stores the parameters of the run in the settings; reports those left out.
bool live_command::choose_parameters() {
    const auto& known = screen_->car_parameters();
    if (!known) {
        refused_ = asked_.all_pids ? "the car did not report what it supports" : "";
        return refused_.empty(); // the requested parameters may be supported anyway
    }
    std::vector<std::string> wanted;
    std::string left_out;
    const auto consider = [&](unsigned pid, bool usable) {
        if (usable)
            wanted.push_back(pid_text(pid));
        else
            left_out += (left_out.empty() ? "" : ", ") + pid_text(pid);
    };
    for (const std::string& pid : asked_.pids) {
        const unsigned number = mac_toolies::convertStr2Byte(pid);
        consider(number, known->test(number));
    }
    for (unsigned pid = 0; asked_.all_pids && pid < known->size(); ++pid)
        if (known->test(pid))
            consider(pid, is_decoded(pid));
    if (!left_out.empty()) {
        clear_progress();
        std::fprintf(stderr, "kestrom: left out, %s: %s\n",
                     asked_.all_pids ? "not decoded" : "not supported by the car",
                     left_out.c_str());
    }
    if (wanted.empty())
        refused_ = "the car supports none of the parameters asked for";
    delegate_.doors().defaults.set_string_array(PIDS_ARRAY_KEY, wanted);
    return refused_.empty();
}

void live_command::begin_sampling() {
    sampling_since_ = delegate_.doors().loop.now();
    if (asked_.seconds > 0)
        limit_ = delegate_.doors().loop.after(
            run_loop::milliseconds(static_cast<std::int64_t>(asked_.seconds * 1000)),
            [this] { end_as_asked(); });
}

void live_command::end_as_asked() {
    finished_as_asked_ = true;
    finish_();
}

bool live_command::succeeded() const {
    return sampled() && finished_as_asked_ && what_went_wrong().empty();
}

std::string live_command::what_went_wrong() const {
    if (!refused_.empty())
        return refused_;
    if (!screen_->log_failure().empty())
        return screen_->log_failure();
    return finished_as_asked_ && screen_->cycles() == 0 ? "no cycle was completed" : "";
}

void live_command::print(bool, const conversation_log&) {
    ended_ = delegate_.doors().loop.now();
    delegate_.doors().loop.cancel(limit_);
    finished_ = true;
    if (screen_->running())
        screen_->runLogs();
    print_summary();
}

double live_command::seconds() const {
    return static_cast<double>((ended_ - sampling_since_.value_or(ended_)).count()) / 1000;
}

double live_command::rate() const {
    return seconds() > 0 ? static_cast<double>(screen_->counted()) / seconds() : 0;
}

void live_command::print_header() {
    header_of_ = screen_->pids();
    if (asked_.json)
        return;
    csv_row names;
    for (const std::string& pid : header_of_) {
        const std::string units = parameter_units(screen_->toolies, pid);
        names.add(parameter_name(screen_->toolies, pid) + " (" + std::string(trimmed(units)) + ")");
    }
    clear_progress();
    std::printf("%s\n", printable(names.text()).c_str());
}

void live_command::print_cycle(const std::vector<translated>& values) {
    if (header_of_ != screen_->pids())
        print_header();
    std::string line;
    if (asked_.json) {
        ended_ = delegate_.doors().loop.now();
        ordered_json by_pid = ordered_json::object();
        for (std::size_t i = 0; i < values.size(); ++i)
            by_pid[header_of_[i]] = json_number(values[i].value);
        line = json_line(
            {{"cycle", screen_->cycles()}, {"seconds", rounded(seconds(), 3)}, {"values", by_pid}});
    } else {
        csv_row row;
        for (const translated& one : values)
            row.add(number_text(one.value));
        line = row.text() + "\n";
    }
    show_cycles();
    std::fputs(line.c_str(), stdout);
    // A reader of the output sees each cycle as it completes.
    if (output_lost())
        finish_(); // the reader has gone, or output failed
}

// For a run whose lines go elsewhere: on a terminal they are progress enough.
void live_command::show_cycles() {
    static const bool lines_seen = isatty(STDOUT_FILENO) == 1;
    const auto now = delegate_.doors().loop.now();
    if (lines_seen)
        clear_progress();
    else if (screen_->cycles() == 1 || now - progress_shown_ >= PROGRESS_EVERY) {
        progress_shown_ = now;
        show_progress("Cycle " + std::to_string(screen_->cycles()) +
                      (asked_.cycles ? " of " + std::to_string(asked_.cycles) : "") + ", " +
                      std::to_string((now - *sampling_since_).count() / 1000) + " s");
    }
}

void live_command::print_summary() const {
    const std::string& log = screen_->log_path();
    if (asked_.json) {
        ordered_json summary = {{"cycles", screen_->cycles()},
                                {"requests", screen_->counted()},
                                {"seconds", rounded(seconds(), 3)},
                                {"requests_per_second", rounded(rate(), 1)},
                                {"log", log}};
        if (asked_.fast)
            summary["fast_level"] = screen_->fast_level().value_or(0);
        std::fputs(json_line(summary).c_str(), stdout);
        return;
    }
    if (output_lost())
        return;
    const char* const what = asked_.fast ? "values" : "requests";
    const std::string level = std::to_string(screen_->fast_level().value_or(0));
    std::fprintf(
        stderr, "%s cycles, %s %s in %s s: %s %s per second%s\n",
        std::to_string(screen_->cycles()).c_str(), std::to_string(screen_->counted()).c_str(), what,
        fixed_decimals(seconds(), TIME_DECIMALS).c_str(), fixed_decimals(rate(), 1).c_str(), what,
        asked_.fast ? (", " + screen_->localized("ui_fast_level_" + level)).c_str() : "");
    if (!log.empty())
        std::fprintf(stderr, "Log: %s\n", printable(log).c_str());
}

} // namespace

std::unique_ptr<car_task> begin_live(const car_task_doors& doors) {
    return std::make_unique<live_command>(doors);
}

void check_live(const cli_request& asked) {
    if ((!asked.pids.empty() || asked.all_pids) && asked.run != "log")
        throw usage_error(
            "--pids goes with --run log; the other runs have parameters of their own");
}
