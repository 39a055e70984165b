// The list of Bluetooth devices against a mock of BlueZ, and what stands in its way.
#include "bluez_devices.h"
#include "bundle.h"
#include "command_functions.h"
#include "commands.h"
#include "mac_toolies.h"
#include "mock_bluez.h"
#include "user_defaults.h"

#include <sstream>

namespace {

using names = std::vector<std::string>;

names names_of(const bluez_devices& devices) {
    names found;
    for (const bluetooth_entry& device : devices.devices())
        found.push_back(device.name);
    return found;
}

bool problem_becomes(const bluez_devices& devices, bluetooth_problem problem) {
    return QTest::qWaitFor([&] { return !devices.starting() && devices.problem() == problem; });
}

const QVariantMap SERIAL_PORT{{QStringLiteral("UUIDs"), QStringList{SERIAL_PORT_UUID_TEXT}}};
const QVariantMap HEADSET{
    {QStringLiteral("UUIDs"), QStringList{QStringLiteral("0000111e-0000-1000-8000-00805f9b34fb")}}};
const QVariantMap PAIRED{{QStringLiteral("Paired"), true}};

TEST(bluetooth_addresses, have_six_pairs_of_hexadecimal_digits) {
    const std::pair<const char*, const char*> cases[] = {
        {"00:1a:7D:da:71:13", "00:1A:7D:DA:71:13"},
        {"00-1a-7d-da-71-13", "00:1A:7D:DA:71:13"},
        {"00:1a:7D:da:71:1", ""},
        {"00:1a:7D:da:71:133", ""},
        {"00:1a:7D:da:71:1g", ""},
        {"001a:7D:da:71:133", ""},
        {"", ""},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(bluetooth_address(text).value_or(""), expected) << text;
}

TEST(bluetooth_devices, paired_ones_come_first_then_the_others_as_they_are_found) {
    mock_bluez mock;
    ASSERT_TRUE(mock.usable());
    mock.add_adapter();
    const std::string hostile = "<b>\n\x1b[31m\xE2\x80\xAE" + std::string(200, 'x');
    const std::string known = mock.add_device("00:00:00:00:00:09", "Zebra");
    mock.set_device(known, PAIRED);
    mock.set_device(known, SERIAL_PORT);
    bluez_devices devices(mock.connect());
    ASSERT_TRUE(problem_becomes(devices, bluetooth_problem::none));
    EXPECT_EQ(names_of(devices), names{"Zebra"});
    devices.search();
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return mock.calls("/org/bluez/hci0", "StartDiscovery") == 1; }));
    mock.add_device("00:00:00:00:00:05", hostile);
    const std::string headset = mock.add_device("00:00:00:00:00:01", "");
    const std::string second = mock.add_device("00:00:00:00:00:07", "Anne's headset");
    ASSERT_TRUE(QTest::qWaitFor([&] { return devices.devices().size() == 4; }));
    mock.set_device(second, PAIRED);
    mock.set_device(second, HEADSET);
    mock.set_device(headset, HEADSET);
    ASSERT_TRUE(QTest::qWaitFor([&] { return names_of(devices).front() == "Anne's headset"; }));
    EXPECT_EQ(names_of(devices), (names{"Anne's headset", "Zebra", hostile, "00:00:00:00:00:01"}));
    const auto list = devices.devices();
    EXPECT_EQ(list[0].serial_port, serial_port_offer::no) << "paired, so its services are known";
    EXPECT_EQ(list[1].serial_port, serial_port_offer::yes);
    EXPECT_EQ(list[2].serial_port, serial_port_offer::unknown);
    EXPECT_EQ(list[3].serial_port, serial_port_offer::unknown) << "told only what it broadcasts";
    EXPECT_EQ(list[2].signal, -79);
    EXPECT_EQ(devices.find("00:00:00:00:00:07")->path.toStdString(), second);
    mock.remove_device(second);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !devices.find("00:00:00:00:00:07"); }));
    EXPECT_TRUE(devices.searching());
    devices.stop_search();
    EXPECT_FALSE(devices.searching());
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return mock.calls("/org/bluez/hci0", "StopDiscovery") == 1; }));
}

TEST(bluetooth_devices, their_kind_is_told_by_advertisement_class_and_services) {
    const QString services = QStringLiteral("UUIDs");
    const QString flags = QStringLiteral("AdvertisingFlags");
    const QStringList usual{QStringLiteral("0000FFF0-0000-1000-8000-00805f9b34fb")};
    const QVariantMap random{{QStringLiteral("AddressType"), QStringLiteral("random")}};
    const struct {
        QVariantMap properties;
        bool classic, low_energy;
        serial_port_offer serial_port;
    } cases[] = {
        {{{QStringLiteral("Class"), 0x1F00u}}, true, false, serial_port_offer::unknown},
        {SERIAL_PORT, true, false, serial_port_offer::yes},
        {{}, false, false, serial_port_offer::unknown},
        {random, false, true, serial_port_offer::unknown},
        {{{services, usual}}, false, true, serial_port_offer::yes},
        {{{services, usual + SERIAL_PORT.first().toStringList()}},
         true,
         true,
         serial_port_offer::yes},
        {{{flags, QByteArray("\x06")}}, false, true, serial_port_offer::unknown},
        {{{flags, QByteArray("\x02")}}, true, true, serial_port_offer::unknown},
        {{{flags, QByteArray("\x06")}, {QStringLiteral("Class"), 0x1F00u}},
         true,
         true,
         serial_port_offer::unknown},
        {{{flags, QByteArray("\x06")}, {QStringLiteral("ServicesResolved"), true}},
         false,
         true,
         serial_port_offer::no},
    };
    mock_bluez mock;
    ASSERT_TRUE(mock.usable());
    mock.add_adapter();
    mock.set_device(mock.add_device("00:00:00:00:00:FF", "", 0), random); // a beacon
    char address[] = "00:00:00:00:00:00";
    for (const auto& row : cases) {
        mock.set_device(mock.add_device(address, "OBDII", 0), row.properties);
        ++address[16];
    }
    bluez_devices devices(mock.connect());
    ASSERT_TRUE(problem_becomes(devices, bluetooth_problem::none));
    EXPECT_TRUE(devices.find("00:00:00:00:00:FF"));
    const auto list = devices.devices();
    ASSERT_EQ(list.size(), std::size(cases)) << "without the beacon";
    for (std::size_t i = 0; i < list.size(); ++i) {
        EXPECT_EQ(list[i].classic, cases[i].classic) << i;
        EXPECT_EQ(list[i].low_energy, cases[i].low_energy) << i;
        EXPECT_EQ(list[i].serial_port, cases[i].serial_port) << i;
    }
}

TEST(bluetooth_devices, what_stands_in_the_way_is_told_apart_and_may_go_away) {
    bluez_devices nowhere{QDBusConnection(QStringLiteral("no such bus"))};
    EXPECT_EQ(nowhere.problem(), bluetooth_problem::service_missing);
    EXPECT_FALSE(nowhere.starting());
    mock_bluez mock(false);
    ASSERT_TRUE(mock.usable());
    bluez_devices devices(mock.connect());
    devices.search();
    EXPECT_TRUE(problem_becomes(devices, bluetooth_problem::service_missing));
    mock.start_service();
    EXPECT_TRUE(problem_becomes(devices, bluetooth_problem::no_adapter));
    mock.add_adapter();
    EXPECT_TRUE(problem_becomes(devices, bluetooth_problem::none));
    EXPECT_TRUE(devices.searching()) << "as asked for while it was not possible";
    mock.power(false);
    EXPECT_TRUE(problem_becomes(devices, bluetooth_problem::switched_off));
    EXPECT_FALSE(devices.searching());
    mock.run("objects['/org/bluez/hci0'].AddMethod('org.bluez.Adapter1', 'StartDiscovery', '', '', "
             "\"raise dbus.exceptions.DBusException('', name='org.bluez.Error.InProgress')\")");
    mock.power(true);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return mock.calls("/org/bluez/hci0", "StartDiscovery") == 2; }));
    mock.add_device("00:00:00:00:00:01", "found by another program's search");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !devices.devices().empty(); }));
    EXPECT_TRUE(devices.searching());
    mock.stop_service();
    EXPECT_TRUE(problem_becomes(devices, bluetooth_problem::service_missing));
    EXPECT_TRUE(devices.devices().empty());
}

TEST(bluetooth_scan, prints_what_was_found_or_why_it_cannot) {
    const bundle texts(":/kestrom", "en");
    mock_bluez mock;
    ASSERT_TRUE(mock.usable());
    std::ostringstream out, err;
    cli_request asked;
    user_defaults units("/nonexistent/settings.conf");
    const mac_toolies toolies({&texts, &units});
    const desk work{asked, toolies, texts, units, out, err};
    {
        bluez_devices devices(mock.connect());
        EXPECT_EQ(scan_devices(work, devices, 5), 1);
        EXPECT_NE(err.str().find("no Bluetooth adapter"), std::string::npos) << err.str();
        EXPECT_EQ(out.str(), "");
    }
    mock.add_adapter();
    mock.set_device(mock.add_device("00:1D:A5:68:98:8B", "OBD\x1b[31m\u202E"), SERIAL_PORT);
    bluez_devices devices(mock.connect());
    EXPECT_EQ(scan_devices(work, devices, 0.3), 0);
    EXPECT_EQ(out.str(),
              "Address            Paired  Signal    Kind        Serial port    Name\n"
              "00:1D:A5:68:98:8B  no      -79 dBm   classic     yes            OBD [31m \n")
        << "nor turns its direction";
}

} // namespace
