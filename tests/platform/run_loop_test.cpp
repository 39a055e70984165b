// The rules of every run loop, on the real one: what comes when, and that nothing comes under a
// dialog.
#include "qt_run_loop.h"
#include "scripted_alerts.h"

#include <QTest>

#include <gtest/gtest.h>
#include <string>

namespace {

using ms = run_loop::milliseconds;

class run_loop_rules : public testing::Test {
  protected:
    auto note(const char* what) {
        return [this, what] { log += what; };
    }
    // Lets events come until the calls noted are these, or far too long has passed.
    void expect_calls(const std::string& expected) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return log == expected; })) << log;
    }
    qt_run_loop loop;
    scripted_alerts messages{loop};
    std::string log;
};

TEST_F(run_loop_rules, calls_come_when_due_in_order_and_never_inside_after) {
    loop.after(ms(20), note("b"));
    loop.after(ms(0), note("a"));
    loop.after(ms(20), note("c"));
    const auto stopped = loop.after(ms(1), note("x"));
    loop.cancel(stopped);
    loop.cancel(stopped);
    loop.cancel(0);
    EXPECT_EQ(log, "");
    expect_calls("abc");
    EXPECT_TRUE(loop.idle());
}

TEST_F(run_loop_rules, an_earlier_deadline_comes_before_the_one_that_was_waited_for) {
    loop.after(std::chrono::hours(1), note("late"));
    loop.after(ms(1), note("early"));
    expect_calls("early");
}

TEST_F(run_loop_rules, nothing_is_delivered_while_a_dialog_is_up) {
    run_loop::timer_id timeout = 0;
    messages.while_open = [&](const alert_request&) {
        loop.from_event_loop(note("bytes"));
        loop.after(ms(1), [&] {
            log += "reply";
            loop.cancel(timeout);
        });
        timeout = loop.after(ms(2), note("timeout"));
        QTest::qWait(10); // as a dialog's own loop lets events come
        log += "|";
    };
    loop.after(ms(0), [this] {
        log += "[";
        messages.show({.message = "in a delivery"});
        log += "]";
    });
    expect_calls("[|]bytesreply");
    log.clear();
    messages.show({.message = "a button's question"});
    EXPECT_EQ(log, "|");
    expect_calls("|bytesreply");
}

} // namespace
