// Serial ports over Low Energy: which characteristics they are, and an adapter that has them behind
// a mock of BlueZ.
#include "bluez_serial_port.h"
#include "gatt_serial.h"
#include "low_energy_port.h"
#include "mock_bluez.h"
#include "qt_run_loop.h"
#include "rows.h"
#include "test_paths.h"

#include <cerrno>
#include <fstream>
#include <sstream>
#include <sys/socket.h>
#include <unistd.h>

namespace {

// ---------------------------------------------------------------- the table

QString uuid(const QString& text) {
    return text.size() == 4 ? QStringLiteral("0000%1-0000-1000-8000-00805f9b34fb").arg(text)
                            : QStringLiteral("6e40%1-b5a3-f393-e0a9-e50e24dcca9e").arg(text.mid(4));
}

// "SERVICE UUID FLAG,FLAG; ..." where a UUID is "fff1", or "6e400002" of Nordic's; the path is the
// UUID too.
std::vector<gatt_characteristic> characteristics(const char* text) {
    std::vector<gatt_characteristic> all;
    for (const QString& one : QString::fromLatin1(text).split(QStringLiteral("; "))) {
        const QStringList parts = one.split(u' ');
        all.push_back({parts[1], uuid(parts[1]), uuid(parts[0]), parts[2].split(u',')});
    }
    return all;
}

TEST(gatt_serial, the_usual_characteristics_are_found_else_those_that_can_do_it) {
    for (const table_row& row : read_rows(test_data("gatt_serial.rows"))) {
        const auto port = find_serial_port(characteristics(row.fields[0].c_str()));
        const QString found =
            port ? port->notifies + u' ' + port->written +
                       (port->with_response ? QStringLiteral(" yes") : QStringLiteral(" no"))
                 : QStringLiteral("none");
        EXPECT_EQ(found.toStdString(), row.fields[1]) << row.place;
    }
}

// ---------------------------------------------------------------- an adapter

constexpr char ADDRESS[] = "00:1D:A5:68:98:8B";
constexpr char TYPICAL[] = "fff0 fff1 notify; fff0 fff2 write-without-response";

class low_energy_adapter : public testing::Test {
  protected:
    low_energy_adapter() {
        EXPECT_TRUE(mock.usable());
        mock.add_adapter();
        device = mock.add_device(ADDRESS, "OBDII", 0);
    }

    bluetooth_user user_who_waits() {
        bluetooth_user user;
        user.wait = [](bluez_connection& connection, const std::string&) {
            EXPECT_TRUE(QTest::qWaitFor([&] { return connection.finished(); }));
        };
        user.tell = [this](bluetooth_problem problem, const std::string&) { told = problem; };
        return user;
    }

    void serve(const char* served) {
        std::string list;
        for (const gatt_characteristic& one : characteristics(served))
            list += "('" + one.service.toStdString() + "', '" + one.uuid.toStdString() + "', '" +
                    one.flags.join(u' ').toStdString() + "'.split()), ";
        std::ostringstream peripheral;
        peripheral << std::ifstream(test_data("peripheral.py")).rdbuf();
        mock.run("PATH = '" + device + "'\nSERVED = [" + list + "]\n" + peripheral.str());
        mock.set_device(device,
                        {{QStringLiteral("UUIDs"), QStringList{uuid(QStringLiteral("fff0"))}}});
    }
    void flood(const char* message, const char* patience) {
        mock.run(std::string("def flood():\n  notify.settimeout(") + patience +
                 ")\n  for i in range(3000): notify.send(" + message +
                 ")\nflooding = threading.Thread(target=flood)\nflooding.start()");
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return mock.told("str(flooding.is_alive())") == "False"; }, 20'000));
    }
    int descriptor_of(low_energy_port& port) {
        bool opened = false;
        QObject::connect(&port, &low_energy_port::opened, [&] { opened = true; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return opened; }));
        return port.take_descriptor();
    }
    int connect() {
        told = bluetooth_problem::none;
        chosen = door.device_with_address(ADDRESS);
        EXPECT_TRUE(chosen->getServiceRecordForUUID(SERIAL_PORT_UUID));
        return chosen->connect();
    }
    void open() {
        ASSERT_EQ(connect(), 0);
        channel.reset();
        received.clear();
        closed = 0;
        int status = -1;
        chosen->openRFCOMMChannelAsync(channel, 0,
                                       {[&](int result) { status = result; },
                                        [this](std::string_view chunk) { received += chunk; },
                                        [this] { ++closed; }});
        ASSERT_TRUE(QTest::qWaitFor([&] { return status == 0; }));
    }
    qsizetype calls(const char* method) { return mock.calls(device.c_str(), method); }
    bool written_becomes(const std::string& text) {
        return QTest::qWaitFor([&] {
            return mock.told("written.hex()") ==
                   QByteArray::fromStdString(text).toHex().toStdString();
        });
    }

    mock_bluez mock;
    QDBusConnection bus = mock.connect();
    qt_run_loop loop;
    bluez_serial_port door{loop, user_who_waits(), [this] { return bus; }};
    std::string device, received;
    bluetooth_problem told = bluetooth_problem::none;
    int closed = 0;
    std::shared_ptr<bluetooth_device> chosen;
    std::shared_ptr<rfcomm_channel> channel;
};

TEST_F(low_energy_adapter, a_conversation_goes_both_ways_in_pieces_that_fit) {
    const std::string command = std::string(50, 'A') + "\r" + '\0';
    for (const auto& [served, kind] : {std::pair{TYPICAL, "{'command'}"},
                                       {"fff0 fff1 notify; fff0 fff2 write", "{'request'}"}}) {
        SCOPED_TRACE(kind);
        serve(served);
        open();
        EXPECT_EQ(channel->writeSync(command), 0);
        EXPECT_TRUE(written_becomes(command));
        EXPECT_EQ(mock.told("str(kinds)"), kind);
        mock.run("notify.send(b'41 00 '), notify.send(b''), notify.send(b'BE 3E\\r\\r>')");
        EXPECT_TRUE(QTest::qWaitFor([&] { return received == "41 00 BE 3E\r\r>"; }));
        chosen->closeConnection();
        channel.reset();
    }
}

TEST_F(low_energy_adapter, what_comes_while_nothing_is_delivered_is_kept) {
    serve(TYPICAL);
    open();
    {
        const modal_hold hold(loop); // more than two sockets hold
        flood("b'x' * 20", "None");
        EXPECT_EQ(received, "");
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return received == std::string(60'000, 'x'); }));
}

TEST_F(low_energy_adapter,
       a_lost_connection_is_told_behind_what_was_received_and_can_be_made_again) {
    serve(TYPICAL);
    const char* const ends[] = {
        "notify.send(b'last'), drop()",
        "notify.send(b'last'), device.UpdateProperties(DEVICE, {'Connected': NO})",
        "def write(*args): raise dbus.exceptions.DBusException('', name='org.bluez.Error.Failed')\n"
        "notify.send(b'last')",
    };
    for (const char* end : ends) {
        SCOPED_TRACE(end);
        open();
        mock.run(end);
        channel->writeSync("AT Z\r");
        EXPECT_TRUE(QTest::qWaitFor([&] { return closed == 1; }));
        EXPECT_EQ(received, "last");
        EXPECT_EQ(channel->writeSync("AT Z\r"), ENOTCONN);
        chosen->closeConnection();
        channel.reset();
    }
}

TEST_F(low_energy_adapter, a_flood_that_is_not_read_ends_the_connection_behind_what_was_kept) {
    serve(TYPICAL);
    low_energy_port port(door.devices(), QString::fromStdString(device));
    const int descriptor = descriptor_of(port);
    flood("b'x' * 500", "2"); // seconds without anybody who takes it
    std::string bytes(4096, 0);
    std::size_t kept = 0;
    EXPECT_TRUE(QTest::qWaitFor([&] {
        ssize_t count = 0;
        while ((count = ::recv(descriptor, bytes.data(), bytes.size(), MSG_DONTWAIT)) > 0)
            kept += static_cast<std::size_t>(count);
        return count == 0;
    }));
    EXPECT_GT(kept, std::size_t{low_energy_port::MOST_UNREAD});
    ::close(descriptor);
}

// Of the characteristics that come one by one, the first ones may not be the right ones.
TEST_F(low_energy_adapter, services_are_looked_for_once_all_are_known) {
    serve(TYPICAL);
    mock.run("def serve(known=serve): known(); device.UpdateProperties(DEVICE, "
             "{'ServicesResolved': NO})");
    low_energy_port port(door.devices(), QString::fromStdString(device));
    ASSERT_TRUE(QTest::qWaitFor([&] { return calls("Connect") == 1; }));
    QTest::qWait(100);
    EXPECT_FALSE(port.has_port());
    mock.set_device(device, {{QStringLiteral("ServicesResolved"), true}});
    EXPECT_TRUE(QTest::qWaitFor([&] { return port.has_port(); }));
}

// The service itself would wait for half a minute, and refuse other writes meanwhile.
TEST_F(low_energy_adapter, a_write_without_an_answer_ends_the_connection_before_the_service_does) {
    serve("fff0 fff1 notify; fff0 fff2 write");
    mock.run("import time\ndef write(*args): time.sleep(60)");
    low_energy_port port(door.devices(), QString::fromStdString(device), 50);
    const int descriptor = descriptor_of(port);
    ASSERT_EQ(::write(descriptor, "AT Z\r", 5), 5);
    char byte = 0;
    EXPECT_TRUE(QTest::qWaitFor([&] { return ::recv(descriptor, &byte, 1, MSG_DONTWAIT) == 0; }));
    ::close(descriptor);
}

std::string raising(const char* function, const char* name, const char* text) {
    return std::string("def ") + function + "(): raise dbus.exceptions.DBusException('" + text +
           "', name='org.bluez.Error." + name + "')";
}

TEST_F(low_energy_adapter, a_failure_is_told_apart_and_takes_the_connection_down_again) {
    const std::pair<std::string, bluetooth_problem> cases[] = {
        {raising("serve", "Failed", "le-connection-abort-by-local"),
         bluetooth_problem::out_of_reach},
        {raising("acquire", "NotPermitted", "Notify acquired"), bluetooth_problem::in_use},
        {raising("acquire", "InProgress", "In Progress"), bluetooth_problem::in_use},
        {raising("acquire", "Failed", "Not connected"), bluetooth_problem::out_of_reach},
        {"SERVED = []", bluetooth_problem::no_serial_port},
    };
    qsizetype disconnects = 0;
    for (const auto& [python, expected] : cases) {
        SCOPED_TRACE(python);
        serve(TYPICAL);
        mock.run(python);
        EXPECT_NE(connect(), 0);
        EXPECT_EQ(told, expected);
        EXPECT_TRUE(QTest::qWaitFor([&] { return calls("Disconnect") == ++disconnects; }));
    }
}

TEST_F(low_energy_adapter, a_dual_one_falls_back_to_low_energy_and_one_of_unknown_kind_to_classic) {
    const QStringList both{SERIAL_PORT_UUID_TEXT, uuid(QStringLiteral("fff0"))};
    const struct {
        QStringList services; // told beforehand
        const char* classic;  // the answer of ConnectProfile
        std::string low_energy;
        bluetooth_problem told;
        qsizetype asked, tried; // classic, Low Energy
    } cases[] = {
        {both, "br-connection-profile-unavailable", "", bluetooth_problem::none, 1, 1},
        {both, "br-connection-page-timeout", "", bluetooth_problem::none, 1, 1},
        {{}, "", "", bluetooth_problem::none, 0, 1},
        {{},
         "br-connection-busy",
         "def serve():\n"
         "    device.UpdateProperties(DEVICE, {'UUIDs': dbus.Array([CLASSIC], 's')})\n"
         "    raise dbus.exceptions.DBusException('br-connection-profile-unavailable',"
         " name='org.bluez.Error.NotAvailable')",
         bluetooth_problem::in_use,
         1,
         1},
        {both, "br-connection-refused",
         raising("serve", "Failed", "br-connection-profile-unavailable"),
         bluetooth_problem::refused, 1, 1},
        {both, "br-connection-profile-unavailable",
         raising("serve", "Failed", "le-connection-abort-by-local"),
         bluetooth_problem::out_of_reach, 1, 1},
        {both, "br-connection-busy", "", bluetooth_problem::in_use, 1, 0},
    };
    mock.set_device(device,
                    {{QStringLiteral("Paired"), true}}); // so a refusal is no failed pairing
    qsizetype asked = 0;
    qsizetype tried = 0;
    for (const auto& row : cases) {
        SCOPED_TRACE(row.classic);
        serve(TYPICAL);
        mock.run("device.Disconnect()");
        mock.set_device(device, {{QStringLiteral("UUIDs"), row.services}});
        ASSERT_TRUE(QTest::qWaitFor([&] {
            const auto known = door.devices().find(ADDRESS);
            return known && !known->resolved && known->classic != row.services.isEmpty() &&
                   known->low_energy == known->classic;
        }));
        mock.on_connect(device, "raise dbus.exceptions.DBusException('" + std::string(row.classic) +
                                    "', name='org.bluez.Error.Failed')");
        mock.run(row.low_energy);
        EXPECT_EQ(connect(), error_number(row.told));
        EXPECT_EQ(told, row.told);
        EXPECT_EQ(calls("ConnectProfile"), asked += row.asked);
        EXPECT_EQ(calls("Connect"), tried += row.tried);
        chosen->closeConnection();
        chosen.reset();
    }
}

} // namespace
