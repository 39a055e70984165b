// The Bluetooth transport over a scripted door and a virtual clock.
#include "actions.h"
#include "app_harness.h"
#include "qt_warnings.h"

#include <QLineEdit>

#include <gtest/gtest.h>

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using list = std::vector<std::string>;

class link_over_bluetooth : public testing::Test {
  protected:
    link_over_bluetooth() { app.delegate->do_expert(); }
    void send(const char* command) {
        app.find<QLineEdit>("cmdTxt")->setText(QLatin1String(command));
        app.press("sendBtn");
    }
    std::string sent() {
        if (app.bluetooth.written.empty())
            return {};
        const std::string command = app.bluetooth.written.front();
        app.bluetooth.written.pop_front();
        return command;
    }
    void open() {
        ASSERT_TRUE(app.delegate->openInterfaceConnection());
        app.bluetooth.open_completes();
        app.loop.settle();
    }
    app_harness app{app_harness::first_start};
};

// A command as the adapter receives it: with the terminating zero byte.
std::string with_zero(const std::string& command) {
    return command + std::string(1, '\0');
}

TEST_F(link_over_bluetooth, commands_leave_before_and_again_after_the_channel_is_open) {
    send("AT I");
    EXPECT_EQ(app.bluetooth.allowed, std::vector<std::uint16_t>{0x1101});
    EXPECT_EQ(app.bluetooth.opened_channel_id, 7);
    EXPECT_EQ(app.statuses.front(), "BT Connected");
    EXPECT_FALSE(connected_2_BT_interface);
    EXPECT_EQ(app.defaults.string(KS_LAST_BT_KEY), "00-1a-7d-da-71-13");
    EXPECT_EQ(user_defaults(app.defaults.path()).string(KS_LAST_BT_KEY), "00-1a-7d-da-71-13");
    EXPECT_EQ(sent(), with_zero("AT I\r"));
    app.bluetooth.open_completes();
    app.loop.settle();
    EXPECT_TRUE(connected_2_BT_interface);
    ASSERT_GE(app.statuses.size(), 2u);
    EXPECT_EQ(list(app.statuses.end() - 2, app.statuses.end()), (list{"BT Connected!!", ""}));
    EXPECT_EQ(sent(), with_zero("AT I\r"));
    app.loop.advance(seconds(2)); // the first command's timer still runs, the answer is late
    app.bluetooth.receive("ELM327\r>");
    app.loop.advance(milliseconds(999));
    EXPECT_EQ(app.last_status(), "");
    app.loop.advance(milliseconds(1));
    EXPECT_EQ(app.last_status(), "Cur op timed out... Please Check/retry");
}

TEST_F(link_over_bluetooth, the_codes_screen_waits_for_the_channel) {
    app.delegate->do_read_codes();
    app.press("readCodes");
    EXPECT_EQ(sent(), "");
    EXPECT_TRUE(app.delegate->anything_outstanding());
    app.loop.advance(seconds(20));
    app.bluetooth.open_completes();
    app.loop.settle();
    EXPECT_EQ(sent(), with_zero("AT Z\r"));
    EXPECT_EQ(sent(), "");
}

// A run does not wait for a link that is not being opened.
TEST_F(link_over_bluetooth, a_run_ends_when_the_chooser_is_cancelled_or_the_channel_closes) {
    app.defaults.set_string_array(PIDS_ARRAY_KEY, {"0D"});
    app.delegate->do_actions();
    const auto runs = [this] {
        return static_cast<actions*>(app.delegate->current_screen())->running();
    };
    app.bluetooth.selector_result = -1001;
    app.press("startStopBtn");
    EXPECT_EQ(app.bluetooth.choosers, 1);
    EXPECT_FALSE(runs());
    app.bluetooth.selector_result = SELECTOR_SUCCESS;
    app.press("startStopBtn");
    EXPECT_TRUE(runs()) << "the channel is coming up";
    app.bluetooth.open_completes();
    app.loop.settle();
    EXPECT_EQ(sent(), with_zero("AT Z\r"));
    app.bluetooth.drop();
    app.loop.settle();
    EXPECT_FALSE(runs());
    app.loop.advance(seconds(2));
    app.press("startStopBtn");
    EXPECT_FALSE(runs());
    EXPECT_EQ(app.last_status(), app.resources.localized("bt_closed_MSG"));
    EXPECT_EQ(sent(), "");
    EXPECT_EQ(app.bluetooth.opens, 1);
}

TEST_F(link_over_bluetooth, every_failure_of_the_open_sequence_is_logged_and_shown_nowhere) {
    const struct {
        const char* name;
        std::function<void(scripted_serial_port&)> fault;
        const char* logged; // null: nothing that warns
        int choosers_afterwards;
        int closed_connections;
    } cases[] = {
        {"no chooser", [](auto& bt) { bt.no_selector = true; },
         "Error - unable to allocate IOBluetoothDeviceSelectorController.\n", 2, 0},
        {"cancelled", [](auto& bt) { bt.selector_result = -1001; }, nullptr, 2, 0},
        {"nothing selected", [](auto& bt) { bt.nothing_selected = true; },
         "Error - no selected device.  ***This should never happen.***\n", 2, 0},
        {"no record", [](auto& bt) { bt.no_service_record = true; },
         "Error - no spp service in selected device.  ***This should never happen since the "
         "selector forces the user to select only devices with spp.***\n",
         2, 0},
        {"no channel id", [](auto& bt) { bt.channel_id_error = 1; },
         "Error - no spp service in selected device.  ***This should never happen an spp service "
         "must have an rfcomm channel id.***\n",
         2, 0},
        // The channel stays, so the next call answers yes; the device was never kept.
        {"open fails", [](auto& bt) { bt.open_error = 5; }, "Error - open sequence failed.***\n", 1,
         0},
    };
    for (const auto& expected : cases) {
        SCOPED_TRACE(expected.name);
        app_harness one(app_harness::first_start);
        expected.fault(one.bluetooth);
        if (expected.logged)
            expect_warning(expected.logged);
        one.delegate->do_expert();
        one.statuses.clear();
        EXPECT_FALSE(one.delegate->openInterfaceConnection());
        one.loop.advance(seconds(10));
        EXPECT_EQ(one.statuses, list{});
        EXPECT_TRUE(one.messages.shown.empty());
        EXPECT_FALSE(one.defaults.contains(KS_LAST_BT_KEY));
        EXPECT_EQ(one.bluetooth.closed_connections, expected.closed_connections);
        one.delegate->openInterfaceConnection();
        EXPECT_EQ(one.bluetooth.choosers, expected.choosers_afterwards);
    }
}

TEST_F(link_over_bluetooth, a_failed_open_without_a_channel_goes_on_like_a_success) {
    app.bluetooth.open_error = 5;
    app.bluetooth.open_leaves_channel = false;
    EXPECT_TRUE(app.delegate->openInterfaceConnection());
    EXPECT_EQ(app.last_status(), "BT Connected");
    EXPECT_EQ(app.defaults.string(KS_LAST_BT_KEY), "00-1a-7d-da-71-13");
    EXPECT_FALSE(app.delegate->anything_outstanding());
    app.delegate->sendOBDcmd("AT Z\r"); // nowhere to go
    app.loop.advance(seconds(3));
    EXPECT_EQ(app.last_status(), "Cur op timed out... Please Check/retry");
}

TEST_F(link_over_bluetooth, a_channel_that_does_not_open_is_closed_and_never_opened_again) {
    app.delegate->openInterfaceConnection();
    expect_warning("Error - failed to open the RFCOMM channel with error 0000006f.\n");
    app.bluetooth.open_completes(111);
    app.loop.advance(milliseconds(999));
    EXPECT_EQ(app.bluetooth.closed_connections, 0);
    app.loop.advance(milliseconds(1));
    EXPECT_EQ(app.bluetooth.closed_connections, 1);
    EXPECT_FALSE(connected_2_BT_interface || app.delegate->anything_outstanding());
    EXPECT_EQ(app.last_status(), "BT Connected");
    EXPECT_TRUE(app.delegate->openInterfaceConnection());
    EXPECT_EQ(app.bluetooth.opens, 1);
}

TEST_F(link_over_bluetooth, an_adapter_switched_off_turns_every_later_command_into_a_time_out) {
    open();
    app.bluetooth.close_connection_error = 0x0c;
    expect_warning("Error - failed to close the device connection with error 0000000c.\n");
    send("AT I");
    app.bluetooth.receive("ELM"); // half a reply
    app.loop.settle();
    app.bluetooth.drop();
    app.loop.advance(seconds(1));
    EXPECT_FALSE(app.delegate->anything_outstanding());
    EXPECT_FALSE(connected_2_BT_interface);
    EXPECT_EQ(app.bluetooth.closed_connections, 1);
    app.bluetooth.write_error = 107;
    for (int i = 0; i < 2; ++i) {
        app.statuses.clear();
        send("AT I");
        EXPECT_TRUE(app.delegate->anything_outstanding());
        app.loop.advance(seconds(3));
        EXPECT_EQ(app.last_status(), "Cur op timed out... Please Check/retry");
    }
    EXPECT_EQ(app.bluetooth.written.size(), 3u);
    EXPECT_EQ(app.bluetooth.choosers, 1);
    EXPECT_EQ(app.bluetooth.closed_channels, 0);
}

TEST_F(link_over_bluetooth, data_ends_at_its_first_zero_byte_and_nothing_is_posted_for_no_data) {
    open();
    list chunks;
    const auto watcher = app.notifications.add_observer(
        OBD_EVENT, [&](const std::string& text) { chunks.push_back(text); });
    const std::string flood(200'000, 'A');
    for (const std::string& data : {std::string(), std::string("41 0C\r>"),
                                    std::string("OK\0garbage>", 11), std::string("\0OK", 3), flood})
        app.bluetooth.receive(data);
    app.loop.settle();
    EXPECT_EQ(chunks, (list{"41 0C\r>", "OK", "", flood}));
    app.notifications.remove_observer(watcher);
}

TEST_F(link_over_bluetooth, lengths_are_those_of_16_bits) {
    open();
    app.bluetooth.written.clear();
    for (const std::size_t length : {0u, 65534u, 65535u, 65536u})
        app.delegate->sendOBDcmd(std::string(length, 'x'));
    std::vector<std::size_t> lengths;
    for (const std::string& bytes : app.bluetooth.written)
        lengths.push_back(bytes.size());
    EXPECT_EQ(lengths, (std::vector<std::size_t>{1, 65535, 0, 1}));
}

TEST_F(link_over_bluetooth, leaving_runs_the_closing_of_an_open_channel_only) {
    open();
    app.delegate->wrap_leave();
    EXPECT_FALSE(connected_2_BT_interface);
    EXPECT_EQ(app.bluetooth.closed_channels, 0);
    app.loop.advance(seconds(1));
    EXPECT_EQ(app.bluetooth.closed_connections, 1);
    app.delegate->wrap_leave();
    app.loop.advance(seconds(1));
    EXPECT_EQ(app.bluetooth.closed_connections, 1);
}

TEST_F(link_over_bluetooth, nothing_is_delivered_while_the_user_chooses) {
    bool ran = false;
    app.bluetooth.while_choosing = [&] {
        app.loop.after(milliseconds(0), [&] { ran = true; });
        app.loop.advance(seconds(30));
        EXPECT_FALSE(ran);
    };
    app.delegate->openInterfaceConnection();
    app.loop.settle();
    EXPECT_TRUE(ran);
}

TEST(last_adapter, is_used_without_a_question_only_when_asked_for_and_readable) {
    const struct {
        const char* name;
        bool reuse;
        const char* stored;
        int choosers;
        const char* used;
    } cases[] = {
        {"not asked for", false, "aa-bb-cc-dd-ee-ff", 1, "00-1a-7d-da-71-13"},
        {"asked for", true, "aa-bb-cc-dd-ee-ff", 0, "aa-bb-cc-dd-ee-ff"},
        {"nothing stored", true, "", 1, "00-1a-7d-da-71-13"},
        {"no address", true, "OBDII", 1, "00-1a-7d-da-71-13"},
    };
    for (const auto& expected : cases) {
        SCOPED_TRACE(expected.name);
        app_harness app([&](user_defaults& store) {
            store.set_integer(KS_INTERFACE_KEY, KS_USE_BT);
            store.set_boolean(REUSE_LAST_BT_KEY, expected.reuse);
            store.set_string(KS_LAST_BT_KEY, expected.stored);
        });
        EXPECT_TRUE(app.delegate->openInterfaceConnection());
        EXPECT_EQ(app.bluetooth.choosers, expected.choosers);
        EXPECT_EQ(app.defaults.string(KS_LAST_BT_KEY), expected.used);
    }
}

TEST(last_adapter, that_does_not_connect_leaves_nothing_behind_and_the_next_press_tries_again) {
    app_harness app([](user_defaults& store) {
        store.set_integer(KS_INTERFACE_KEY, KS_USE_BT);
        store.set_boolean(REUSE_LAST_BT_KEY, true);
        store.set_string(KS_LAST_BT_KEY, "AA-bb-cc-dd-ee-ff");
    });
    app.delegate->do_read_codes();
    app.bluetooth.connect_error = 112;
    for (int press = 0; press < 2; ++press) {
        expect_warning("Error - failed to open the RFCOMM channel with error 00000070.\n");
        app.statuses.clear();
        app.press("readCodes");
        app.loop.advance(seconds(10));
        EXPECT_EQ(app.statuses, (list{"Starting Read Codes", app.bluetooth.advice()}));
        EXPECT_FALSE(connected_2_BT_interface || app.delegate->anything_outstanding());
        EXPECT_EQ(app.defaults.string(KS_LAST_BT_KEY), "AA-bb-cc-dd-ee-ff");
    }
    EXPECT_EQ(app.bluetooth.opens + app.bluetooth.closed_connections, 0);
    app.bluetooth.connect_error = 0;
    app.press("readCodes");
    EXPECT_EQ(app.last_status(), "BT Connected");
    app.bluetooth.open_completes();
    app.loop.settle();
    EXPECT_EQ(app.bluetooth.written, std::deque<std::string>{with_zero("AT Z\r")});
    EXPECT_EQ(app.bluetooth.choosers, 0);
}

} // namespace
