// Every screen opened, used and left again and again, in the window and with a car that answers.
// What a round leaves behind the address sanitizer and valgrind tell at the end (scripts/leaks);
// KESTROM_ROUNDS says how many.
#include "actions.h"
#include "app_harness.h"
#include "car_library.h"
#include "main_window.h"
#include "qt_warnings.h"
#include "virtual_car_pair.h"

#include <QCoreApplication>

#include <filesystem>
#include <gtest/gtest.h>

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

std::size_t entries(const char* folder) {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder), {}));
}

TEST(screen_rounds_test, a_screen_takes_everything_along_when_it_goes) {
    bool is_number = false;
    const int asked = qEnvironmentVariableIntValue("KESTROM_ROUNDS", &is_number);
    const int rounds = is_number ? asked : 5;
    app_harness app([](user_defaults& store) {
        app_harness::use_wifi(store);
        store.set_boolean(LOG_RUNS_KEY, true);
    });
    car the_car = load_car("can11");
    adapter_options options;
    options.latency = milliseconds(20);
    virtual_adapter adapter(the_car, options);
    app.delegate->doors().make_streams = streams_to(app.loop, adapter);
    main_window window(*app.delegate);
    window.show();
    const auto go = [&](void (Ks_lite_delegate::*show_screen)()) {
        (app.delegate.get()->*show_screen)();
        app.loop.settle();
        QCoreApplication::processEvents();
    };
    const auto sample = [&](int kind, milliseconds span) {
        go(&Ks_lite_delegate::do_actions);
        auto& screen = static_cast<actions&>(*app.delegate->current_screen());
        screen.choose_run(kind);
        app.press("startStopBtn");
        for (const auto end = app.loop.now() + span; app.loop.now() < end;) {
            app.loop.advance(milliseconds(100));
            QCoreApplication::processEvents();
        }
        return screen.requests_answered();
    };
    std::size_t threads = 0, files = 0;
    for (int round = 0; round < rounds; ++round) {
        go(&Ks_lite_delegate::do_read_codes);
        app.press("readCodes");
        app.loop.advance(seconds(5));
        EXPECT_TRUE(app.last_status().starts_with("Codes read")) << app.last_status();
        for (const int kind : {TASK_RUN_LOG, TASK_FUEL_ECONOMY, TASK_BOOST})
            EXPECT_GT(sample(kind, milliseconds(300)), 3u) << kind; // left in mid-run
        go(&Ks_lite_delegate::do_prefs);
        go(&Ks_lite_delegate::do_expert);
        app.loop.advance(seconds(4)); // past the time-outs
        if (round == 0) {
            threads = entries("/proc/self/task");
            files = entries("/proc/self/fd");
        }
    }
    EXPECT_LE(entries("/proc/self/task"), threads);
    EXPECT_EQ(entries("/proc/self/fd"), files);
}

} // namespace
