// The dialog, driven by object name against a mock of BlueZ.
#include "bundle.h"
#include "device_chooser.h"
#include "mock_bluez.h"
#include "qt_warnings.h"

#include <QAbstractItemModel>
#include <QLabel>
#include <QPushButton>
#include <QTableView>

#include <sys/socket.h>
#include <unistd.h>

namespace {

class choosing : public testing::Test {
  protected:
    choosing() { EXPECT_TRUE(mock.usable()); }

    void open(const char* last_address = "") {
        dialog = std::make_unique<device_chooser>(nullptr, devices, texts, last_address);
        table = dialog->findChild<QTableView*>(QStringLiteral("devices"));
        expect_warning("propagateSizeHints"); // of a window without a window system
        dialog->show();
    }
    QPushButton* button(const char* name) {
        return dialog->findChild<QPushButton*>(QLatin1String(name));
    }
    QString state() { return dialog->findChild<QLabel*>(QStringLiteral("state"))->text(); }
    bool state_becomes(const char* part) {
        return QTest::qWaitFor([&] { return state().contains(QLatin1String(part)); });
    }
    // The row's cells, joined.
    std::string row(int number) {
        std::string cells;
        for (int column = 0; column < table->model()->columnCount(); ++column)
            cells += (column ? "|" : "") +
                     table->model()->index(number, column).data().toString().toStdString();
        return cells;
    }
    bool rows_become(int count) {
        return QTest::qWaitFor([&] { return table->model()->rowCount() == count; });
    }

    mock_bluez mock;
    QDBusConnection bus = mock.connect();
    bluez_devices devices{bus};
    bundle texts{":/kestrom", "en"};
    std::unique_ptr<device_chooser> dialog;
    QTableView* table = nullptr;
};

TEST_F(choosing, the_list_shows_every_device_as_plain_text_and_follows_the_search) {
    mock.add_adapter();
    open("00:00:00:00:00:02");
    mock.add_device("00:00:00:00:00:01", "<b>one</b>\r\n\x01two" + std::string(100, 'y'));
    ASSERT_TRUE(rows_become(1));
    EXPECT_EQ(row(0), "<b>one</b> two" + std::string(46, 'y') +
                          "\xE2\x80\xA6|00:00:00:00:00:01||-79 dBm|Classic|not known yet");
    EXPECT_TRUE(state().startsWith(QLatin1String("Searching")));
    const std::string last = mock.add_device("00:00:00:00:00:02", "OBDII");
    ASSERT_TRUE(rows_become(2));
    mock.set_device(last, {{QStringLiteral("Paired"), true},
                           {QStringLiteral("AdvertisingFlags"), QByteArray("\x02")},
                           {QStringLiteral("UUIDs"), QStringList{SERIAL_PORT_UUID_TEXT}}});
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return row(0) == "OBDII|00:00:00:00:00:02|yes|-79 dBm|both|yes"; }));
    EXPECT_EQ(table->currentIndex().row(), 1) << "the row that was selected stays selected";
    mock.remove_device("/org/bluez/hci0/dev_00_00_00_00_00_01");
    ASSERT_TRUE(rows_become(1));
    EXPECT_EQ(table->currentIndex().row(), 0);
    dialog->reject();
    EXPECT_EQ(dialog->result(), QDialog::Rejected);
    EXPECT_FALSE(dialog->take_connection());
}

TEST_F(choosing, hundreds_of_devices_are_listed) {
    mock.add_adapter();
    open();
    for (int i = 0; i < 300; ++i)
        mock.add_device(QStringLiteral("00:00:00:00:%1:%2")
                            .arg(i / 256, 2, 16, QLatin1Char('0'))
                            .arg(i % 256, 2, 16, QLatin1Char('0'))
                            .toUtf8()
                            .constData(),
                        "Device " + std::to_string(i));
    EXPECT_TRUE(rows_become(300));
    EXPECT_TRUE(row(299).starts_with("Device 299|"));
}

TEST_F(choosing, what_is_in_the_way_stands_in_the_table_with_what_to_do) {
    open();
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return devices.problem() == bluetooth_problem::no_adapter; }));
    const auto hint = [&] { return table->viewport()->findChild<QLabel*>()->text(); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return hint().contains(QLatin1String("Bluetooth stick")); }));
    EXPECT_FALSE(button("connectBtn")->isEnabled() || button("searchBtn")->isEnabled());
    mock.stop_service();
    EXPECT_TRUE(QTest::qWaitFor([&] { return hint().contains(QLatin1String("systemctl")); }));
}

TEST_F(choosing, a_failure_is_told_and_the_next_attempt_may_succeed) {
    mock.add_adapter();
    const std::string device = mock.add_device("00:00:00:00:00:02", "OBDII");
    mock.on_connect(device, "raise dbus.exceptions.DBusException('br-connection-page-timeout', "
                            "name='org.bluez.Error.Failed')");
    mock.set_device(mock.add_device("00:00:00:00:00:01", "Another"),
                    {{QStringLiteral("Paired"), true}});
    open("00:00:00:00:00:02");
    ASSERT_TRUE(rows_become(2));
    QTest::keyClick(dialog.get(), Qt::Key_Return);
    EXPECT_TRUE(state_becomes("OBDII does not answer"));
    EXPECT_TRUE(dialog->isVisible() && button("connectBtn")->isEnabled());

    mock.on_connect(device, "");
    button("connectBtn")->click();
    EXPECT_TRUE(state_becomes("Connecting to OBDII"));
    QTest::keyClick(dialog.get(), Qt::Key_Escape); // back to the list, not out of the dialog
    EXPECT_TRUE(dialog->isVisible() && button("connectBtn")->isEnabled());

    button("connectBtn")->click();
    ASSERT_TRUE(QTest::qWaitFor([&] { return mock.calls("/org/bluez", "RegisterProfile") == 3; }));
    int ends[2];
    ::socketpair(AF_UNIX, SOCK_STREAM, 0, ends);
    mock.hand_over(bus, device, ends[1]);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !dialog->isVisible(); }));
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    const auto connection = dialog->take_connection();
    ASSERT_TRUE(connection);
    EXPECT_EQ(connection->address(), "00:00:00:00:00:02");
    const int descriptor = connection->take_descriptor();
    EXPECT_NE(descriptor, -1);
    for (const int end : {descriptor, ends[0], ends[1]})
        ::close(end);
}

TEST_F(choosing, a_device_without_a_serial_port_cannot_be_chosen) {
    mock.add_adapter();
    const std::string device = mock.add_device("00:00:00:00:00:02", "Headset");
    mock.set_device(device, {{QStringLiteral("ServicesResolved"), true}});
    open();
    ASSERT_TRUE(QTest::qWaitFor([&] { return table->model()->rowCount() == 1; }));
    EXPECT_FALSE(button("connectBtn")->isEnabled());
    table->selectRow(0);
    EXPECT_FALSE(button("connectBtn")->isEnabled());
    EXPECT_TRUE(state().contains(QLatin1String("Headset offers no serial port")));
    QTest::keyClick(table, Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
}

} // namespace
