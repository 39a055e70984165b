#include "live_command.h"

#include "actions.h"
#include "constantes.h"
#include "fixed_decimals.h"
#include "Ks_lite_delegate.h"
#include "parameters.h"
#include "progress_line.h"
#include "report_printer.h"
#include "text.h"
#include "user_defaults.h"

#include <QTime>

#include <charconv>
#include <cmath>
#include <cstdio>
#include <unistd.h>
#include <utility>

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

std::string number_text(double value, const char* unreadable) {
    if (!std::isfinite(value))
        return unreadable;
    char room[32];
    return {room, std::to_chars(room, room + sizeof room, value).ptr};
}

} // namespace

live_command::live_command(const cli_request& asked, Ks_lite_delegate& delegate,
                           std::function<void()> done)
    : asked_(asked), delegate_(delegate), done_(std::move(done)) {}

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
        if (asked_.cycles != 0 && screen_->cycles() >= asked_.cycles) {
            finished_as_asked_ = true;
            done_();
        }
    };
    if (asked_.pids.empty() && !asked_.all_pids) {
        screen_->runLogs();
        return;
    }
    screen_->ask_what_car_supports([this] {
        // Not from under the end of the asking.
        if (!finished_ && screen_->scan_completed())
            begin_ = delegate_.doors().loop.after(run_loop::milliseconds(0), [this] {
                begin_ = 0;
                begin_run();
            });
    });
}

void live_command::begin_run() {
    if (!choose_parameters()) {
        done_();
        return;
    }
    screen_->rework_gui_objects(TASK_RUN_LOG);
    screen_->runLogs();
    tell_of_waiting();
}

// Once for each wait that takes long, with the time of day at which it began.
void live_command::tell_of_waiting() {
    const auto now = delegate_.doors().loop.now();
    const auto since = delegate_.replies().stalled_since(now);
    const auto waited = now - since;
    if (since.count() != 0 && since != told_waiting_since_) {
        told_waiting_since_ = since;
        const std::string began = QTime::currentTime()
                                      .addMSecs(-static_cast<int>(waited.count()))
                                      .toString()
                                      .toStdString();
        clear_progress();
        std::fprintf(stderr, "kestrom: waiting for the adapter since %s\n", began.c_str());
    }
    next_look_ = delegate_.doors().loop.after(LOOK_EVERY, [this] { tell_of_waiting(); });
}

// Puts into the settings what the run asks for; tells what of the request is left out.
bool live_command::choose_parameters() {
    const auto& known = screen_->car_parameters();
    if (!known) {
        refused_ = asked_.all_pids ? "the car did not tell what it supports" : "";
        return refused_.empty(); // what was asked for may be there all the same
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
            run_loop::milliseconds(static_cast<std::int64_t>(asked_.seconds * 1000)), [this] {
                finished_as_asked_ = true;
                done_();
            });
}

bool live_command::over() const {
    return begin_ == 0 && !screen_->awaits_adapter();
}

bool live_command::puts_adapter_back() const {
    return screen_->puts_adapter_back();
}

bool live_command::sampled() const {
    return screen_->cycles() > 0;
}

bool live_command::succeeded() const {
    return sampled() && finished_as_asked_;
}

std::string live_command::what_went_wrong() const {
    if (!refused_.empty())
        return refused_;
    if (!screen_->log_failure().empty())
        return screen_->log_failure();
    return finished_as_asked_ && screen_->cycles() == 0 ? "no cycle was completed" : "";
}

void live_command::finish() {
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

void live_command::print_header() {
    header_of_ = screen_->pids();
    if (asked_.json)
        return;
    std::string line;
    for (const std::string& pid : header_of_) {
        const mac_toolies& toolies = screen_->toolies;
        const std::string units = parameter_units(toolies, pid);
        std::string name =
            parameter_name(toolies, pid) + " (" + std::string(trimmed(units)) + ")";
        if (name.find_first_of(",\"") != std::string::npos) {
            std::string quoted = "\"";
            for (const char c : name)
                quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
            name = quoted + "\"";
        }
        line += (line.empty() ? "" : ",") + name;
    }
    clear_progress();
    std::printf("%s\n", printable(line).c_str());
}

void live_command::print_cycle(const std::vector<translated>& values) {
    if (header_of_ != screen_->pids())
        print_header();
    std::string line;
    for (std::size_t i = 0; i < values.size(); ++i) {
        line += i == 0 ? "" : ",";
        if (asked_.json)
            line += json_string(header_of_[i]) + ":" + number_text(values[i].value, "null");
        else
            line += number_text(values[i].value, "nan");
    }
    if (asked_.json) {
        ended_ = delegate_.doors().loop.now();
        line = "{\"cycle\":" + std::to_string(screen_->cycles()) +
               ",\"seconds\":" + fixed_decimals(seconds(), TIME_DECIMALS) + ",\"values\":{" + line +
               "}}";
    }
    show_cycles();
    std::printf("%s\n", line.c_str());
    // Whoever reads along sees each cycle as it completes.
    if (output_lost())
        done_(); // nobody does, or nobody can
}

// Of a run whose lines go elsewhere: on a terminal they tell it themselves.
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
    const double elapsed = seconds();
    const double rate =
        elapsed > 0 ? static_cast<double>(screen_->requests_answered()) / elapsed : 0;
    const std::string& log = screen_->log_path();
    if (asked_.json) {
        const std::string level =
            asked_.fast ? ",\"fast_level\":" + std::to_string(screen_->fast_level().value_or(0)) : "";
        std::printf("{\"cycles\":%llu,\"requests\":%llu,\"seconds\":%s,\"requests_per_second\":%s,"
                    "\"log\":%s%s}\n",
                    static_cast<unsigned long long>(screen_->cycles()),
                    static_cast<unsigned long long>(screen_->requests_answered()),
                    fixed_decimals(elapsed, TIME_DECIMALS).c_str(), fixed_decimals(rate, 1).c_str(),
                    json_string(log).c_str(), level.c_str());
        return;
    }
    if (output_lost())
        return;
    const char* const what = asked_.fast ? "values" : "requests";
    std::fprintf(stderr, "%llu cycles, %llu %s in %s s: %s %s per second",
                 static_cast<unsigned long long>(screen_->cycles()),
                 static_cast<unsigned long long>(screen_->requests_answered()), what,
                 fixed_decimals(elapsed, TIME_DECIMALS).c_str(), fixed_decimals(rate, 1).c_str(), what);
    if (asked_.fast)
        std::fprintf(stderr, ", %s",
                     screen_->localized("ui_fast_level_" +
                                        std::to_string(screen_->fast_level().value_or(0)))
                         .c_str());
    std::fputc('\n', stderr);
    if (!log.empty())
        std::fprintf(stderr, "Log: %s\n", printable(log).c_str());
}
