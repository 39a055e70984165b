// The live-data screen by its widgets, against answers given by hand: run selector, thumbnails,
// dials, zoom, log, and the answers that an adapter still owes.
#include "live_fixture.h"

#include <QComboBox>
#include <QLabel>
#include <QRegularExpression>
#include <QSlider>
#include <QTest>

#include <deque>
#include <filesystem>

namespace {

TEST_F(live_screen, the_selector_names_the_runs_and_each_rebuilds_the_screen) {
    auto* selector = app.find<QComboBox>("runSelectorCombo");
    const struct {
        const char* name;
        int task;
        list pids;
    } runs[] = {{"Log Run", 4, {"0D", "11", "0C", "05"}},
                {"Fuel consumption", 7, {"E4", "0D", "10"}},
                {"O2 Diags/Sampling", 13, {"E4", "0D", "10"}}, // until the car has named them
                {"Boost", 12, {"E5", "06", "08", "0A"}}};
    for (int index : {1, 2, 3, 0}) {
        selector->setCurrentIndex(0);
        selector->setCurrentIndex(1); // so that every rebuild starts from another list
        start();
        strip().choose({1});
        EXPECT_TRUE(screen().running());
        screen().comboBoxSelectionDidChange(1);
        EXPECT_TRUE(screen().running()) << "the entry that was chosen already";
        EXPECT_EQ(strip().selected(), std::set<int>{1});
        selector->setCurrentIndex(index);
        EXPECT_EQ(selector->currentText(), QLatin1String(runs[index].name));
        EXPECT_EQ(g_cur_task, runs[index].task);
        EXPECT_EQ(screen().pids(), runs[index].pids);
        EXPECT_EQ(screen().running(), index == 1);
        if (index != 1) {
            EXPECT_EQ(strip().selected(), std::set<int>{0});
            EXPECT_EQ(strip().cells(), static_cast<int>(runs[index].pids.size()));
        } else {
            app.press("startStopBtn");
        }
    }
    EXPECT_EQ(g_cur_barom_press, 101);
}

struct choice {
    const char* what;
    int cell;    // clicked, or
    Qt::Key key; // pressed
    Qt::KeyboardModifiers with;
    std::set<int> selected;
    bool second_dial;
    const char* dial_1; // moved by which parameters
    const char* dial_2;
    const char* chart;
};

// In this order. The first dial follows the first parameter alone, and only while it shows it.
TEST_F(live_screen, thumbnails_are_chosen_by_mouse_and_keys_and_choose_what_dials_and_chart_show) {
    const Qt::Key none = Qt::Key_unknown;
    const choice choices[] = {
        {"another", 2, none, {}, {2}, false, "", "", "2"},
        {"two", 0, none, Qt::ControlModifier, {0, 2}, true, "", "0", "02"},
        {"three", 1, none, Qt::ShiftModifier, {0, 1}, true, "", "0", "01"},
        {"one away", 1, none, Qt::ControlModifier, {0}, false, "0", "", "0"},
        {"the last one stays", 0, none, Qt::ControlModifier, {0}, false, "0", "", "0"},
        {"right", -1, Qt::Key_Right, {}, {1}, false, "", "", "1"},
        {"extend", -1, Qt::Key_Right, Qt::ShiftModifier, {1, 2}, true, "", "2", "12"},
        {"extend more", -1, Qt::Key_Right, Qt::ShiftModifier, {1, 2, 3}, true, "", "2", "123"},
        {"beyond the end", -1, Qt::Key_Right, Qt::ShiftModifier, {1, 2, 3}, true, "", "2", "123"},
        {"back to two", -1, Qt::Key_Left, Qt::ShiftModifier, {1, 2}, true, "", "2", "12"},
        {"move on", -1, Qt::Key_Right, Qt::ControlModifier, {1, 2}, true, "", "2", "12"},
        {"toggle there", -1, Qt::Key_Space, {}, {1, 2, 3}, true, "", "2", "123"},
        {"first", -1, Qt::Key_Home, {}, {0}, false, "0", "", "0"},
        {"all", 3, none, Qt::ShiftModifier, {0, 1, 2, 3}, true, "0", "1", "0123"},
        {"last", -1, Qt::Key_End, {}, {3}, false, "", "", "3"},
    };
    start();
    for (const choice& one : choices) {
        SCOPED_TRACE(one.what);
        const int width = strip().cell_size().width();
        if (one.cell >= 0)
            QTest::mouseClick(&strip(), Qt::LeftButton, one.with,
                              QPoint(one.cell * width + width / 2, 40));
        else
            QTest::keyClick(&strip(), one.key, one.with);
        EXPECT_EQ(strip().selected(), one.selected);
        EXPECT_EQ(app.find("gauge_dos")->isVisible(), one.second_dial);
        EXPECT_EQ(moved_by("gauge_uno"), one.dial_1);
        if (one.second_dial) {
            EXPECT_EQ(moved_by("gauge_dos"), one.dial_2);
        }
        EXPECT_EQ(moved_by("chartFull"), one.chart);
    }
}

TEST_F(live_screen, the_slider_comes_with_the_21st_row_and_names_what_the_chart_shows) {
    auto* slider = app.find<QSlider>("charty_zoomer");
    const auto title = [this] {
        return app.find("chartFull")->accessibleDescription().toStdString();
    };
    start();
    for (int row = 1; row < 20; ++row)
        cycle(row % 2 == 0);
    draw();
    EXPECT_EQ(screen().samples().rows(), 20u);
    EXPECT_FALSE(slider->isVisible());
    cycle();
    draw();
    EXPECT_TRUE(slider->isVisible());
    for (int row = 21; row < 100; ++row)
        cycle(row % 2 == 0);
    draw();
    EXPECT_EQ(title(), "All sampling points");
    const struct {
        int value;
        const char* title;
    } zooms[] = {
        {0, "Charting last 20 sampling points"},   {555, "Charting last 55 sampling points"},
        {1, "Charting last 20 sampling points"},   {300, "Charting last 30 sampling points"},
        {199, "Charting last 20 sampling points"}, {210, "Charting last 21 sampling points"},
        {999, "Charting last 99 sampling points"}, {1000, "All sampling points"}};
    QImage before;
    for (const auto& [value, expected] : zooms) {
        slider->setValue(value);
        draw();
        EXPECT_EQ(title(), expected);
        const QImage shown = app.find("chartFull")->grab().toImage();
        EXPECT_NE(shown, before);
        before = shown;
    }
    app.press("startStopBtn");
    app.press("startStopBtn"); // one answer is still owed
    draw();
    EXPECT_FALSE(slider->isVisible());
}

// What it answers meanwhile is filed under no name that it does not belong to.
TEST_F(live_screen, gets_back_in_step_with_an_adapter_that_is_one_answer_behind) {
    const auto answer = [](const std::string& pid) {
        return "41" + pid + (pid == "0C" ? "1A30" : "30");
    };
    for (const int latency : {1, 900, 1500}) {
        SCOPED_TRACE(latency);
        start();
        std::deque<std::string> owed{"01 05\r"}; // of a run before
        for (int answers = 0; answers < 12; ++answers) {
            if (const std::string asked = app.sent(); !asked.empty())
                owed.push_back(asked);
            app.loop.advance(milliseconds(latency));
            if (owed.empty()) {
                app.loop.advance(milliseconds(5000));
                continue;
            }
            app.receive(answer(owed.front().substr(3, 2)) + "\r\r>");
            owed.pop_front();
        }
        ASSERT_GE(screen().samples().rows(), 3u);
        const std::size_t last = screen().samples().rows() - 2;
        for (std::size_t place = 0; place < 4; ++place)
            EXPECT_EQ(screen().samples().text(last, place), answer(screen().pids()[place]));
        app.press("startStopBtn");
        app.loop.advance(milliseconds(5000));
        app.receive("NO DATA\r\r>");
        app.wire().written.clear();
    }
}

class logged_run : public live_screen {
  protected:
    logged_run() { app.defaults.set_boolean(LOG_RUNS_KEY, true); }
    QLabel* mark() { return app.find<QLabel>("logMark"); }
};

TEST_F(logged_run, holds_whole_cycles_as_they_were_answered) {
    start();
    const QRegularExpression form(QRegularExpression::anchoredPattern(QStringLiteral(
        "log_[A-Z][a-z]{2}_[0-9]{2}_[0-9]{4}-[01][0-9][0-5][0-9]_[0-5][0-9]\\.gol")));
    const std::filesystem::path log = screen().log_path();
    EXPECT_TRUE(form.match(QString::fromStdString(log.filename().string())).hasMatch()) << log;
    cycle();
    EXPECT_EQ(log_lines().size(), 1u) << "written as the cycle ends";
    for (const char* reply :
         {"NO DATA\r\r>", "?\r\r>", "41 0C 1A F8\r41 0C 1A F4\r\r>", "4,1\x02 05\n7B\r\r>"})
        app.receive(reply);
    list told;
    screen().cycle_completed = [&](const std::vector<translated>& values) {
        for (const translated& value : values)
            told.push_back(value.text);
    };
    for (const char* no_answer : // each would be read as a value
         {"FB ERROR\r\r>", "41 11 80 <DATA ERROR\r\r>", "41 0C 1A\r\r>", "41 05 7B 7B\r\r>"})
        app.receive(no_answer);
    answer(0, true); // half a cycle
    app.press("startStopBtn");
    EXPECT_EQ(log_lines(), (list{"410D30,411130,410C1000,410530", "NODATA,~,410C1AF8,4.1.057B",
                                 "FBERROR,411180<DATAERROR,410C1A,41057B7B"}));
    EXPECT_EQ(told, (list{"~", "~", "~", "~"}));
    EXPECT_EQ(mark()->text(), QString());
}

TEST_F(logged_run, whose_file_is_removed_goes_on_with_the_mark) {
    start();
    cycle();
    EXPECT_TRUE(mark()->isHidden());
    std::filesystem::remove(screen().log_path());
    cycle();
    draw();
    EXPECT_TRUE(screen().running());
    EXPECT_TRUE(mark()->isVisible());
    EXPECT_EQ(mark()->text().toStdString(),
              app.resources.localized("ui_live_log_failed") + " No such file or directory");
    cycle();
    EXPECT_FALSE(std::filesystem::exists(screen().log_path()));
}

// The log has the same bytes with and without it.
TEST_F(logged_run, has_a_companion_with_the_time_of_each_round) {
    start();
    const std::string log = screen().log_path();
    for (const int wait : {70, 1200, 5}) {
        for (std::size_t place = 0; place < 3; ++place)
            answer(place, false);
        app.loop.advance(milliseconds(wait));
        answer(3, false);
    }
    answer(0, false);
    draw();
    EXPECT_EQ(app.find<QLabel>("runLength")->text(), QStringLiteral("0:01"));
    app.press("startStopBtn");
    EXPECT_EQ(log_lines(), list(3, "410D30,411130,410C1000,410530"));
    std::ifstream times(log + ".times");
    list lines;
    for (std::string line; std::getline(times, line);)
        lines.push_back(line);
    EXPECT_EQ(lines, (list{"70", "1270", "1275"}));
}

TEST_F(logged_run, without_a_whole_round_leaves_no_file) {
    start();
    const std::string log = screen().log_path();
    EXPECT_TRUE(std::filesystem::exists(log));
    answer(0, false);
    app.press("startStopBtn");
    EXPECT_FALSE(std::filesystem::exists(log));
    EXPECT_FALSE(std::filesystem::exists(log + ".times"));
    EXPECT_EQ(screen().log_path(), "");
}

TEST_F(logged_run, of_another_kind_has_its_own_name_and_the_computed_item_first) {
    screen().choose_run(TASK_FUEL_ECONOMY);
    start();
    app.receive("41 0D 60\r\r>");
    app.receive("41 10 0C 80\r\r>");
    EXPECT_EQ(log_lines(), list{"41E4038a,410D60,41100C80"});
    const std::string name = std::filesystem::path(screen().log_path()).filename().string();
    EXPECT_TRUE(name.starts_with("fuel_") && name.ends_with(".txt")) << name;
}

TEST_F(logged_run, within_the_same_second_replaces_the_first_file) {
    for (int attempt = 0; attempt < 5; ++attempt) { // a second may end in between
        start();
        cycle();
        const std::string first = screen().log_path();
        app.press("startStopBtn");
        app.receive("41 0D 30\r\r>");
        app.sent();
        start();
        const bool same_second = screen().log_path() == first;
        EXPECT_TRUE(log_lines().empty());
        app.press("startStopBtn");
        app.receive("41 0D 30\r\r>");
        app.sent();
        if (same_second)
            return;
    }
    FAIL() << "no two runs within a second";
}

TEST_F(logged_run, that_cannot_be_written_goes_on_with_a_lasting_mark) {
    for (const char* warning : {"Couldn't create loggies folder", "work_out_log_file::"})
        expect_warning(warning);
    const auto data = std::filesystem::path(app.folder.path().toStdString()) / "data";
    std::ofstream(data.string()) << "a file where the folder should be";
    start();
    cycle();
    draw();
    EXPECT_TRUE(screen().running());
    EXPECT_EQ(screen().samples().rows(), 2u);
    EXPECT_TRUE(mark()->isVisible());
    const QString why = mark()->text();
    EXPECT_TRUE(
        why.startsWith(QString::fromStdString(app.resources.localized("ui_live_log_failed"))));
    EXPECT_GT(why.size(), 30);
    app.press("startStopBtn");
    EXPECT_EQ(mark()->text(), why); // until the next run
    app.receive("41 0D 30\r\r>");
    app.sent();
    std::filesystem::remove(data);
    start();
    EXPECT_TRUE(mark()->isHidden());
    cycle();
    EXPECT_EQ(log_lines().size(), 1u);
}

} // namespace
