// kestrom-live-bench: the cost of live sampling with the live screen shown, over a real socket.
#include "answering_server.h"
#include "ratio_table.h"
#include "running_program.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <ctime>
#include <malloc.h>

namespace {

using std::chrono::milliseconds;

constexpr int PAIRS = 7;
constexpr milliseconds SPAN{2000};
constexpr std::size_t FEW_ROWS = 1'000;
constexpr std::size_t MANY_ROWS = 1'000'000;

double process_seconds() {
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

std::vector<double> against_bare_loop() {
    answering_server bare_server, server;
    running_program program(server.port());
    std::vector<double> ratios;
    for (int i = 0; i < PAIRS; ++i) {
        const double bare = bare_exchanges_a_second(bare_server.port(), SPAN);
        const double ours = program.requests_a_second(SPAN);
        std::printf("  bare %.0f, kestrom %.0f requests a second\n", bare, ours);
        ratios.push_back(ours / bare);
    }
    return ratios;
}

std::vector<double> many_rows_against_few() {
    std::vector<double> ratios;
    for (int i = 0; i < PAIRS; ++i) {
        double rate[2];
        for (const int many : {0, 1}) {
            answering_server server;
            running_program program(server.port(), many ? MANY_ROWS : FEW_ROWS);
            rate[many] = program.requests_a_second(SPAN);
        }
        std::printf("  %.0f with few rows, %.0f with many\n", rate[0], rate[1]);
        ratios.push_back(rate[1] / rate[0]);
    }
    return ratios;
}

double with_slow_pieces() {
    answering_server server({3, milliseconds(1), milliseconds(0)});
    running_program program(server.port());
    return program.requests_a_second(SPAN);
}

// At the window's own size; run the bench with QT_SCALE_FACTOR=2 for 200 %.
double percent_of_a_core() {
    answering_server server({1, milliseconds(0), milliseconds(20)});
    running_program program(server.port(), FEW_ROWS, running_program::shows::one_curve);
    // All threads of the program, including Qt's, but not the adapter's.
    const auto ours = [&] { return process_seconds() - server.processor_seconds(); };
    const double before = ours();
    const double rate = program.requests_a_second(milliseconds(30'000));
    const double share = (ours() - before) / 30 * 100;
    std::printf("  %.1f requests a second, %.2f %% of a core\n", rate, share);
    return share;
}

double bytes_a_sample() {
    answering_server server;
    running_program program(server.port());
    program.requests_a_second(SPAN);
    const auto in_use = [] {
        const struct mallinfo2 heap = mallinfo2();
        return static_cast<double>(heap.uordblks + heap.hblkhd);
    };
    const double before = in_use();
    const std::uint64_t samples_before = program.screen().counted();
    program.requests_a_second(milliseconds(10'000));
    const auto samples = static_cast<double>(program.screen().counted() - samples_before);
    std::printf("  %.0f samples\n", samples);
    return (in_use() - before) / samples;
}

// Milliseconds from start to the first painted window.
double milliseconds_of(const QString& program, const QStringList& arguments) {
    QElapsedTimer timer;
    timer.start();
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return static_cast<double>(timer.nsecsElapsed()) * 1e-6;
}

std::vector<double> start_against_bare_window() {
    const QString folder = QCoreApplication::applicationDirPath();
    const QString kestrom = folder + QStringLiteral("/../app/kestrom");
    const QTemporaryDir scratch;
    const QString settings = scratch.filePath(QStringLiteral("kestrom.conf"));
    std::vector<double> ratios;
    for (int i = 0; i < 21; ++i) {
        const double bare = milliseconds_of(folder + QStringLiteral("/bare-window"), {});
        const double ours = milliseconds_of(
            kestrom, {QStringLiteral("--settings"), settings, QStringLiteral("--quit-when-shown")});
        ratios.push_back(ours / bare);
        if (i == 0)
            std::printf("  bare %.1f ms, kestrom %.1f ms\n", bare, ours);
    }
    return ratios;
}

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    ratio_table table;
    const char* instant = "bare loop, instantly answering server";
    table.add_series("live/requests_a_second", instant, against_bare_loop, reach::at_least, 0.5);
    table.add_figure("live/requests_a_second_slow_pieces", with_slow_pieces, reach::at_least, 200);
    table.add_series("live/requests_a_second_1M_rows", "the same, 1,000 rows",
                     many_rows_against_few, reach::at_least, 0.9);
    table.add_figure("live/percent_of_a_core_at_50_a_second", percent_of_a_core, reach::at_most, 4);
    table.add_figure("live/bytes_a_sample", bytes_a_sample, reach::at_most, 64);
    table.add_series("live/start_to_painted_window", "bare window with one label",
                     start_against_bare_window, reach::at_most, 1.5);
    benchmark::RunSpecifiedBenchmarks();
    return table.print() ? 0 : 1;
}
