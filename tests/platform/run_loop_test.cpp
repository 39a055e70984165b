#include "scripted_alerts.h"
#include "virtual_run_loop.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using ms = run_loop::milliseconds;

class run_loop_rules : public testing::Test {
  protected:
    auto note(const char* what) {
        return [this, what] { log += what; };
    }
    virtual_run_loop loop;
    scripted_alerts messages{loop};
    std::string log;
};

TEST_F(run_loop_rules, calls_come_when_due_in_order_and_never_inside_after) {
    loop.after(ms(20), note("b"));
    loop.after(ms(0), note("a"));
    loop.after(ms(20), note("c"));
    EXPECT_EQ(log, "");
    loop.advance(ms(19));
    EXPECT_EQ(log, "a");
    loop.advance(ms(1));
    EXPECT_EQ(log, "abc");
    EXPECT_TRUE(loop.idle());
}

TEST_F(run_loop_rules, cancelled_calls_do_not_come) {
    const auto id = loop.after(ms(5), note("x"));
    loop.cancel(id);
    loop.cancel(id);
    loop.cancel(0);
    loop.advance(ms(10));
    EXPECT_EQ(log, "");
}

TEST_F(run_loop_rules, nothing_is_delivered_while_an_alert_is_open) {
    messages.while_open = [this](const alert_request&) {
        loop.advance(ms(100));
        log += "|closed|";
    };
    loop.after(ms(10), [this] {
        log += "[";
        messages.show({.message = "hold"});
        log += "]";
    });
    loop.after(ms(20), note("reply"));
    loop.after(ms(30), note("timer"));
    loop.advance(ms(10));
    EXPECT_EQ(log, "[|closed|]replytimer");
}

TEST_F(run_loop_rules, a_held_reply_that_stops_the_held_timeout_drops_it) {
    run_loop::timer_id timeout = 0;
    messages.while_open = [this](const alert_request&) { loop.advance(ms(100)); };
    loop.after(ms(10), [this] { messages.show({.message = "hold"}); });
    loop.after(ms(20), [&] {
        log += "reply";
        loop.cancel(timeout);
    });
    timeout = loop.after(ms(30), note("timeout"));
    loop.advance(ms(200));
    EXPECT_EQ(log, "reply");
}

TEST_F(run_loop_rules, an_alert_that_a_user_action_opened_holds_as_well) {
    loop.after(ms(10), note("reply"));
    messages.while_open = [this](const alert_request&) {
        loop.advance(ms(50));
        EXPECT_EQ(log, "");
    };
    messages.show({.message = "a button's question"});
    loop.settle();
    EXPECT_EQ(log, "reply");
}

} // namespace
