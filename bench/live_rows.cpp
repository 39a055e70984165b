// kestrom-live-bench: what sampling live data costs, with the live screen shown, over a real socket.
#include "actions.h"
#include "alerts.h"
#include "answering_server.h"
#include "bluetooth_door.h"
#include "bundle.h"
#include "globalVars.h"
#include "Ks_lite_delegate.h"
#include "main_window.h"
#include "qt_run_loop.h"
#include "ratio_table.h"
#include "screen_factories.h"
#include "serial_port_profile.h"
#include "tcp_stream_pair.h"
#include "thumbnail_strip.h"
#include "user_defaults.h"

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

class no_alerts final : public alerts {
  public:
    using alerts::alerts;
    void beep() override {}

  protected:
    int run_modal(const alert_request& request) override {
        std::fprintf(stderr, "%s\n", request.message.c_str());
        return 0;
    }
};

// The whole program in its window, running a run log of four parameters against a server.
class running_program {
  public:
    enum class shows { one_curve, two_curves_and_dials };
    explicit running_program(int port, std::size_t rows_before = 0,
                             shows what = shows::two_curves_and_dials)
        : defaults_(folder_.filePath(QStringLiteral("settings.conf")).toStdString()) {
        reset_global_vars();
        defaults_.set_integer(KS_INTERFACE_KEY, KS_USE_WIFI);
        defaults_.set_string(WIFI_IP_KEY, "127.0.0.1");
        defaults_.set_string(WIFI_PORT_KEY, std::to_string(port));
        defaults_.set_boolean(KS_METRIC_UNITS_KEY, true);
        defaults_.set_string_array(PIDS_ARRAY_KEY, {"0D", "11", "0C", "05"});
        mac_toolies::initialize({&resources_, &defaults_, &alerts_, &notifications_});
        delegate_ = std::make_unique<Ks_lite_delegate>(
            app_doors{loop_, alerts_, defaults_, resources_, notifications_,
                      [this](const std::string& host, long to) -> std::unique_ptr<stream_pair> {
                          return std::make_unique<tcp_stream_pair>(loop_, host, to);
                      },
                      *bluetooth_},
            all_screens());
        window_ = std::make_unique<main_window>(*delegate_);
        window_->show();
        delegate_->do_actions();
        if (what == shows::two_curves_and_dials)
            static_cast<thumbnail_strip*>(
                screen().view()->findChild<QWidget*>(QStringLiteral("thumbiesMtrx")))
                ->choose({0, 2});
        screen().runLogs();
        while (screen().cycles() < 10)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        fill(rows_before);
    }

    actions& screen() { return static_cast<actions&>(*delegate_->current_screen()); }

    double requests_a_second(milliseconds span) {
        const std::uint64_t before = screen().requests_answered();
        QElapsedTimer timer;
        timer.start();
        while (!timer.hasExpired(span.count()))
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return static_cast<double>(screen().requests_answered() - before) /
               (static_cast<double>(timer.nsecsElapsed()) * 1e-9);
    }

  private:
    // As if that many cycles had been sampled.
    void fill(std::size_t rows) {
        const mac_toolies& toolies = mac_toolies::sharedManager();
        sample_rows& samples = screen().samples();
        driving_car car;
        for (std::size_t row = 0; row < rows; ++row) {
            for (std::size_t i = 0; i < 4; ++i) {
                std::string reply = car.answer(screen().pids()[i]);
                std::erase(reply, ' ');
                samples.file(i, reply, toolies.translate_once(reply));
            }
            samples.append_fresh_row();
        }
    }

    QTemporaryDir folder_;
    qt_run_loop loop_;
    user_defaults defaults_;
    bundle resources_;
    notification_center notifications_;
    no_alerts alerts_{loop_};
    std::unique_ptr<serial_port_profile> bluetooth_ =
        make_bluetooth_door(loop_, alerts_, resources_, defaults_, false);
    std::unique_ptr<Ks_lite_delegate> delegate_;
    std::unique_ptr<main_window> window_;
};

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

// At the window's own size; QT_SCALE_FACTOR=2 in front of the bench tells it for 200 %.
double percent_of_a_core() {
    answering_server server({1, milliseconds(0), milliseconds(20)});
    running_program program(server.port(), FEW_ROWS, running_program::shows::one_curve);
    // Every thread of the program, those that Qt draws on too, but not the adapter.
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
    const std::uint64_t samples_before = program.screen().requests_answered();
    program.requests_a_second(milliseconds(10'000));
    const auto samples =
        static_cast<double>(program.screen().requests_answered() - samples_before);
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
    table.add_figure("live/percent_of_a_core_at_50_a_second", percent_of_a_core, reach::at_most, 5);
    table.add_figure("live/bytes_a_sample", bytes_a_sample, reach::at_most, 64);
    table.add_series("live/start_to_painted_window", "bare window with one label",
                     start_against_bare_window, reach::at_most, 1.5);
    benchmark::RunSpecifiedBenchmarks();
    return table.print() ? 0 : 1;
}
