#include "ratio_table.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <ctime>
#include <utility>

namespace {

constexpr double LEAST_TURN = 0.002; // seconds; shorter ones measure the clock

// CPU time of this thread, so that other load on the machine does not count.
double thread_seconds() {
    timespec now;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

double seconds_of(const timed_work& work, std::size_t calls) {
    const double start = thread_seconds();
    for (std::size_t i = 0; i < calls; ++i)
        work.run();
    return thread_seconds() - start;
}

// The number of calls in a turn. Also warms up.
std::size_t calls_a_turn(const timed_work& work) {
    std::size_t calls = 1;
    while (seconds_of(work, calls) < LEAST_TURN)
        calls *= 2;
    return calls;
}

measured summary_of(std::vector<double> values) {
    std::ranges::sort(values);
    return {values[values.size() / 2], values.front(), values.back()};
}

} // namespace

ratio_table::row& ratio_table::new_row(const std::string& what, const std::string& against,
                                       reach kind, double target) {
    rows_.push_back(std::make_unique<row>(row{what, against, kind, target, false, {}, {}}));
    return *rows_.back();
}

void ratio_table::add_ratio(const std::string& what, timed_work work, const std::string& against,
                            timed_work yardstick, reach kind, double target, int turns) {
    row& entry = new_row(what, against, kind, target);
    const auto measure = [&entry, work = std::move(work),
                          yardstick = std::move(yardstick)](benchmark::State& state) {
        const std::size_t work_calls = calls_a_turn(work);
        const std::size_t yardstick_calls = calls_a_turn(yardstick);
        std::vector<double> times, yardstick_times, ratios;
        for ([[maybe_unused]] const auto turn : state) {
            const double elapsed = seconds_of(work, work_calls);
            state.SetIterationTime(elapsed);
            times.push_back(elapsed / static_cast<double>(work_calls * work.operations));
            yardstick_times.push_back(seconds_of(yardstick, yardstick_calls) /
                                      static_cast<double>(yardstick_calls * yardstick.operations));
            const double ratio = times.back() / yardstick_times.back();
            ratios.push_back(entry.kind == reach::at_most ? ratio : 1 / ratio);
        }
        entry.ran = true;
        entry.result = summary_of(std::move(ratios));
        state.counters["each_ns"] = summary_of(std::move(times)).middle * 1e9;
        state.counters["yardstick_ns"] = summary_of(std::move(yardstick_times)).middle * 1e9;
    };
    benchmark::RegisterBenchmark(what.c_str(), measure)->UseManualTime()->Iterations(turns);
}

void ratio_table::add_series(const std::string& what, const std::string& against,
                             std::function<std::vector<double>()> measure, reach kind,
                             double target) {
    row& entry = new_row(what, against, kind, target);
    const auto take = [&entry, measure = std::move(measure)](benchmark::State& state) {
        for ([[maybe_unused]] const auto once : state)
            entry.result = summary_of(measure());
        entry.ran = true;
        state.counters["ratio"] = entry.result.middle;
    };
    benchmark::RegisterBenchmark(what.c_str(), take)->Iterations(1);
}

void ratio_table::add_figure(const std::string& what, std::function<double()> measure, reach kind,
                             double target) {
    row& entry = new_row(what, "", kind, target);
    const auto take = [&entry, measure = std::move(measure)](benchmark::State& state) {
        double figure = 0;
        for ([[maybe_unused]] const auto once : state)
            figure = measure();
        entry.ran = true;
        entry.result = {figure, figure, figure};
        state.counters["figure"] = figure;
    };
    benchmark::RegisterBenchmark(what.c_str(), take)->Iterations(1);
}

void ratio_table::add_remark(const std::string& what, std::function<std::string()> tell) {
    row& entry = new_row(what, "", reach::none, 0);
    const auto take = [&entry, tell = std::move(tell)](benchmark::State& state) {
        for ([[maybe_unused]] const auto once : state)
            entry.remark = tell();
        entry.ran = true;
    };
    benchmark::RegisterBenchmark(what.c_str(), take)->Iterations(1);
}

bool ratio_table::print() const {
    std::printf("\n%-52s %-40s %9s %19s  %s\n", "what", "yardstick", "measured", "lowest - highest",
                "reach");
    bool all_met = true;
    for (const auto& entry : rows_) {
        if (!entry->ran)
            continue;
        if (entry->kind == reach::none) {
            std::printf("%-52s %s\n", entry->what.c_str(), entry->remark.c_str());
            continue;
        }
        const auto& [middle, lowest, highest] = entry->result;
        const bool at_most = entry->kind == reach::at_most;
        const bool met = at_most ? middle <= entry->target : middle >= entry->target;
        all_met = all_met && met;
        std::printf("%-52s %-40s %9.3g %8.3g - %8.3g  at %s %g%s\n", entry->what.c_str(),
                    entry->against.c_str(), middle, lowest, highest, at_most ? "most" : "least",
                    entry->target, met ? "" : "  MISSED");
    }
    return all_met;
}
