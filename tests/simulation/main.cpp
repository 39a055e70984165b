// Runs whole sessions of the program against virtual cars, on a virtual clock.
// kestrom-soak [--seeds FROM..TO] [--minutes M] [--trace] [--twice]
// kestrom-soak --cycles N: one long run instead
#include "long_run.h"
#include "session.h"

#include <QApplication>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <unistd.h>
#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/common_interface_defs.h>
#endif

namespace {

struct wishes {
    std::uint64_t from = 1, to = 100;
    double minutes = 0; // 0: no limit
    long cycles = 0;
    bool print = false;
    bool twice = false; // run each seed twice and compare
};

wishes read_wishes(int argc, char** argv) {
    wishes asked;
    for (int i = 1; i < argc; ++i) {
        const std::string option = argv[i];
        const auto value = [&] { return i + 1 < argc ? argv[++i] : ""; };
        if (option == "--trace")
            asked.print = true;
        else if (option == "--twice")
            asked.twice = true;
        else if (option == "--minutes")
            asked.minutes = std::atof(value());
        else if (option == "--cycles")
            asked.cycles = std::atol(value());
        else if (option != "--seeds" ||
                 std::sscanf(value(), "%lu..%lu", &asked.from, &asked.to) < 1) {
            std::fputs("kestrom-soak [--seeds FROM..TO] [--minutes M] [--trace] [--twice]\n",
                       stderr);
            std::exit(2);
        } else if (!std::strstr(argv[i], ".."))
            asked.to = asked.from;
    }
    return asked;
}

constexpr unsigned LONGEST_SESSION = 900; // seconds, under the sanitizers on a busy machine

const char* program = "";
std::uint64_t seed_under_way = 0;

void tell_replay() {
    std::printf("  again: %s --seeds %lu --trace\n", program, seed_under_way);
    std::fflush(stdout);
}

// A session ended from outside still reports its seed.
void tell_end() {
    std::printf("seed %lu did not come to its end\n", seed_under_way);
    tell_replay();
}
void end_by_signal(int signal) {
    std::signal(signal, SIG_DFL);
    tell_end();
    std::raise(signal);
}
void watch_for_crashes() {
    std::signal(SIGALRM, end_by_signal);
#ifdef __SANITIZE_ADDRESS__
    __sanitizer_set_death_callback(tell_end);
#else
    for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT})
        std::signal(signal, end_by_signal);
#endif
}

void tell(std::uint64_t seed, const session_result& result) {
    std::printf("seed %lu broke a promise: %s\n    %s\n", seed, result.promise.c_str(),
                result.how.c_str());
    for (const std::string& line : result.last_lines)
        std::printf("    %s\n", line.c_str());
    tell_replay();
}

void say_nothing(QtMsgType, const QMessageLogContext&, const QString&) {}

} // namespace

int main(int argc, char** argv) {
    using clock = std::chrono::steady_clock;
    const wishes asked = read_wishes(argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication::setStyle(QStringLiteral("windows")); // the fastest
    qInstallMessageHandler(say_nothing);
    const QApplication application(argc, argv);
    program = argv[0];
    if (asked.cycles > 0)
        return run_cycles(asked.cycles) ? 0 : 1;
    const std::string root = (access("/dev/shm", W_OK) == 0 ? "/dev/shm" : "/tmp") +
                             std::string("/kestrom-soak.") + std::to_string(getpid());
    const auto begun = clock::now();
    const auto spent = [&] { return std::chrono::duration<double>(clock::now() - begun).count(); };
    watch_for_crashes();
    std::uint64_t seed = asked.from, done = 0, hash = 0;
    int failures = 0;
    for (; seed <= asked.to && (asked.minutes == 0 || spent() < asked.minutes * 60); ++seed) {
        const std::string folder = root + "/" + std::to_string(seed);
        seed_under_way = seed;
        alarm(LONGEST_SESSION);
        session_result result = run_session(seed, folder, asked.print);
        if (result.ok() && asked.twice && run_session(seed, folder, false).hash != result.hash)
            result.promise = "one seed gives one trace";
        std::filesystem::remove_all(folder);
        hash = hash * 31 + result.hash;
        ++done;
        if (!result.ok()) {
            ++failures;
            tell(seed, result);
        }
    }
    alarm(0);
    std::filesystem::remove_all(root);
    std::printf("seeds %lu..%lu: %lu sessions, %d failures, trace %016lx, %.1f s (%.2f ms each)\n",
                asked.from, seed - 1, done, failures, hash, spent(),
                done ? spent() * 1000 / static_cast<double>(done) : 0.0);
    return failures != 0;
}
