// A link belongs to the adapter that it was opened to: what the settings, the button that brings a
// lost link back, and late events of an abandoned connection do to it.
#include "actions.h"
#include "app_harness.h"
#include "full_disk.h"
#include "qt_warnings.h"
#include "readCodes.h"

#include <QLineEdit>
#include <QRadioButton>

#include <gtest/gtest.h>

namespace {

using std::chrono::seconds;
using list = std::vector<std::string>;

class another_adapter : public testing::Test {
  protected:
    void choose(const char* transport) {
        app.delegate->do_prefs();
        app.find<QRadioButton>(transport)->click();
    }
    actions& live() {
        app.delegate->do_actions();
        return static_cast<actions&>(*app.delegate->current_screen());
    }
    std::string sent_over_bluetooth() {
        if (app.bluetooth.written.empty())
            return {};
        const std::string command = app.bluetooth.written.front().c_str(); // without the zero byte
        app.bluetooth.written.pop_front();
        return command;
    }
    void open_bluetooth() {
        app.bluetooth.open_completes();
        app.loop.settle();
    }
    void know_the_adapter() {
        connected_2_KS_interface = KS_did_connect_2_car = true;
        g_cur_interface = std::string_view("ELM327");
        g_cur_protocol = std::string_view("AUTO");
        g_bus_form = bus_form::can;
        g_Supported_obd_mask_0 = g_Supported_obd_mask_2 = std::string_view("FFFFFFFF");
        g_this_delta = 3000;
    }
    static bool knows_nothing() {
        return !connected_2_KS_interface && !KS_did_connect_2_car && g_cur_interface.empty() &&
               g_cur_protocol.empty() && g_bus_form == bus_form::unknown &&
               g_Supported_obd_mask_0.empty() && g_Supported_obd_mask_2.empty() &&
               g_this_delta == 3;
    }
    app_harness app;
};

TEST_F(another_adapter, is_whatever_the_link_was_not_opened_to) {
    const struct {
        const char* name;
        std::function<void(app_harness&)> change;
        bool another;
    } cases[] = {
        {"nothing", [](app_harness&) {}, false},
        {"the transport",
         [](app_harness& a) { a.find<QRadioButton>("interfaceBluetooth")->click(); }, true},
        {"the address",
         [](app_harness& a) { a.find<QLineEdit>("ipLbl")->setText(QStringLiteral("10.0.0.8")); },
         true},
        {"the port",
         [](app_harness& a) { a.find<QLineEdit>("portsLbl")->setText(QStringLiteral("35001")); },
         true},
        {"the defaults", [](app_harness& a) { a.press("setDefaultsBtn"); }, true},
        {"the defaults, over Wi-Fi",
         [](app_harness& a) {
             a.press("setDefaultsBtn");
             a.find<QRadioButton>("interfaceWifi")->click();
         },
         true},
        {"the defaults and back",
         [](app_harness& a) {
             a.press("setDefaultsBtn");
             a.find<QRadioButton>("interfaceWifi")->click();
             a.find<QLineEdit>("ipLbl")->setText(QStringLiteral("10.0.0.9"));
         },
         false},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        app_harness other;
        other.delegate->do_expert();
        other.delegate->openInterfaceConnection();
        other.connect();
        know_the_adapter();
        other.delegate->do_prefs();
        one.change(other);
        EXPECT_TRUE(connected_2_WIFI_interface) << "not before the screen is left";
        other.delegate->do_expert();
        EXPECT_EQ(other.wire().closes, one.another ? 1 : 0);
        EXPECT_EQ(connected_2_WIFI_interface, !one.another);
        EXPECT_EQ(knows_nothing(), one.another);
    }
}

TEST_F(another_adapter, is_not_disturbed_by_an_attempt_over_wifi_that_comes_late) {
    app.delegate->do_read_codes();
    app.press("readCodes");
    const auto late = app.wire().handler;
    know_the_adapter();
    choose("interfaceBluetooth");
    actions& run = live();
    app.press("startStopBtn");
    open_bluetooth();
    EXPECT_EQ(sent_over_bluetooth(), "AT Z\r") << "a new adapter is reset";
    const list told = app.statuses;
    for (const int event :
         {STREAM_OPEN_COMPLETED, STREAM_BYTES_AVAILABLE, STREAM_ERROR, STREAM_END})
        late(stream_side::input, event);
    app.loop.advance(std::chrono::milliseconds(2900));
    EXPECT_EQ(app.statuses, told);
    EXPECT_TRUE(run.running());
    EXPECT_FALSE(connected_2_WIFI_interface || app.delegate->link_in_doubt());
    app.bluetooth.receive("ELM327 v1.5\r\r>");
    app.loop.advance(seconds(30)); // past the old attempt's timer
    EXPECT_EQ(sent_over_bluetooth(), "AT E0\r");
    EXPECT_FALSE(
        std::ranges::count(app.statuses, app.resources.localized("tcp_no_answer_yet_MSG")));
}

TEST_F(another_adapter,
       is_not_disturbed_by_a_channel_that_was_abandoned_and_one_can_be_opened_again) {
    for (const bool was_open : {true, false}) {
        choose("interfaceBluetooth");
        live();
        app.press("startStopBtn");
        if (was_open)
            open_bluetooth();
        const rfcomm_channel_delegate late = app.bluetooth.channel;
        const int closed = app.bluetooth.closed_channels;
        const int disconnected = app.bluetooth.closed_connections;
        choose("interfaceWifi");
        actions& run = live();
        EXPECT_EQ(app.bluetooth.closed_channels, closed + 1);
        EXPECT_EQ(app.bluetooth.closed_connections, disconnected + 1);
        app.press("startStopBtn");
        app.connect();
        EXPECT_EQ(app.sent(), "AT Z\r");
        const list told = app.statuses;
        late.open_complete(0);
        late.data("OK\r\r>");
        late.closed();
        late.open_complete(111);
        app.loop.advance(seconds(2));
        EXPECT_EQ(app.statuses, told);
        EXPECT_TRUE(run.running());
        EXPECT_EQ(app.sent(), "");
        EXPECT_FALSE(connected_2_BT_interface || app.delegate->link_in_doubt());
        EXPECT_EQ(app.bluetooth.closed_connections, disconnected + 1);
    }
    EXPECT_EQ(app.bluetooth.opens, 2);
}

TEST_F(another_adapter, ends_its_task_when_nobody_chooses_it) {
    app.delegate->do_read_codes();
    app.press("readCodes"); // over Wi-Fi, still connecting
    choose("interfaceBluetooth");
    app.bluetooth.selector_result = -1001;
    app.delegate->do_read_codes();
    app.press("readCodes");
    EXPECT_FALSE(static_cast<readCodes*>(app.delegate->current_screen())->task_running());
    EXPECT_TRUE(app.find("waity")->isHidden());
    EXPECT_EQ(app.last_status(), app.bluetooth.advice());
    app.delegate->do_expert();
    app.find<QLineEdit>("cmdTxt")->setText(QStringLiteral("AT I"));
    app.press("sendBtn");
    app.bluetooth.selector_result = SELECTOR_SUCCESS;
    app.delegate->openInterfaceConnection(); // for another task
    open_bluetooth();
    EXPECT_EQ(sent_over_bluetooth(), "");
}

TEST_F(another_adapter, over_bluetooth_a_lost_channel_is_opened_again) {
    choose("interfaceBluetooth");
    app.delegate->do_read_codes();
    app.press("readCodes");
    open_bluetooth();
    EXPECT_EQ(sent_over_bluetooth(), "AT Z\r");
    EXPECT_TRUE(app.find("reconnect")->isHidden());
    app.bluetooth.drop();
    app.loop.settle();
    EXPECT_FALSE(app.find("reconnect")->isHidden());
    app.press("reconnect");
    EXPECT_EQ(app.bluetooth.opens, 2);
    open_bluetooth();
    EXPECT_EQ(app.last_status(), app.resources.localized("ui_reconnected"));
    EXPECT_TRUE(app.find("reconnect")->isHidden());
    app.loop.advance(seconds(2));
    EXPECT_EQ(sent_over_bluetooth(), "");
    EXPECT_EQ(app.bluetooth.closed_connections, 1) << "the farewell to the lost one comes late";
    app.press("readCodes");
    EXPECT_EQ(sent_over_bluetooth(), "AT Z\r");
    app.loop.advance(seconds(3)); // silent, and no device is chosen
    app.bluetooth.selector_result = -1001;
    app.press("reconnect");
    EXPECT_EQ(app.last_status(), app.bluetooth.advice());
    EXPECT_FALSE(app.find("reconnect")->isHidden());
    app.bluetooth.selector_result = SELECTOR_SUCCESS;
    app.press("reconnect"); // and a task asked for while the channel opens is begun
    app.press("readCodes");
    open_bluetooth();
    EXPECT_EQ(sent_over_bluetooth(), "AT Z\r");
}

TEST_F(another_adapter, of_settings_that_cannot_be_saved_is_told_and_used_all_the_same) {
    choose("interfaceBluetooth");
    expect_warning("could not be written");
    {
        const full_disk full(0);
        app.delegate->do_expert();
    }
    ASSERT_EQ(app.messages.shown.size(), 1u);
    const alert_request& box = app.messages.shown[0];
    EXPECT_TRUE(box.message.starts_with(app.resources.localized("ui_settings_not_saved")));
    EXPECT_TRUE(box.message.ends_with(app.defaults.path()));
    EXPECT_EQ(g_connect_with, KS_USE_BT);
    EXPECT_EQ(app.defaults.integer(KS_INTERFACE_KEY), KS_USE_BT);
}

} // namespace
