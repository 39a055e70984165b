// The shell and the link over scripted doors and a virtual clock.
#include "app_harness.h"
#include "qt_warnings.h"
#include "transports.h"

#include <QLineEdit>
#include <QPlainTextEdit>

#include <gtest/gtest.h>
#include <optional>
#include <sstream>

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

TEST(settings_at_start, a_first_start_seeds_the_store) {
    app_harness app(app_harness::first_start);
    const user_defaults& store = app.defaults;
    EXPECT_EQ(store.integer(KS_INTERFACE_KEY), KS_USE_BT);
    EXPECT_EQ(store.string(WIFI_IP_KEY), "192.168.0.10");
    EXPECT_EQ(store.string(WIFI_PORT_KEY), "35000");
    EXPECT_EQ(store.string_array(PIDS_ARRAY_KEY),
              (std::vector<std::string>{"0D", "11", "0C", "05"}));
    EXPECT_TRUE(store.contains(KS_METRIC_UNITS_KEY) && store.contains(LOG_RUNS_KEY));
    EXPECT_FALSE(store.contains(KS_LAST_BT_KEY));
    EXPECT_EQ(g_connect_with, KS_USE_BT);
    EXPECT_FALSE(g_metric_units || g_log_runs);
    EXPECT_EQ(g_cur_wifi_IP, "192.168.0.10");
    EXPECT_EQ(g_this_delta, 3);
    EXPECT_EQ(app.delegate->current_screen(), nullptr);
    EXPECT_EQ(user_defaults(store.path()).integer(KS_INTERFACE_KEY), KS_USE_BT)
        << "written at once";
}

TEST(settings_at_start, stored_values_decide_the_transport) {
    const struct {
        int stored;
        bool serial;
        int transport;
        const char* address;
        const char* port;
    } cases[] = {{KS_USE_BT, false, KS_USE_BT, "", ""},
                 {KS_USE_BT, true, KS_USE_BT, "", ""},
                 {KS_USE_WIFI, false, KS_USE_WIFI, "10.0.0.9", ""},
                 {7, false, KS_USE_WIFI, "10.0.0.9", ""},
                 {KS_USE_WIFI, true, KS_USE_WIFI, "", "/dev/ttyUSB7"}};
    for (const auto& expected : cases) {
        app_harness app([&](user_defaults& store) {
            app_harness::use_wifi(store);
            store.set_integer(KS_INTERFACE_KEY, expected.stored);
            store.set_boolean(STREAM_IS_SERIAL_KEY, expected.serial);
            store.set_string(SERIAL_PORT_KEY, "/dev/ttyUSB7");
            store.set_integer(SERIAL_SPEED_KEY, 9600);
            for (const char* key : {KS_METRIC_UNITS_KEY, LOG_RUNS_KEY})
                store.set_boolean(key, true);
        });
        EXPECT_EQ(g_connect_with, expected.transport);
        EXPECT_EQ(g_cur_wifi_IP, expected.address);
        EXPECT_EQ(g_cur_serial_port, expected.port);
        EXPECT_EQ(g_cur_serial_speed, *expected.port ? 9600 : 0);
        EXPECT_EQ(chosen_transport().serial, *expected.port != 0);
        EXPECT_TRUE(g_metric_units && g_log_runs);
        app.delegate->do_prefs(); // and leaving them keeps what was stored
        app.delegate->do_expert();
        EXPECT_TRUE(app.defaults.boolean(KS_METRIC_UNITS_KEY) &&
                    app.defaults.boolean(LOG_RUNS_KEY));
    }
}

class link_over_tcp : public testing::Test {
  protected:
    link_over_tcp() { app.delegate->do_expert(); }
    void send(const char* command) {
        app.find<QLineEdit>("cmdTxt")->setText(QLatin1String(command));
        app.press("sendBtn");
    }
    std::string transcript() {
        return app.find<QPlainTextEdit>("replyTxt")->toPlainText().toStdString();
    }
    app_harness app;
};

TEST_F(link_over_tcp, the_first_command_leaves_one_second_after_the_first_open_event_and_once) {
    send("AT I");
    EXPECT_EQ(app.wire().host, "10.0.0.9");
    EXPECT_EQ(app.wire().port, 35000);
    EXPECT_EQ(app.last_status(), "Trying: 10.0.0.9:35000 ");
    scripted_stream_pair::raise(app.wire(), app.loop, STREAM_OPEN_COMPLETED, stream_side::input);
    scripted_stream_pair::raise(app.wire(), app.loop, STREAM_OPEN_COMPLETED, stream_side::output);
    app.loop.advance(milliseconds(999));
    EXPECT_EQ(app.last_status(), "TCP Connected!! ... Sending intial request");
    EXPECT_EQ(app.sent(), "");
    app.loop.advance(milliseconds(1));
    EXPECT_EQ(app.last_status(), "Connected!  Querying ...");
    EXPECT_EQ(app.sent(), "AT I\r");
    app.loop.advance(seconds(2));
    EXPECT_EQ(app.sent(), "");
}

TEST_F(link_over_tcp, the_deferred_call_does_nothing_when_a_command_went_out_before_it) {
    send("AT I");
    scripted_stream_pair::raise(app.wire(), app.loop, STREAM_OPEN_COMPLETED);
    app.loop.settle();
    send("AT RV");
    EXPECT_EQ(app.sent(), "AT RV\r");
    app.loop.advance(milliseconds(1500));
    EXPECT_EQ(app.sent(), "");
}

TEST_F(link_over_tcp, a_time_out_ends_with_its_connection) {
    send("AT I");
    app.connect();
    send("AT RV");
    const std::string before = app.last_status();
    g_cur_wifi_port = "35001";
    app.delegate->settings_left();
    app.loop.advance(seconds(10));
    EXPECT_EQ(app.last_status(), before);
}

TEST_F(link_over_tcp, a_serial_port_goes_the_same_way_and_tells_it_in_its_own_words) {
    use_transport(transport_named("serial"));
    g_cur_serial_port = "/dev/ttyUSB0";
    send("AT I");
    EXPECT_EQ(app.last_status(), "Trying: /dev/ttyUSB0 ");
    EXPECT_TRUE(app.wire().serial);
    app.loop.advance(TCP_TIME_OUT);
    EXPECT_EQ(app.last_status(), app.resources.localized("serial_no_answer_yet_MSG"));
    app.connect();
    EXPECT_EQ(app.statuses.end()[-2], "Connected!! ... Sending initial request");
    EXPECT_EQ(app.sent(), "AT I\r");
    g_cur_serial_speed = 9600; // another way to the adapter
    app.delegate->settings_left();
    EXPECT_EQ(app.wire().closes, 1);
    send("AT I");
    EXPECT_EQ(app.last_status(), "Trying: /dev/ttyUSB0:9600 ");
    EXPECT_EQ(app.wire().port, 9600);
}

TEST_F(link_over_tcp, what_is_to_begin_and_what_is_owed_end_with_their_connection) {
    send("AT I");
    scripted_stream_pair::raise(app.wire(), app.loop, STREAM_OPEN_COMPLETED);
    app.loop.settle();
    g_cur_wifi_port = "35001";
    app.delegate->settings_left();
    const auto told = app.statuses.size();
    app.loop.advance(milliseconds(1500));
    EXPECT_EQ(app.statuses.size(), told);
    send("AT I");
    app.connect();
    EXPECT_TRUE(app.delegate->anything_outstanding());
    expect_warning("Disconected");
    scripted_stream_pair::raise(app.wire(), app.loop, STREAM_END);
    app.loop.settle();
    EXPECT_FALSE(app.delegate->anything_outstanding());
    app.delegate->reconnect(); // and breaks again
    scripted_stream_pair::raise(app.wire(), app.loop, STREAM_OPEN_COMPLETED);
    scripted_stream_pair::raise(app.wire(), app.loop, STREAM_END);
    app.loop.advance(milliseconds(1500));
    EXPECT_EQ(app.last_status(), "Disconnected");
}

TEST_F(link_over_tcp, a_flood_without_line_ends_is_broken_into_lines) {
    send("AT MA");
    app.connect();
    app.receive(std::string(200'000, 'F'));
    std::istringstream lines(transcript());
    std::size_t longest = 0;
    for (std::string line; std::getline(lines, line);)
        longest = std::max(longest, line.size());
    EXPECT_LT(longest, 10'000);
}

TEST_F(link_over_tcp, the_first_chunk_stops_only_the_last_timer) {
    send("AT I");
    app.connect();
    send("AT RV"); // two commands out: the first one's timer still runs
    app.receive("ELM");
    app.receive("327\r\r>");
    EXPECT_EQ(transcript(), "AT I\nAT RV\nELM327\n\n>");
    app.loop.advance(seconds(3));
    EXPECT_EQ(app.last_status(), "Cur op timed out... Please Check/retry");
    EXPECT_EQ(app.messages.beeps, 1);
    EXPECT_EQ(g_obd_msg_state, S_FAIL);
    app.receive("late>"); // the screen is as usable as before
    EXPECT_TRUE(transcript().ends_with("late>"));
}

TEST_F(link_over_tcp, a_command_while_connecting_is_dropped_but_its_timeout_comes) {
    send("AT I");
    app.delegate->sendOBDcmd("AT RV\r");
    EXPECT_EQ(app.wires.size(), 2u) << "every attempt to send opens another pair";
    EXPECT_EQ(app.wires[0]->closes, 1) << "a replaced pair is closed";
    app.loop.advance(seconds(3));
    EXPECT_EQ(app.last_status(), "Cur op timed out... Please Check/retry");
    EXPECT_TRUE(app.wire().written.empty());
}

TEST_F(link_over_tcp, failures_are_told_in_words_and_the_next_send_connects_again) {
    expect_warning("Connection refused");
    expect_warning("Disconected");
    send("AT I");
    app.fail("Connection refused");
    EXPECT_EQ(app.last_status(), "Couldn't connect...Please Check\n\nConnection refused");
    app.loop.advance(seconds(30));
    EXPECT_EQ(app.last_status(), "Couldn't connect...Please Check\n\nConnection refused")
        << "25 s: already told";
    send("AT I");
    app.connect();
    EXPECT_EQ(app.sent(), "AT I\r");
    scripted_stream_pair::raise(app.wire(), app.loop, STREAM_END);
    app.loop.settle();
    EXPECT_EQ(app.last_status(), "Disconnected");
    send("AT RV"); // a lost link still counts as open
    EXPECT_EQ(app.wires.size(), 2u);
    app.loop.advance(seconds(3));
    EXPECT_EQ(app.last_status(), "Cur op timed out... Please Check/retry");
}

TEST_F(link_over_tcp, the_connection_timer_speaks_only_of_an_attempt_that_still_waits) {
    send("AT I");
    app.loop.advance(seconds(25));
    EXPECT_EQ(app.last_status(), app.resources.localized("tcp_no_answer_yet_MSG"));
    send("AT I"); // a new attempt, which opens
    app.connect();
    app.receive("OK>");
    const auto told = app.statuses.size();
    app.loop.advance(seconds(60));
    EXPECT_EQ(app.statuses.size(), told);
}

TEST_F(link_over_tcp, a_stream_pair_that_cannot_be_made_is_silence) {
    app.delegate->doors().make_streams = [](const std::string&, long) { return nullptr; };
    send("AT I");
    app.loop.advance(seconds(30));
    EXPECT_EQ(app.last_status(), "Trying: 10.0.0.9:35000 ");
}

TEST(ports, text_that_is_no_number_is_port_0) {
    const std::pair<const char*, long> cases[] = {
        {"abc", 0},        {"", 0},    {" 35000", 35000},
        {"35000x", 35000}, {"-5", -5}, {"99999999999999999999", 65536}};
    for (const auto& [text, port] : cases) {
        app_harness app([text = text](user_defaults& store) {
            app_harness::use_wifi(store);
            store.set_string(WIFI_PORT_KEY, text);
        });
        app.delegate->openInterfaceConnection();
        EXPECT_EQ(app.wire().port, port) << text;
    }
}

TEST(screens, events_without_a_screen_or_on_the_preferences_are_ignored) {
    app_harness app;
    app.delegate->openInterfaceConnection();
    app.connect();
    app.receive("41 00>");
    app.delegate->do_prefs();
    app.receive("41 00>");
    app.delegate->sendOBDcmd("AT Z\r");
    app.loop.advance(seconds(3));
    app.delegate->do_logs();
    EXPECT_EQ(app.statuses, std::vector<std::string>{});
}

TEST(screens, a_fresh_codes_screen_never_starts_the_old_ones_task) {
    app_harness app;
    app.delegate->do_read_codes();
    app.press("clearCodes");
    app.connect(); // "AT Z" is out
    EXPECT_EQ(app.sent(), "AT Z\r");
    app.delegate->do_prefs();
    app.delegate->do_read_codes();
    app.receive("ELM327\r>OK\r>");
    app.loop.advance(seconds(10));
    EXPECT_EQ(app.sent(), "");
    app.press("readCodes"); // and works by its own button
    EXPECT_EQ(app.sent(), "AT Z\r");
}

TEST(screens, an_old_screen_lives_until_the_run_loop_lets_it_go) {
    app_harness app;
    app.delegate->do_read_codes();
    app.delegate->status_shown =
        [&](const std::string& text) { // switches under the screen's own operation
            if (text.starts_with("Trying"))
                app.delegate->do_prefs();
        };
    app.press("readCodes");
    app.loop.settle();
    EXPECT_EQ(app.delegate->current_screen_name(), PREFS_VIEW);
}

TEST(help, shows_the_version_line_and_the_help_text) {
    app_harness app;
    app.delegate->do_help_button();
    ASSERT_EQ(app.messages.shown.size(), 1u);
    EXPECT_EQ(app.messages.shown[0].message, "Kestrom - 1.11");
    EXPECT_EQ(app.messages.shown[0].informative, app.resources.localized("KS_help"));
    EXPECT_EQ(app.messages.shown[0].buttons, std::vector<std::string>{"OK"});
}

// Spoilt answers are asked for again; one command that was not taken leaves the adapter in doubt.
TEST(put_back, is_well_when_every_command_was_taken) {
    static constexpr std::string_view BACK[] = {"AT ST 32", "AT H0"};
    const struct {
        const char* replies; // each up to ">"; the first one is owed to the screen
        const char* sent;
        bool well;
    } rows[] = {{"ELM>OK>OK>", "AT ST 32 AT H0 ", true},
                {"ELM>?>OK>", "AT ST 32 AT H0 ", true},
                {"ELM>@#>@#>OK>OK>", "AT ST 32 AT ST 32 AT ST 32 AT H0 ", true},
                {"ELM>@#>@#>@#>OK>", "AT ST 32 AT ST 32 AT ST 32 AT H0 ", false}};
    for (const auto& row : rows) {
        app_harness app;
        app.delegate->do_expert();
        app.find<QLineEdit>("cmdTxt")->setText(QStringLiteral("AT I"));
        app.press("sendBtn");
        app.connect();
        EXPECT_EQ(app.sent(), "AT I\r");
        app.delegate->restore_later(BACK);
        std::optional<bool> well;
        app.delegate->restore_adapter([&](bool taken) { well = taken; });
        std::string sent;
        std::istringstream replies(row.replies);
        for (std::string reply; std::getline(replies, reply, '>');) {
            EXPECT_FALSE(well) << row.replies;
            EXPECT_TRUE(app.wire().written.empty()) << row.replies;
            app.receive(reply + "\r\r>");
            while (!app.wire().written.empty()) {
                sent += app.sent();
                sent.back() = ' ';
            }
        }
        EXPECT_EQ(sent, row.sent) << row.replies;
        EXPECT_EQ(well, row.well) << row.replies;
        EXPECT_EQ(app.delegate->adapter_changed(), !row.well) << row.replies;
    }
}

} // namespace
