// The real serial line on a pseudo-terminal, on the test's clock: what comes of it when the cable
// is pulled out, by itself and under a whole run.
#include "actions.h"
#include "app_harness.h"
#include "car_library.h"
#include "pseudo_terminal.h"
#include "qt_serial_line.h"
#include "qt_warnings.h"
#include "serial_stream_pair.h"
#include "stdio_adapter.h"
#include "transports.h"
#include "virtual_adapter.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <termios.h>
#include <thread>
#include <unistd.h>

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

// Delivers what the system tells until it holds.
template <class condition>
bool wait_for(virtual_run_loop& loop, condition holds) {
    QElapsedTimer clock;
    clock.start();
    while (!holds() && clock.elapsed() < 20'000) {
        QCoreApplication::processEvents();
        loop.settle();
    }
    return holds();
}

// Once an adapter has answered, the pair waits for quiet: the clock stands still until then.
bool adapter_answers(virtual_run_loop& loop) {
    constexpr milliseconds QUIET(100);
    return wait_for(loop, [&] {
        bool quiet = false;
        loop.for_each_armed([&](milliseconds due) { quiet |= due == loop.now() + QUIET; });
        return quiet;
    });
}

// A port that keeps its name when another cable is plugged in.
class named_port {
  public:
    void plug_in() {
        cable = std::make_unique<pseudo_terminal>();
        std::filesystem::remove(path());
        std::filesystem::create_symlink(cable->path(), path());
    }
    void unplug() {
        std::filesystem::remove(path());
        cable->unplug();
    }
    std::string path() const { return folder.filePath(QStringLiteral("ttyUSB0")).toStdString(); }
    std::unique_ptr<pseudo_terminal> cable;

  private:
    QTemporaryDir folder;
};

class pair_on_a_terminal : public testing::Test {
  protected:
    pair_on_a_terminal() { port.plug_in(); }
    void open(long speed = 0) {
        events.clear();
        pair = std::make_unique<serial_stream_pair>(loop, texts, std::make_unique<qt_serial_line>(),
                                                    port.path(), speed);
        pair->open([this](stream_side, int code) {
            events.push_back(code);
            if (code == STREAM_BYTES_AVAILABLE)
                received += pair->read(1024);
            if (code == STREAM_BYTES_AVAILABLE && while_handled)
                std::exchange(while_handled, nullptr)();
        });
    }
    void answer(std::string_view bytes) {
        ASSERT_EQ(::write(port.cable->descriptor(), bytes.data(), bytes.size()),
                  static_cast<ssize_t>(bytes.size()));
    }
    std::string asked() {
        char bytes[64];
        const ssize_t count = ::read(port.cable->descriptor(), bytes, sizeof bytes);
        return {bytes, static_cast<std::size_t>(std::max<ssize_t>(count, 0))};
    }
    void open_and_answer() {
        open();
        EXPECT_EQ(asked(), "\x7f\x7f\r");
        answer("?\r\r>");
        ASSERT_TRUE(adapter_answers(loop));
        loop.advance(milliseconds(100));
        EXPECT_EQ(std::ranges::count(events, STREAM_OPEN_COMPLETED), 2);
    }
    bool comes(int code) {
        return wait_for(loop, [&] { return std::ranges::count(events, code) > 0; });
    }

    bundle texts{":/kestrom", "en"};
    virtual_run_loop loop;
    named_port port;
    std::unique_ptr<serial_stream_pair> pair;
    std::vector<int> events;
    std::string received;
    std::function<void()> while_handled; // of the next bytes
};

TEST_F(pair_on_a_terminal, bytes_go_both_ways_until_it_is_unplugged_and_again_when_it_is_back) {
    open_and_answer();
    pair->write("AT Z\r");
    EXPECT_EQ(asked(), "AT Z\r");
    answer("OK\r\r>");
    ASSERT_TRUE(wait_for(loop, [this] { return received == "OK\r\r>"; }));
    answer(std::string(3000, 'x'));
    ASSERT_TRUE(wait_for(loop, [this] { return received.size() == 3005; }));
    EXPECT_GE(std::ranges::count(events, STREAM_BYTES_AVAILABLE), 4) << "1024 at a time";
    port.unplug();
    ASSERT_TRUE(comes(STREAM_END));
    EXPECT_EQ(events.back(), STREAM_END);
    pair->write("dropped");
    open();
    ASSERT_TRUE(comes(STREAM_ERROR));
    EXPECT_NE(pair->error_description().find("is not there"), std::string::npos);
    port.plug_in();
    open_and_answer();
}

TEST_F(pair_on_a_terminal, what_comes_during_a_dialog_of_the_handler_is_announced_behind_it) {
    open_and_answer();
    while_handled = [this] {
        answer("late>");
        QElapsedTimer clock;
        for (clock.start(); clock.elapsed() < 50;)
            QCoreApplication::processEvents();
    };
    answer("OK\r\r>");
    EXPECT_TRUE(wait_for(loop, [this] { return received == "OK\r\r>late>"; }));
}

TEST_F(pair_on_a_terminal, a_silent_one_is_given_up_at_the_speed_that_was_asked_for) {
    open(115200);
    termios line = {};
    ASSERT_EQ(::tcgetattr(port.cable->descriptor(), &line), 0);
    EXPECT_EQ(::cfgetospeed(&line), static_cast<speed_t>(B115200));
    loop.advance(seconds(2));
    EXPECT_EQ(events, std::vector{STREAM_ERROR});
    EXPECT_NE(pair->error_description().find("115200"), std::string::npos);
    open(115200);
    port.unplug(); // while it is tried
    ASSERT_TRUE(comes(STREAM_ERROR));
    EXPECT_NE(pair->error_description().find("is not there"), std::string::npos);
}

// A virtual car at the far end, which pulls the cable out instead of answering a command.
class car_on_a_cable {
  public:
    explicit car_on_a_cable(named_port& port, std::size_t commands_answered) {
        port.plug_in();
        thread_ = std::thread([&port, commands_answered] {
            car the_car = load_car("can11");
            adapter_options options;
            options.latency = milliseconds(0);
            options.faults =
                fault_set({parse_fault("close_after=" + std::to_string(commands_answered))});
            virtual_adapter adapter(the_car, options);
            serve_descriptors(adapter, port.cable->descriptor(), port.cable->descriptor());
            port.unplug();
        });
    }
    ~car_on_a_cable() { thread_.join(); }

  private:
    std::thread thread_;
};

TEST(run_over_a_serial_port, loses_no_announced_cycle_when_unplugged_and_reconnect_goes_on) {
    named_port port;
    app_harness app([&](user_defaults& store) {
        app_harness::use_wifi(store);
        store_transport(transport_named("serial"), store);
        store.set_string(SERIAL_PORT_KEY, port.path());
        store.set_boolean(LOG_RUNS_KEY, true);
    });
    app.delegate->doors().make_serial_streams = [&](const std::string& path, long speed) {
        return std::make_unique<serial_stream_pair>(
            app.loop, app.resources, std::make_unique<qt_serial_line>(), path, speed);
    };
    app.delegate->do_actions();
    auto& screen = static_cast<actions&>(*app.delegate->current_screen());
    int announced = 0;
    screen.cycle_completed = [&](const std::vector<translated>&) { ++announced; };
    const auto logged = [&] {
        std::ifstream log(screen.log_path());
        const std::string text{std::istreambuf_iterator<char>(log), {}};
        return std::ranges::count(text, '\n');
    };
    expect_warning("Disconected");
    const auto run_until_unplugged = [&] {
        const car_on_a_cable car(port, 60);
        app.press(app.find("reconnect")->isHidden() ? "startStopBtn" : "reconnect");
        ASSERT_TRUE(adapter_answers(app.loop));
        app.loop.advance(seconds(2));
        if (!screen.running())
            app.press("startStopBtn");
        ASSERT_TRUE(wait_for(app.loop, [&] { return app.delegate->link_in_doubt(); }));
    };
    run_until_unplugged();
    EXPECT_EQ(app.last_status(), "Disconnected");
    EXPECT_FALSE(screen.running());
    EXPECT_GT(announced, 5);
    EXPECT_EQ(logged(), announced);
    const int before = std::exchange(announced, 0);
    run_until_unplugged();
    EXPECT_GE(announced, before) << "a run as long as the first";
    EXPECT_EQ(logged(), announced);
}

} // namespace
