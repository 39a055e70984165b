// File > Export run log…, over the whole application on a virtual clock.
#include "app_harness.h"
#include "main_window.h"
#include "qt_warnings.h"

#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QRadioButton>
#include <QTableWidget>

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::HasSubstr;

namespace {

class export_window_test : public testing::Test {
  protected:
    export_window_test() {
        expect_warning("This plugin does not support"); // raising a window, without a display
        std::filesystem::create_directories(path(""));
    }

    std::string path(const std::string& name) const {
        return mac_toolies::sharedManager().log_folder() + "/" + name;
    }
    void write_log(const std::string& name, int cycles, int minutes_old = 0) const {
        std::ofstream log(path(name));
        for (int i = 0; i < cycles; ++i)
            log << "410C0FA0,410D64\n";
        log.close();
        std::filesystem::last_write_time(path(name), std::filesystem::file_time_type::clock::now() -
                                                         std::chrono::minutes(minutes_old));
    }
    void open() {
        window.findChild<QAction*>(QStringLiteral("exportLog"))->trigger();
        dialog = window.findChild<QDialog*>(QStringLiteral("exportWindow"));
        logs = dialog->findChild<QTableWidget*>(QStringLiteral("logs"));
    }
    void press_in_dialog(const char* name) {
        dialog->findChild<QAbstractButton*>(QLatin1String(name))->click();
    }
    std::string told() const {
        return dialog->findChild<QLabel*>(QStringLiteral("told"))->text().toStdString();
    }
    bool idle() const {
        return dialog->findChild<QAbstractButton*>(QStringLiteral("startExport"))->isEnabled();
    }
    void finish() {
        for (int i = 0; i < 1000 && !idle(); ++i)
            app.loop.advance(std::chrono::milliseconds(1));
    }

    app_harness app;
    main_window window{*app.delegate};
    QDialog* dialog = nullptr;
    QTableWidget* logs = nullptr;
};

TEST_F(export_window_test, logs_are_offered_newest_first_without_exports) {
    write_log("log_a.gol", 1, 3);
    write_log("fuel_b.txt", 1, 2);
    write_log("log_c.gol", 1, 1);
    for (const char* name : {"log_a.txt", "log_a.csv", "fuel_b.txt.export.txt", "notes"})
        write_log(name, 1);
    open();
    std::vector<std::string> offered;
    for (int row = 0; row < logs->rowCount(); ++row)
        offered.push_back(logs->item(row, 0)->text().toStdString());
    EXPECT_THAT(offered, testing::ElementsAre("log_c.gol", "fuel_b.txt", "log_a.gol"));
    EXPECT_EQ(logs->currentRow(), 0);
}

TEST_F(export_window_test, a_long_export_leaves_the_run_loop_free_and_says_where_it_went) {
    write_log("log_a.gol", 20000);
    open();
    EXPECT_FALSE(dialog->isModal());
    dialog->findChild<QRadioButton*>(QStringLiteral("asText"))->setChecked(true);
    press_in_dialog("startExport");
    EXPECT_FALSE(idle());
    // What a run schedules meanwhile is delivered between the pieces.
    int delivered = 0;
    app.loop.after(std::chrono::milliseconds(1), [&] { ++delivered; });
    app.loop.advance(std::chrono::milliseconds(2));
    EXPECT_EQ(delivered, 1);
    EXPECT_FALSE(idle());
    finish();
    EXPECT_THAT(told(), HasSubstr("20,000 rows to " + path("log_a.txt")));
    EXPECT_TRUE(std::filesystem::file_size(path("log_a.txt")) > 20000 * 20);

    press_in_dialog("startExport"); // once more
    finish();
    EXPECT_EQ(told(), "File (" + path("log_a.txt") + ")already exists.. Bailing out");
}

TEST_F(export_window_test, the_time_is_offered_where_a_log_has_it) {
    write_log("log_a.gol", 2, 1);
    write_log("log_b.gol", 2);
    std::ofstream(path("log_a.gol.times")) << "100\n250\n";
    open();
    const auto* box = dialog->findChild<QAbstractButton*>(QStringLiteral("withTime"));
    EXPECT_FALSE(box->isEnabled() || box->isChecked());
    logs->selectRow(1);
    EXPECT_TRUE(box->isEnabled() && box->isChecked());
    press_in_dialog("startExport");
    finish();
    std::string header, row;
    std::ifstream table(path("log_a.csv"));
    std::getline(table, header);
    std::getline(table, row);
    EXPECT_THAT(header, testing::StartsWith("Time (s),"));
    EXPECT_THAT(row, testing::StartsWith("0.100,1000.000000,"));
}

// What a first start offers.
TEST_F(export_window_test, the_first_steps_lead_to_the_preferences_or_to_the_virtual_car) {
    bool demo = false;
    window.offer_first_steps([&] { demo = true; });
    const auto press = [this](const char* name) {
        window.findChild<QAbstractButton*>(QLatin1String(name))->click();
        return app.delegate->current_screen_name();
    };
    EXPECT_EQ(app.delegate->current_screen(), nullptr);
    EXPECT_EQ(press("startBluetooth"), PREFS_VIEW);
    EXPECT_EQ(app.defaults.integer(KS_INTERFACE_KEY), KS_USE_BT);
    app.delegate->do_read_codes();
    EXPECT_EQ(press("startWifi"), PREFS_VIEW);
    EXPECT_EQ(app.defaults.integer(KS_INTERFACE_KEY), KS_USE_WIFI);
    app.delegate->do_read_codes();
    EXPECT_EQ(press("startSerial"), PREFS_VIEW);
    EXPECT_TRUE(app.defaults.boolean(STREAM_IS_SERIAL_KEY));
    EXPECT_FALSE(demo);
    EXPECT_EQ(press("startDemo"), READ_CODES_VIEW);
    EXPECT_TRUE(demo);
}

TEST_F(export_window_test, boost_counts_from_the_pressure_it_was_logged_against) {
    std::ofstream(path("boost_a.txt")) << "41E50017\n"; // 23 kPa, 78 below the air around
    open();
    press_in_dialog("startExport");
    finish();
    std::string header, value;
    std::ifstream table(path("boost_a.txt.csv"));
    std::getline(table, header);
    std::getline(table, value);
    EXPECT_EQ(value, "-11.310000"); // psi
}

TEST_F(export_window_test, what_is_no_run_log_is_refused_with_the_reason) {
    std::ofstream(path("log_a.gol")) << "a letter, not a log\n";
    open();
    press_in_dialog("startExport");
    EXPECT_THAT(told(), HasSubstr("log_a.gol:1: not a run log"));
    EXPECT_TRUE(idle());
    EXPECT_FALSE(std::filesystem::exists(path("log_a.csv")));
}

TEST_F(export_window_test, closing_gives_up_and_leaves_no_file) {
    write_log("log_a.gol", 20000);
    open();
    press_in_dialog("startExport");
    app.loop.advance(std::chrono::milliseconds(2));
    EXPECT_FALSE(idle());
    press_in_dialog("closeExport");
    app.loop.advance(std::chrono::seconds(1));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(path("")), {}), 1) << "the log";
}

TEST_F(export_window_test, an_empty_folder_says_how_logs_come_about) {
    std::filesystem::remove_all(path(""));
    open();
    EXPECT_FALSE(idle());
    EXPECT_TRUE(logs->isHidden());
}

} // namespace
