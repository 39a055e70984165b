// Every screen opened, used and left again and again, in the window. What a round leaves behind the
// address sanitizer and valgrind tell at the end (scripts/leaks); KESTROM_ROUNDS says how many.
#include "app_harness.h"
#include "main_window.h"
#include "qt_warnings.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace {

TEST(screen_rounds_test, a_screen_takes_everything_along_when_it_goes) {
    bool is_number = false;
    const int asked = qEnvironmentVariableIntValue("KESTROM_ROUNDS", &is_number);
    const int rounds = is_number ? asked : 20;
    app_harness app;
    main_window window(*app.delegate);
    window.show();
    const auto go = [&](void (Ks_lite_delegate::*show_screen)()) {
        (app.delegate.get()->*show_screen)();
        app.loop.settle();
        QCoreApplication::processEvents();
    };
    for (int round = 0; round < rounds; ++round) {
        go(&Ks_lite_delegate::do_read_codes);
        app.press("readCodes"); // and left in the middle of the handshake
        if (round == 0)
            app.connect();
        app.receive("ELM327 v1.5\r\r>");
        go(&Ks_lite_delegate::do_actions);
        app.press("startStopBtn");
        app.receive("OK\r\r>");
        QCoreApplication::processEvents();
        go(&Ks_lite_delegate::do_prefs);
        go(&Ks_lite_delegate::do_expert);
        app.receive("41 00 BE 1F A8 13\r\r>");
        app.wire().written.clear();
        app.loop.advance(std::chrono::seconds(4)); // past the time-outs
    }
    EXPECT_EQ(app.wires.size(), 1u) << "one connection served them all";
}

} // namespace
