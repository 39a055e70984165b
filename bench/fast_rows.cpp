// kestrom-fast-bench: values per second from the virtual adapter on the real clock, with the live
// screen shown: plain, fast and the reference client, in turns. Takes an hour.
#include "ratio_table.h"
#include "reference_client.h"
#include "running_program.h"
#include "virtual_server.h"

#include <QApplication>

#include <benchmark/benchmark.h>
#include <ctime>

namespace {

using std::chrono::milliseconds;

constexpr int TURNS = 3;
const std::vector<std::string> TWELVE{"04", "05", "06", "07", "0B", "0C",
                                      "0D", "0E", "0F", "10", "11", "1F"};

struct scene {
    const char* car;
    bool can;
    std::vector<std::string> pids;
    int baud;
    // Ratio of fast sampling to the reference client; 0: only reported.
    double target;
};

// Whether the probing phase is over.
bool settled(actions& screen, const scene& where) {
    const std::size_t cycles = where.can ? 60 : 8;
    return screen.cycles() >= (screen.fast_level() ? cycles : 3);
}

std::vector<double> fast_against_reference(const scene& where) {
    // Off CAN a value takes 150 ms, so a cycle with a silent parameter would distort a short span.
    const milliseconds span(where.can ? 2500 : 16000);
    virtual_server servers[3] = {
        {where.car, where.baud}, {where.car, where.baud}, {where.car, where.baud}};
    const auto ready = [&](actions& screen) { return settled(screen, where); };
    const auto shows = running_program::shows::two_curves_and_dials;
    double plain = 0;
    {
        running_program program(servers[0].port(), 0, shows, where.pids, false, ready);
        plain = program.requests_a_second(span);
    }
    reference_client reference(servers[1].port(), where.pids);
    running_program program(servers[2].port(), 0, shows, where.pids, true, ready);
    std::vector<double> ratios;
    for (int i = 0; i < TURNS; ++i) {
        const double theirs = reference.values_a_second(span);
        program.requests_a_second(milliseconds(300)); // drain what has piled up
        const double ours = program.requests_a_second(span);
        std::printf(
            "  plain %.1f, fast %.1f (level %d), the reference client %.1f values a second\n",
            plain, ours, program.screen().fast_level().value_or(0), theirs);
        ratios.push_back(ours / theirs);
    }
    return ratios;
}

double process_seconds() {
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

std::string processor_time() {
    virtual_server server("can11", 0);
    running_program program(server.port(), 0, running_program::shows::two_curves_and_dials, TWELVE,
                            true, [](actions& screen) { return screen.cycles() >= 60; });
    const auto ours = [&] { return process_seconds() - server.processor_seconds(); };
    const double before = ours();
    const double rate = program.requests_a_second(milliseconds(10'000));
    char text[80];
    std::snprintf(text, sizeof text, "%.0f values a second, %.1f %% of a core", rate,
                  (ours() - before) * 10);
    return text;
}

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    struct place {
        const char* car;
        bool can;
        // With four parameters and with twelve; `slow` behind any serial line.
        double four_slow, four, twelve_slow, twelve;
    };
    ratio_table table;
    for (const place& one : {
             place{"can11", true, 1.8, 2.2, 2.2, 3.0},
             place{"can29", true, 1.8, 2.2, 2.2, 3.0},
             place{"three_units", true, 0, 0, 0, 0},
             place{"iso9141", false, 0.95, 0.95, 0.95, 0.95},
             place{"kwp_slow", false, 0.95, 0.95, 0.95, 0.95},
             place{"vpw", false, 0.95, 0.95, 0.95, 0.95},
         })
        for (const int baud : {0, 38400, 115200})
            for (const bool twelve : {false, true}) {
                const scene where{one.car, one.can, twelve ? TWELVE : running_program::four(), baud,
                                  twelve ? (baud ? one.twelve_slow : one.twelve)
                                         : (baud ? one.four_slow : one.four)};
                table.add_series(
                    "fast/" + std::string(one.car) + (twelve ? "/12/" : "/4/") +
                        std::to_string(baud),
                    "the reference client", [where] { return fast_against_reference(where); },
                    where.target > 0 ? reach::at_least : reach::none, where.target);
            }
    table.add_remark("fast/processor_time", processor_time);
    benchmark::RunSpecifiedBenchmarks();
    return table.print() ? 0 : 1;
}
