// Fast sampling on the live-data screen, over a virtual car with genuine times.
#include "actions.h"
#include "app_harness.h"
#include "car_library.h"
#include "qt_warnings.h"
#include "virtual_car_pair.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

class fast_run {
  public:
    explicit fast_run(const std::string& name, std::vector<fault> faults = {},
                      milliseconds round_trip = {})
        : the_car(load_car(name)), adapter(the_car, options(std::move(faults), round_trip)) {
        app.delegate->doors().make_streams = [this](const std::string&,
                                                    long) -> std::unique_ptr<stream_pair> {
            auto made = std::make_unique<virtual_car_pair>(app.loop, adapter);
            pair = made.get();
            return made;
        };
        expect_warning("propagateSizeHints"); // of a view that is a window of its own
        app.delegate->do_actions();
        screen().view()->resize(1200, 720); // room for the rate
        screen().view()->show();
        app.find<QCheckBox>("fastSwitch")->click();
    }
    static adapter_options options(std::vector<fault> faults, milliseconds round_trip) {
        adapter_options chosen;
        chosen.round_trip = round_trip;
        chosen.faults = fault_set(std::move(faults));
        return chosen;
    }
    void run(seconds span, int task = TASK_RUN_LOG) {
        screen().choose_run(task);
        app.press("startStopBtn");
        app.loop.advance(span);
    }
    actions& screen() { return static_cast<actions&>(*app.delegate->current_screen()); }
    // What the adapter says to a client that sets up nothing.
    std::string says(const std::string& command) {
        app.loop.advance(seconds(1));
        adapter.receive(command + "\r", app.loop.now());
        std::string text;
        while (const auto due = adapter.next_output())
            text += adapter.take_output(*due);
        return text;
    }

    app_harness app;
    car the_car;
    virtual_adapter adapter;
    virtual_car_pair* pair = nullptr; // the last
};

TEST(fast_live, switch_makes_a_run_fast_tells_so_and_the_adapter_is_left_as_it_was) {
    fast_run fast("can29");
    fast.run(seconds(10));
    EXPECT_EQ(fast.screen().fast_level(), 3);
    EXPECT_GT(fast.screen().cycles(), 200u);
    EXPECT_TRUE(fast.app.find<QLabel>("sampleRate")->text().contains(QStringLiteral("several")));
    fast.screen().view()->resize(900, 600);
    fast.app.loop.advance(seconds(3));
    EXPECT_TRUE(
        fast.app.find<QCheckBox>("fastSwitch")->toolTip().contains(QStringLiteral("several")))
        << "without room for the rate";
    EXPECT_FALSE(connected_2_KS_interface);
    const sample_rows& rows = fast.screen().samples();
    EXPECT_TRUE(rows.text(rows.rows() - 2, 2).starts_with("410C")); // as a plain run files it
    EXPECT_EQ(rows.text(rows.rows() - 2, 2).size(), 8u);

    fast.app.press("startStopBtn");
    EXPECT_FALSE(fast.screen().running());
    fast.app.loop.advance(seconds(1));
    EXPECT_FALSE(fast.screen().task_running());
    EXPECT_TRUE(connected_2_KS_interface);
    EXPECT_EQ(fast.says("01 51"), "41 51 01\r\r>");
}

TEST(fast_live, question_mark_to_a_try_costs_nothing) {
    fast_run fast("can11", {parse_fault("digit_unknown")});
    fast.run(seconds(10));
    EXPECT_TRUE(fast.screen().running());
    EXPECT_EQ(fast.screen().fast_level(), 2);
    EXPECT_EQ(g_retries, 0);
    EXPECT_TRUE(fast.app.messages.shown.empty());
}

TEST(fast_live, screen_left_in_the_middle_lets_the_next_one_begin_with_a_reset) {
    fast_run fast("can29");
    fast.run(seconds(5));
    fast.app.delegate->do_read_codes();
    fast.app.press("readCodes");
    fast.app.loop.advance(seconds(20));
    EXPECT_TRUE(connected_2_KS_interface);
    EXPECT_TRUE(fast.app.last_status().starts_with("Codes read!")) << fast.app.last_status();
    EXPECT_EQ(fast.says("01 51"), "41 51 01\r\r>");
}

// A new link may lead to an adapter that has been reset.
TEST(fast_live, new_link_begins_with_a_reset) {
    fast_run fast("can29");
    fast.run(seconds(5));
    fast.app.delegate->reconnect();
    fast.app.loop.advance(seconds(10));
    EXPECT_FALSE(connected_2_KS_interface);
    EXPECT_FALSE(KS_did_connect_2_car);
}

TEST(fast_live, what_is_put_back_never_meets_another_task) {
    for (const milliseconds until_stop : {milliseconds(0), milliseconds(200), milliseconds(900)}) {
        fast_run fast("can29");
        fast.run(seconds(5));
        fast.app.find<QCheckBox>("fastSwitch")->click(); // off
        fast.app.press("startStopBtn");
        fast.app.press("startStopBtn");
        fast.app.loop.advance(until_stop); // into the handshake
        fast.app.press("startStopBtn");
        fast.app.loop.advance(seconds(5));
        EXPECT_FALSE(fast.app.delegate->adapter_changed());
        const bool as_expected = fast.says("01 51") == "41 51 01\r\r>";
        EXPECT_TRUE(as_expected || !connected_2_KS_interface) << until_stop.count();
    }
}

TEST(fast_live, adapter_that_does_not_take_what_puts_it_back_counts_as_not_connected) {
    fast_run fast("can29", {parse_fault("stall_after=300")});
    fast.run(seconds(20));
    fast.app.press("startStopBtn");
    fast.app.loop.advance(seconds(20));
    EXPECT_FALSE(fast.app.delegate->restoring_adapter());
    EXPECT_FALSE(connected_2_KS_interface);
}

TEST(fast_live, console_and_the_programs_end_find_the_adapter_as_it_was) {
    fast_run fast("can29");
    fast.run(seconds(5));
    fast.app.delegate->do_expert();
    fast.app.find<QLineEdit>("cmdTxt")->setText(QStringLiteral("01 51"));
    fast.app.press("sendBtn");
    fast.app.loop.advance(seconds(2));
    EXPECT_TRUE(fast.app.find<QPlainTextEdit>("replyTxt")
                    ->toPlainText()
                    .endsWith(QStringLiteral("01 51\n41 51 01\n\n>")))
        << fast.app.find<QPlainTextEdit>("replyTxt")->toPlainText().toStdString();

    fast.app.delegate->do_actions();
    fast.run(seconds(5));
    bool ended = false;
    EXPECT_TRUE(fast.app.delegate->restore_adapter_before([&] { ended = true; }));
    fast.app.loop.advance(seconds(1));
    EXPECT_TRUE(ended);
    EXPECT_EQ(fast.says("01 51"), "41 51 01\r\r>");
}

// Nobody waits for ever, and nothing goes on.
TEST(fast_live, link_lost_while_the_adapter_is_put_back_is_told_to_whoever_waits) {
    const auto lose = [](fast_run& fast) {
        ASSERT_TRUE(fast.app.delegate->restoring_adapter());
        expect_warning("Disconected");
        fast.pair->lose();
        fast.app.loop.settle();
        EXPECT_FALSE(fast.app.delegate->restoring_adapter());
        EXPECT_FALSE(fast.app.delegate->adapter_changed());
    };
    {
        fast_run closed("can29");
        closed.run(seconds(5));
        int ended = 0;
        EXPECT_TRUE(closed.app.delegate->restore_adapter_before([&] { ++ended; }));
        lose(closed);
        EXPECT_EQ(ended, 1);
    }
    {
        fast_run console("can29");
        console.run(seconds(5));
        console.app.delegate->do_expert();
        console.app.find<QLineEdit>("cmdTxt")->setText(QStringLiteral("01 51"));
        console.app.press("sendBtn");
        lose(console);
        EXPECT_TRUE(console.app.delegate->anything_outstanding()) << "sent, as later ones are";
    }
    fast_run plain("iso9141", {}, milliseconds(2));
    plain.run(seconds(0));
    for (int wait = 0; wait < 50000 && !plain.app.delegate->restoring_adapter(); ++wait)
        plain.app.loop.advance(milliseconds(1));
    EXPECT_TRUE(plain.screen().running());
    lose(plain);
    EXPECT_FALSE(plain.screen().running());
    EXPECT_FALSE(plain.app.delegate->anything_outstanding());
}

TEST(fast_live, every_kind_of_run_is_faster) {
    for (const int task : {TASK_FUEL_ECONOMY, TASK_BOOST, TASK_O2_SAMPLING}) {
        fast_run fast("can29");
        fast.run(seconds(10), task);
        EXPECT_EQ(fast.screen().fast_level(), 3) << task;
        // This car has not two of the boost run's four, and silence takes its time.
        EXPECT_GT(fast.screen().requests_answered(), task == TASK_BOOST ? 70u : 600u) << task;
        const sample_rows& rows = fast.screen().samples();
        EXPECT_FALSE(std::isnan(rows.value(rows.rows() - 2, 0))) << task;
    }
}

TEST(fast_live, where_nothing_is_gained_the_run_goes_on_plainly_and_the_switch_says_so) {
    fast_run fast("iso9141");
    fast.run(seconds(30));
    EXPECT_TRUE(fast.screen().running());
    EXPECT_EQ(fast.screen().fast_level(), 0);
    EXPECT_TRUE(connected_2_KS_interface); // the adapter is as it was
    EXPECT_GT(fast.screen().cycles(), 10u);
    fast.app.press("startStopBtn");
    EXPECT_FALSE(fast.app.find<QCheckBox>("fastSwitch")->isEnabled());
    fast.app.loop.advance(seconds(1));
    EXPECT_TRUE(fast.says("01 1C").starts_with("41 1C "));
}

TEST(fast_live, other_car_may_be_faster) {
    fast_run fast("iso9141");
    fast.run(seconds(12));
    fast.app.press("startStopBtn");
    fast.the_car = load_car("can29");
    fast.app.delegate->reconnect();
    fast.app.loop.advance(seconds(5));
    fast.run(seconds(6));
    EXPECT_EQ(fast.screen().fast_level(), 3);
}

TEST(fast_live, that_it_is_slower_now_can_be_read_and_void_replies_are_no_values) {
    fast_run fast("can11");
    fast.run(seconds(8));
    fast.adapter.set_faults(fault_set({parse_fault("digit_unknown")}));
    while (fast.screen().fast_level() == 3)
        fast.app.loop.advance(milliseconds(20));
    fast.app.loop.advance(seconds(3));
    const auto shows = [&](const char* text) {
        const auto labels = fast.screen().view()->findChildren<QLabel*>();
        return std::ranges::any_of(
            labels, [&](const QLabel* one) { return one->text().contains(QLatin1String(text)); });
    };
    EXPECT_TRUE(shows("more carefully"));
    fast.app.loop.advance(seconds(3));
    EXPECT_TRUE(shows("Got proper reply"));

    const sample_rows& rows = fast.screen().samples();
    std::uint64_t values = 0;
    for (std::size_t row = 0; row < rows.rows(); ++row)
        for (std::size_t place = 0; place < 4; ++place)
            values += !std::isnan(rows.value(row, place));
    EXPECT_EQ(fast.screen().counted(), values);
    EXPECT_LT(values, 4 * fast.screen().cycles());
}

TEST(fast_live, rate_is_capped) {
    fast_run fast("can29", {parse_fault("first_pid_only")}); // one value a request
    fast.app.defaults.set_integer("fast_requests_a_second", 20);
    fast.run(seconds(5));
    const auto before = fast.screen().requests_answered();
    fast.app.loop.advance(seconds(10));
    EXPECT_NEAR(double(fast.screen().requests_answered() - before), 200, 10);
}

} // namespace
