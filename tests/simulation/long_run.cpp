#include "long_run.h"

#include "actions.h"
#include "app_harness.h"

#include <cstdio>
#include <ctime>
#include <fstream>
#include <unistd.h>

namespace {

constexpr long FIRST_AND_LAST = 10'000; // cycles that are timed

double processor_seconds() {
    timespec spent{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &spent);
    return static_cast<double>(spent.tv_sec) + static_cast<double>(spent.tv_nsec) / 1e9;
}

double resident_bytes() {
    std::ifstream statm("/proc/self/statm");
    long total = 0, resident = 0;
    statm >> total >> resident;
    return static_cast<double>(resident) * static_cast<double>(::sysconf(_SC_PAGESIZE));
}

// What the car answers in a cycle, and the line of the log that it makes.
std::string answer_to(const std::string& pid, long cycle) {
    const auto digits = [](unsigned value) {
        return mac_toolies::convertByte2HexStr(value & 0xFF);
    };
    const auto n = static_cast<unsigned>(cycle);
    return "41" + pid + digits(n) + (pid == "0C" ? digits(n >> 8) : "");
}

class endless_run {
  public:
    endless_run() {
        app_.delegate->do_actions();
        app_.delegate->status_shown = nullptr; // it keeps all of them
        connected_2_KS_interface = true;
        app_.press("startStopBtn");
        app_.connect();
    }
    static void log_it(user_defaults& store) {
        app_harness::use_wifi(store);
        store.set_boolean(LOG_RUNS_KEY, true);
    }
    void cycles(long first, long end) {
        for (long cycle = first; cycle < end; ++cycle)
            for (int i = 0; i < 4; ++i) {
                const std::string asked = app_.sent();
                app_.loop.advance(std::chrono::milliseconds(20));
                app_.receive(answer_to(asked.substr(3, 2), cycle) + "\r\r>");
            }
    }
    actions& screen() { return static_cast<actions&>(*app_.delegate->current_screen()); }
    bool log_holds(long cycles) {
        const std::string path = screen().log_path();
        app_.press("startStopBtn");
        std::ifstream log(path);
        std::string line;
        for (long cycle = 0; cycle < cycles; ++cycle) {
            const std::string wanted = answer_to("0D", cycle) + "," + answer_to("11", cycle) + "," +
                                       answer_to("0C", cycle) + "," + answer_to("05", cycle);
            if (!std::getline(log, line) || line != wanted)
                return false;
        }
        return !std::getline(log, line);
    }

  private:
    app_harness app_{log_it};
};

} // namespace

bool run_cycles(long count) {
    endless_run run;
    const long timed = std::min(FIRST_AND_LAST, count / 3);
    const double replies = static_cast<double>(timed) * 4;
    const double memory = resident_bytes();
    double begun = processor_seconds();
    run.cycles(0, timed);
    const double at_start = (processor_seconds() - begun) / replies;
    run.cycles(timed, count - timed);
    begun = processor_seconds();
    run.cycles(count - timed, count);
    const double at_end = (processor_seconds() - begun) / replies;
    const double a_sample = (resident_bytes() - memory) / (static_cast<double>(count) * 4);
    const bool complete =
        run.screen().cycles() == static_cast<std::uint64_t>(count) && run.log_holds(count);
    std::printf(
        "%ld cycles: %.1f bytes a sample, %.2f us a reply at the start, %.2f us at the end, "
        "log %s\n",
        count, a_sample, at_start * 1e6, at_end * 1e6, complete ? "complete" : "NOT COMPLETE");
    return complete;
}
