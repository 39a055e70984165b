// Preferences and console, driven by object name.
#include "app_harness.h"
#include "languages.h"

#include <QAbstractItemModel>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>

namespace {

using list = std::vector<std::string>;

class preferences : public testing::Test {
  protected:
    preferences() { app.delegate->do_prefs(); }
    QString text(const char* name) { return app.find<QLabel>(name)->text(); }
    std::string value(int row) {
        return app.find<QTableView>("_pid_availableTableView")
            ->model()
            ->index(row, 0)
            .data()
            .toString()
            .toStdString();
    }
    void toggle(int row) {
        auto* table = app.find<QTableView>("_pid_availableTableView");
        Q_EMIT table->clicked(table->model()->index(row, 1));
    }
    void leave() { app.delegate->do_expert(); }
    app_harness app;
};

TEST_F(preferences, leaving_saves_and_choosing_them_again_does_not) {
    app.find<QLineEdit>("ipLbl")->setText(QStringLiteral("192.168.4.1"));
    app.find<QCheckBox>("unitsCheck")->setChecked(true);
    app.delegate->do_prefs();
    EXPECT_EQ(app.find<QLineEdit>("ipLbl")->text(), QLatin1String("10.0.0.9"));
    app.find<QLineEdit>("ipLbl")->setText(QStringLiteral("192.168.4.1"));
    app.find<QCheckBox>("unitsCheck")->setChecked(true);
    app.find<QCheckBox>("logRunsCheck")->setChecked(true);
    toggle(1);
    leave();
    EXPECT_EQ(app.defaults.string(WIFI_IP_KEY), "192.168.4.1");
    EXPECT_EQ(g_cur_wifi_IP, "192.168.4.1");
    EXPECT_TRUE(g_metric_units && app.defaults.boolean(KS_METRIC_UNITS_KEY));
    EXPECT_TRUE(g_log_runs && app.defaults.boolean(LOG_RUNS_KEY));
    EXPECT_EQ(app.defaults.string_array(PIDS_ARRAY_KEY), (list{"0D", "0C", "05"}));
}

TEST_F(preferences, reusing_the_last_adapter_is_off_until_asked_for) {
    EXPECT_FALSE(app.find<QCheckBox>("lastBTCheck")->isEnabled()) << "Wi-Fi";
    app.find<QRadioButton>("interfaceBluetooth")->click();
    EXPECT_TRUE(app.find<QCheckBox>("lastBTCheck")->isEnabled());
    EXPECT_FALSE(app.find<QCheckBox>("lastBTCheck")->isChecked());
    app.find<QCheckBox>("lastBTCheck")->setChecked(true);
    leave();
    EXPECT_TRUE(app.defaults.boolean(REUSE_LAST_BT_KEY));
    app.delegate->do_prefs();
    EXPECT_TRUE(app.find<QCheckBox>("lastBTCheck")->isChecked());
    app.press("setDefaultsBtn");
    EXPECT_FALSE(app.defaults.boolean(REUSE_LAST_BT_KEY));
}

TEST_F(preferences, a_chosen_language_is_kept_for_the_next_start) {
    auto* box = app.find<QComboBox>("languageBox");
    EXPECT_EQ(box->currentIndex(), 0) << "the desktop's";
    box->setCurrentIndex(box->findText(QStringLiteral("Español")));
    EXPECT_EQ(app.defaults.string(LANGUAGE_KEY), "") << "not before the screen is left";
    leave();
    EXPECT_EQ(app.defaults.string(LANGUAGE_KEY), "es");
    app.delegate->do_prefs();
    EXPECT_EQ(app.find<QComboBox>("languageBox")->currentText().toStdString(), "Español");
    app.press("setDefaultsBtn");
    EXPECT_EQ(app.find<QComboBox>("languageBox")->currentIndex(), 0);
    app.defaults.set_string(LANGUAGE_KEY, "tlh");
    EXPECT_EQ(chosen_language(app.defaults), "") << "a language without a table";
}

TEST_F(preferences, quitting_saves_as_leaving_does) {
    app.find<QCheckBox>("unitsCheck")->setChecked(true);
    app.delegate->applicationWillTerminate();
    EXPECT_TRUE(app.defaults.boolean(KS_METRIC_UNITS_KEY));
}

TEST_F(preferences, bluetooth_leaves_the_stored_address_alone) {
    app.find<QLineEdit>("ipLbl")->setText(QStringLiteral("1.2.3.4"));
    app.find<QRadioButton>("interfaceBluetooth")->click();
    EXPECT_TRUE(app.find("wifiTabView")->isHidden());
    leave();
    EXPECT_EQ(app.defaults.integer(KS_INTERFACE_KEY), KS_USE_BT);
    EXPECT_EQ(app.defaults.string(WIFI_IP_KEY), "10.0.0.9");
    EXPECT_EQ(g_connect_with, KS_USE_BT);
}

TEST_F(preferences, a_cable_is_chosen_among_the_ports_that_come_and_go) {
    std::vector<serial_port_entry> ports;
    app.delegate->doors().serial_ports = [&] { return ports; };
    auto* box = app.find<QComboBox>("serialPort");
    const auto shown = [&] {
        list texts;
        for (int row = 0; row < box->count(); ++row)
            texts.push_back(box->itemText(row).toStdString());
        return texts;
    };
    EXPECT_TRUE(app.find("serialPanel")->isHidden());
    app.find<QRadioButton>("interfaceSerial")->click();
    EXPECT_FALSE(app.find("serialPanel")->isHidden());
    EXPECT_TRUE(app.find("wifiTabView")->isHidden());
    EXPECT_EQ(shown(), list{"none is plugged in"});
    ports = {{"/dev/ttyS0", "", ""}};
    app.loop.advance(std::chrono::seconds(1));
    EXPECT_EQ(shown(), (list{"/dev/ttyS0", "none is plugged in"}));
    EXPECT_EQ(box->currentIndex(), 1) << "the computer's own is for the user to choose";
    ports.insert(ports.begin(), {"/dev/ttyUSB0", "FT232R\nUART", "FTDI"});
    app.loop.advance(std::chrono::seconds(1));
    EXPECT_EQ(shown(), (list{"/dev/ttyUSB0: FT232R UART, FTDI", "/dev/ttyS0"}));
    EXPECT_EQ(box->currentIndex(), 0);
    ports.erase(ports.begin());
    app.loop.advance(std::chrono::seconds(1));
    EXPECT_EQ(box->currentText().toStdString(), "/dev/ttyUSB0 (not plugged in)");
    auto* speed = app.find<QComboBox>("serialSpeed");
    EXPECT_EQ(speed->currentData().toInt(), 0);
    speed->setCurrentIndex(speed->findText(QStringLiteral("115200")));
    leave();
    EXPECT_EQ(app.defaults.integer(KS_INTERFACE_KEY), KS_USE_WIFI);
    EXPECT_TRUE(app.defaults.boolean(STREAM_IS_SERIAL_KEY));
    EXPECT_EQ(app.defaults.string(WIFI_IP_KEY), "10.0.0.9") << "left alone";
    app.delegate->openInterfaceConnection();
    EXPECT_TRUE(app.wire().serial);
    EXPECT_EQ(app.wire().host, "/dev/ttyUSB0");
    EXPECT_EQ(app.wire().port, 115200);
    app.delegate->do_prefs(); // its own choice comes back
    EXPECT_TRUE(app.find<QRadioButton>("interfaceSerial")->isChecked());
    EXPECT_EQ(app.find<QComboBox>("serialSpeed")->currentText(), QLatin1String("115200"));
    app.find<QRadioButton>("interfaceWifi")->click();
    leave();
    EXPECT_FALSE(app.defaults.boolean(STREAM_IS_SERIAL_KEY));
    EXPECT_EQ(app.wire().closes, 1);
    app.delegate->do_prefs();
    EXPECT_TRUE(app.find<QRadioButton>("interfaceWifi")->isChecked());
    app.press("setDefaultsBtn");
    EXPECT_EQ(app.defaults.string(SERIAL_PORT_KEY), "");
    EXPECT_EQ(app.defaults.integer(SERIAL_SPEED_KEY), 0);
    const std::string link = app.folder.path().toStdString(); // is there, and in no list
    app.defaults.set_string(SERIAL_PORT_KEY, link);
    app.delegate->do_prefs();
    app.find<QRadioButton>("interfaceSerial")->click();
    EXPECT_EQ(app.find<QComboBox>("serialPort")->currentText().toStdString(), link);
}

TEST_F(preferences, stored_parameters_outside_the_list_are_dropped) {
    app.defaults.set_string_array(PIDS_ARRAY_KEY, {"42", "0C"});
    app.delegate->do_prefs();
    EXPECT_EQ((list{value(0), value(1), value(2), value(3)}), (list{"NO", "NO", "YES", "NO"}));
    EXPECT_EQ(text("pidsStatus"), QLatin1String(" 1 Selected PIDs"));
    toggle(2);
    EXPECT_EQ(text("pidsStatus"), QLatin1String("No selection"));
    leave();
    EXPECT_EQ(app.defaults.string_array(PIDS_ARRAY_KEY), list{});
}

TEST_F(preferences, the_defaults_come_back_but_the_stored_logging_stays) {
    app.find<QCheckBox>("logRunsCheck")->setChecked(true);
    leave();
    app.delegate->do_prefs();
    toggle(0);
    app.press("setDefaultsBtn");
    EXPECT_TRUE(app.find<QRadioButton>("interfaceBluetooth")->isChecked());
    EXPECT_FALSE(app.find<QCheckBox>("logRunsCheck")->isChecked());
    EXPECT_TRUE(app.defaults.boolean(LOG_RUNS_KEY));
    EXPECT_EQ(app.defaults.string(WIFI_IP_KEY), "192.168.0.10");
    EXPECT_EQ(text("pidsStatus"), QLatin1String(" 4 Selected PIDs"));
}

TEST_F(preferences, another_port_closes_the_link_and_greets_the_new_adapter_anew) {
    leave();
    app.delegate->openInterfaceConnection();
    app.connect();
    connected_2_KS_interface = true;
    g_cur_protocol = std::string_view("AUTO");
    app.delegate->do_prefs();
    leave(); // unchanged: stays open
    EXPECT_TRUE(connected_2_WIFI_interface && connected_2_KS_interface);
    app.delegate->do_prefs();
    app.find<QLineEdit>("portsLbl")->setText(QStringLiteral("35001"));
    leave();
    EXPECT_FALSE(connected_2_WIFI_interface || connected_2_KS_interface);
    EXPECT_TRUE(g_cur_protocol.empty());
    EXPECT_EQ(app.wires[0]->closes, 1);
    app.delegate->openInterfaceConnection();
    EXPECT_EQ(app.wire().port, 35001);
    EXPECT_EQ(app.defaults.string(WIFI_PORT_KEY), "35001");
}

class console : public testing::Test {
  protected:
    console() { app.delegate->do_expert(); }
    QLineEdit* field() { return app.find<QLineEdit>("cmdTxt"); }
    std::string transcript() {
        return app.find<QPlainTextEdit>("replyTxt")->toPlainText().toStdString();
    }
    app_harness app;
};

TEST_F(console, return_in_an_empty_field_says_so_once_and_sends_nothing) {
    QTest::keyClick(field(), Qt::Key_Return);
    ASSERT_EQ(app.messages.shown.size(), 1u);
    EXPECT_EQ(app.messages.shown[0].title, "Missing");
    EXPECT_EQ(app.messages.shown[0].message, app.resources.localized("blank_input_MSG"));
    EXPECT_TRUE(app.wires.empty());
}

TEST_F(console, a_field_emptied_before_the_link_is_up_sends_nothing) {
    field()->setText(QStringLiteral("AT I"));
    app.press("sendBtn");
    field()->clear();
    app.connect();
    EXPECT_EQ(app.sent(), "");
}

TEST_F(console, commands_of_38_bytes_go_out_and_longer_ones_are_refused_whole) {
    app.delegate->openInterfaceConnection();
    app.connect();
    field()->setText(QString(38, u'1'));
    app.press("sendBtn");
    EXPECT_EQ(app.sent(), std::string(38, '1') + "\r");
    field()->setText(QString(20, u'ä')); // 40 bytes
    app.press("sendBtn");
    EXPECT_EQ(app.sent(), "");
    EXPECT_EQ(app.last_status(), app.resources.localized("ui_command_too_long"));
}

TEST_F(console, chunks_are_shown_as_they_come_and_never_as_rich_text) {
    app.delegate->openInterfaceConnection();
    app.connect();
    field()->setText(QStringLiteral("<b>AT</b>"));
    app.press("sendBtn");
    EXPECT_FALSE(app.find("waity")->isHidden());
    app.receive("<i>x</i>\r");
    EXPECT_TRUE(app.find("waity")->isHidden());
    app.receive(std::string("\xff\x01\0y\r\r>", 7));
    EXPECT_EQ(transcript(), "<b>AT</b>\n<i>x</i>\n\xEF\xBF\xBD  y\n\n>");
    for (const char* piece : {"x\r", "\ny"}) // and a line end
        app.receive(piece);
    EXPECT_TRUE(transcript().ends_with(">x\ny")) << transcript();
    for (const char* piece : {"\xE2", "\x82", "\xAC\xC3", "\xA4\r>"}) // letters in pieces
        app.receive(piece);
    EXPECT_TRUE(transcript().ends_with("x\ny\xE2\x82\xAC\xC3\xA4\n>")) << transcript();
}

TEST_F(console, up_and_down_bring_earlier_commands_back) {
    app.delegate->openInterfaceConnection();
    app.connect();
    for (const char* command : {"AT I", "AT RV"}) {
        field()->setText(QLatin1String(command));
        app.press("sendBtn");
    }
    const std::pair<Qt::Key, const char*> keys[] = {{Qt::Key_Up, "AT RV"},
                                                    {Qt::Key_Up, "AT I"},
                                                    {Qt::Key_Up, "AT I"},
                                                    {Qt::Key_Down, "AT RV"},
                                                    {Qt::Key_Down, ""}};
    for (const auto& [key, expected] : keys) {
        QTest::keyClick(field(), key);
        EXPECT_EQ(field()->text(), QLatin1String(expected));
    }
}

} // namespace
