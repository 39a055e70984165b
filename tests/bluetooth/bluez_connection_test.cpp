// Connecting to a device's serial port through a mock of BlueZ, and the channel that comes of it.
#include "bluez_connection.h"
#include "bluez_serial_port.h"
#include "mock_bluez.h"
#include "qt_run_loop.h"

#include <cerrno>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr char ADDRESS[] = "00:1D:A5:68:98:8B";

class adapter_behind_bluez : public testing::Test {
  protected:
    adapter_behind_bluez() {
        EXPECT_TRUE(mock.usable());
        mock.add_adapter();
        device = mock.add_device(ADDRESS, "OBDII");
        ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends);
    }
    ~adapter_behind_bluez() override {
        ::close(ends[0]);
        ::close(ends[1]);
    }

    // BlueZ takes the next call and hands over one end of a socket pair.
    void hand_over_when_asked() {
        connections = mock.calls(device.c_str(), "ConnectProfile");
        QObject::connect(&asked, &QTimer::timeout, &asked, [this] {
            if (mock.calls(device.c_str(), "ConnectProfile") == connections)
                return;
            asked.disconnect();
            mock.hand_over(bus, device, ends[1]);
        });
        asked.start(10);
    }
    bluetooth_user user_who_waits() {
        bluetooth_user user;
        user.wait = [](bluez_connection& connection, const std::string& name) {
            EXPECT_EQ(name, "OBDII");
            EXPECT_TRUE(QTest::qWaitFor([&] { return connection.finished(); }));
        };
        user.tell = [this](bluetooth_problem problem, const std::string&) { told = problem; };
        return user;
    }
    std::string received_by_adapter() {
        char bytes[100];
        const ssize_t count = ::recv(ends[0], bytes, sizeof bytes, MSG_DONTWAIT);
        return std::string(bytes, static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    }

    mock_bluez mock;
    QDBusConnection bus = mock.connect();
    std::string device;
    bluetooth_problem told = bluetooth_problem::none;
    qsizetype connections = 0;
    QTimer asked;
    int ends[2];
};

TEST_F(adapter_behind_bluez, the_cause_of_a_failure_is_told_apart) {
    const struct {
        const char* name;
        const char* text;
        bool paired;
        bluetooth_problem problem;
    } cases[] = {
        {"org.bluez.Error.Failed", "br-connection-refused", true, bluetooth_problem::refused},
        {"org.bluez.Error.Failed", "br-connection-refused", false,
         bluetooth_problem::pairing_failed},
        {"org.bluez.Error.Failed", "br-connection-page-timeout", false,
         bluetooth_problem::out_of_reach},
        {"org.bluez.Error.Failed", "br-connection-timeout", true, bluetooth_problem::out_of_reach},
        {"org.bluez.Error.Failed", "Host is down", true, bluetooth_problem::out_of_reach},
        {"org.bluez.Error.NotAvailable", "br-connection-profile-unavailable", true,
         bluetooth_problem::no_serial_port},
        {"org.bluez.Error.NotReady", "br-connection-adapter-not-powered", true,
         bluetooth_problem::switched_off},
        {"org.bluez.Error.InProgress", "br-connection-busy", true, bluetooth_problem::in_use},
        {"org.bluez.Error.Failed", "Permission denied", false, bluetooth_problem::pairing_failed},
        {"org.bluez.Error.Failed", "br-connection-unknown", false, bluetooth_problem::other},
    };
    bluez_devices devices(bus);
    for (const auto& expected : cases) {
        SCOPED_TRACE(expected.text);
        mock.set_device(device, {{QStringLiteral("Paired"), expected.paired}});
        mock.on_connect(device, std::string("raise dbus.exceptions.DBusException('") +
                                    expected.text + "', name='" + expected.name + "')");
        bluez_connection connection(devices, ADDRESS);
        ASSERT_TRUE(QTest::qWaitFor([&] { return connection.finished(); }));
        EXPECT_EQ(connection.problem(), expected.problem);
        const QDBusPendingCall late = mock.hand_over(bus, device, ends[1]);
        ASSERT_TRUE(QTest::qWaitFor([&] { return late.isFinished(); }));
        EXPECT_EQ(connection.take_descriptor(), -1);
    }
}

TEST_F(adapter_behind_bluez, a_device_that_goes_away_or_says_nothing_is_out_of_reach) {
    bluez_devices devices(bus);
    bluez_connection silent(devices, ADDRESS); // told "connected", handed nothing
    ASSERT_TRUE(QTest::qWaitFor([&] { return silent.finished(); }, 10'000));
    EXPECT_EQ(silent.problem(), bluetooth_problem::in_use);
    mock.on_connect(device, "import time; time.sleep(1)");
    bluez_connection gone(devices, ADDRESS);
    QTest::qWait(100);
    mock.remove_device(device);
    ASSERT_TRUE(QTest::qWaitFor([&] { return gone.finished(); }));
    EXPECT_EQ(gone.problem(), bluetooth_problem::out_of_reach);
}

// One device, whoever made the connection to it that is there: only ours may be closed.
TEST_F(adapter_behind_bluez, only_a_connection_of_this_attempt_is_closed) {
    const struct {
        const char* name;
        bool connected_before;
        bool refused;
        qsizetype disconnects;
    } cases[] = {
        {"ours, failed", false, true, 1},
        {"somebody else's, failed", true, true, 0},
        {"ours, closed", false, false, 1},
        {"somebody else's, left", true, false, 0},
    };
    qt_run_loop loop;
    qsizetype before = 0;
    for (const auto& expected : cases) {
        SCOPED_TRACE(expected.name);
        mock.set_device(device, {{QStringLiteral("Connected"), expected.connected_before},
                                 {QStringLiteral("Paired"), true}});
        mock.on_connect(device,
                        expected.refused
                            ? "raise dbus.exceptions.DBusException('br-connection-refused', "
                              "name='org.bluez.Error.Failed')"
                            : "");
        bluez_serial_port door(loop, user_who_waits(), [&] { return bus; });
        const auto chosen = door.device_with_address(ADDRESS);
        ASSERT_TRUE(chosen->getServiceRecordForUUID(SERIAL_PORT_UUID));
        if (!expected.refused)
            hand_over_when_asked();
        EXPECT_EQ(chosen->connect(), expected.refused ? ECONNREFUSED : 0);
        EXPECT_EQ(told, expected.refused ? bluetooth_problem::refused : bluetooth_problem::none);
        told = bluetooth_problem::none;
        std::shared_ptr<rfcomm_channel> channel;
        if (!expected.refused) {
            chosen->openRFCOMMChannelAsync(channel, 0, {[](int) {}, {}, [] {}});
            mock.set_device(device, {{QStringLiteral("Connected"), true}});
            ASSERT_TRUE(QTest::qWaitFor([&] { return door.devices().find(ADDRESS)->connected; }));
        }
        chosen->closeConnection();
        const auto path = door.devices().find(ADDRESS)->path;
        EXPECT_TRUE(QTest::qWaitFor([&] { return !door.devices().disconnecting(path); }));
        EXPECT_EQ(mock.calls(device.c_str(), "Disconnect") - before, expected.disconnects);
        before += expected.disconnects;
    }
}

// The link that is being closed would take the new one with it, and pass for somebody else's.
TEST_F(adapter_behind_bluez, a_new_connection_waits_for_the_end_of_the_one_before) {
    mock.set_device(device, {{QStringLiteral("Connected"), true}});
    qt_run_loop loop;
    bluez_serial_port door(loop, user_who_waits(), [&] { return bus; });
    door.devices().load_now(1000);
    door.devices().disconnect_device(QString::fromStdString(device));
    hand_over_when_asked();
    const auto chosen = door.device_with_address(ADDRESS);
    EXPECT_EQ(chosen->connect(), 0);
    std::shared_ptr<rfcomm_channel> channel;
    chosen->openRFCOMMChannelAsync(channel, 0, {[](int) {}, {}, [] {}});
    mock.set_device(device, {{QStringLiteral("Connected"), true}});
    ASSERT_TRUE(QTest::qWaitFor([&] { return door.devices().find(ADDRESS)->connected; }));
    chosen->closeConnection();
    EXPECT_TRUE(door.devices().disconnecting(QString::fromStdString(device))) << "it is ours";
}

TEST_F(adapter_behind_bluez, bytes_go_both_ways_and_every_fault_of_the_channel_is_survived) {
    qt_run_loop loop;
    bluez_serial_port door(loop, user_who_waits(), [&] { return bus; });
    const auto chosen = door.device_with_address("00-1d-a5-68-98-8b");
    ASSERT_TRUE(chosen);
    EXPECT_EQ(chosen->address_text(), "00-1D-A5-68-98-8B");
    std::uint8_t id = 1;
    ASSERT_TRUE(chosen->getServiceRecordForUUID(SERIAL_PORT_UUID));
    EXPECT_EQ(chosen->getServiceRecordForUUID(SERIAL_PORT_UUID)->getRFCOMMChannelID(id), 0);

    hand_over_when_asked();
    ASSERT_EQ(chosen->connect(), 0);
    std::string data;
    std::size_t largest = 0;
    int status = -1, closed = 0;
    std::shared_ptr<rfcomm_channel> channel;
    ASSERT_EQ(chosen->openRFCOMMChannelAsync(channel, id,
                                             {[&](int result) { status = result; },
                                              [&](std::string_view chunk) {
                                                  data += chunk;
                                                  largest = std::max(largest, chunk.size());
                                              },
                                              [&] { ++closed; }}),
              0);
    EXPECT_EQ(channel->writeSync("AT Z\r"), ENOTCONN) << "not open yet";
    ASSERT_TRUE(QTest::qWaitFor([&] { return status == 0; }));
    EXPECT_EQ(channel->writeSync(std::string_view("AT Z\r\0", 6)), 0);
    EXPECT_EQ(received_by_adapter(), std::string("AT Z\r\0", 6));

    const std::string reply = std::string(3000, 'A') + '\0' + ">";
    ASSERT_EQ(::send(ends[0], reply.data(), reply.size(), 0), static_cast<ssize_t>(reply.size()));
    ASSERT_TRUE(QTest::qWaitFor([&] { return data.size() == reply.size(); }));
    EXPECT_EQ(data, reply);
    EXPECT_LE(largest, 1024u);
    {
        const modal_hold hold(loop);
        ::send(ends[0], "late", 4, 0);
        QTest::qWait(50);
        EXPECT_EQ(data, reply);
    }
    ASSERT_TRUE(QTest::qWaitFor([&] { return data == reply + "late"; }));

    QElapsedTimer blocked;
    blocked.start();
    EXPECT_EQ(channel->writeSync(std::string(10'000'000, 'x')), ETIMEDOUT) << "nobody reads";
    EXPECT_LT(blocked.elapsed(), 4000);

    ::shutdown(ends[0], SHUT_RDWR);
    ASSERT_TRUE(QTest::qWaitFor([&] { return closed == 1; }));
    EXPECT_EQ(channel->writeSync("AT Z\r"), ENOTCONN);
    EXPECT_EQ(channel->closeChannel(), 0);
    EXPECT_EQ(chosen->closeConnection(), 0);
    channel.reset();
    EXPECT_EQ(closed, 1);
}

TEST_F(adapter_behind_bluez, a_device_known_to_have_no_serial_port_has_no_record) {
    mock.set_device(device, {{QStringLiteral("ServicesResolved"), true}});
    qt_run_loop loop;
    bluez_serial_port door(loop, user_who_waits(), [&] { return bus; });
    EXPECT_FALSE(door.device_with_address(ADDRESS)->getServiceRecordForUUID(SERIAL_PORT_UUID));
    EXPECT_FALSE(door.device_with_address("OBDII"));
}

TEST(no_bluetooth, a_connection_without_a_system_bus_fails_in_words) {
    qt_run_loop loop;
    bluetooth_problem told = bluetooth_problem::none;
    bluetooth_user user;
    user.wait = [](bluez_connection& connection, const std::string&) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return connection.finished(); }));
    };
    user.tell = [&](bluetooth_problem problem, const std::string& name) {
        told = problem;
        EXPECT_EQ(name, problem == bluetooth_problem::no_user ? "" : ADDRESS);
    };
    bluez_serial_port door(loop, user,
                           [] { return QDBusConnection(QStringLiteral("no such bus")); });
    EXPECT_FALSE(door.deviceSelector());
    EXPECT_EQ(told, bluetooth_problem::no_user);
    const auto chosen = door.device_with_address(ADDRESS);
    ASSERT_TRUE(chosen->getServiceRecordForUUID(SERIAL_PORT_UUID));
    EXPECT_EQ(chosen->connect(), ENODEV);
    EXPECT_EQ(told, bluetooth_problem::service_missing);
    EXPECT_EQ(chosen->closeConnection(), ENOTCONN);
}

} // namespace
