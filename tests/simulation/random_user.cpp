#include "random_user.h"

#include "actions.h"
#include "report_screen.h"
#include "thumbnail_strip.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QSlider>
#include <QTableView>

using std::chrono::milliseconds;

namespace {

constexpr char ANSWERS[] = "the program answers every button";

constexpr const char* COMMANDS[] = {"AT Z",     "AT I",
                                    "AT E0",    "AT E1",
                                    "AT H1",    "AT H0",
                                    "AT DP",    "AT D",
                                    "AT WS",    "AT SP 0",
                                    "AT SP 3",  "AT SP A6",
                                    "AT L1",    "AT S0",
                                    "AT ST 10", "AT RV",
                                    "AT PC",    "AT MA",
                                    "AT CAF0",  "AT SH 7E0",
                                    "01 00",    "01 0C",
                                    "0101",     "03",
                                    "07",       "0A",
                                    "09 02",    "06 00",
                                    "02 02 00", "01 0D 1",
                                    "Timeout",  "?",
                                    "hello",    "",
                                    " ",        "AT@1",
                                    "ATSPA3",   "01 0C 0D 05 11",
                                    "\xC3\xA9", "a command that is far too long for any adapter"};

constexpr const char* PORTS[] = {"35000", "35001", "35002",       "1",
                                 "abc",   "",      "99999999999", "35000x"};
constexpr const char* HOSTS[] = {"10.0.0.9", "10.0.0.10", "nowhere", ""};

} // namespace

random_user::random_user(application& app, promises& kept, std::uint64_t seed)
    : app_(app), promises_(kept), rng_(seed) {
    answer_dialogs();
}

void random_user::answer_dialogs() {
    app_.messages.while_open = [this](const alert_request& request) {
        app_.trace.note("alert", request.message);
        promises_.box_opened(request.message);
        if (rng_.happens(50))
            app_.loop.advance(rng_.time(0, 8000));
        app_.messages.answers.assign(1, rng_.below(static_cast<int>(request.buttons.size())));
        app_.messages.shown.clear();
    };
    app_.bluetooth.while_choosing = [this] {
        app_.trace.note("alert", "device chooser");
        if (rng_.happens(50))
            app_.loop.advance(rng_.time(0, 8000));
        app_.far.expect_link_timer(std::chrono::seconds(g_this_delta)); // a command without channel
        app_.bluetooth.selector_result = rng_.happens(80) ? SELECTOR_SUCCESS : -1001;
        app_.bluetooth.nothing_selected = rng_.happens(3);
        app_.bluetooth.no_service_record = rng_.happens(3);
        app_.bluetooth.open_error = rng_.happens(5) ? 5 : 0;
        app_.bluetooth.open_leaves_channel = rng_.happens(97);
    };
}

void random_user::act() {
    if (!app_.delegate->current_screen() || rng_.happens(12))
        switch_screen();
    else if (rng_.happens(3))
        app_.delegate->do_help_button();
    else if (rng_.happens(3))
        export_a_log();
    else if (rng_.happens(3))
        choose_other_adapter();
    else if (auto* const reconnect = app_.find<>("reconnect");
             reconnect && !reconnect->isHidden() && rng_.happens(25))
        press("reconnect");
    else if (rng_.happens(45))
        wait();
    else if (const std::string& screen = app_.delegate->current_screen_name();
             screen == READ_CODES_VIEW)
        use_codes();
    else if (screen == ACTIONS_VIEW)
        use_live_data();
    else if (screen == REPORT_VIEW)
        use_report();
    else if (screen == PREFS_VIEW)
        use_preferences();
    else
        use_console();
    app_.loop.settle();
}

void random_user::switch_screen() {
    show_some_screen();
    app_.loop.settle();
    if (const std::string& now = app_.delegate->current_screen_name();
        now == PREFS_VIEW || now == EXPERT_VIEW) // neither has timers or files of its own
        promises_.nothing_outlives_its_screen();
}

void random_user::show_some_screen() {
    switch (rng_.below(12)) {
    case 10:
    case 11:
        return app_.delegate->do_report();
    case 0:
    case 1:
    case 2:
        return app_.delegate->do_read_codes();
    case 3:
    case 4:
    case 5:
    case 6:
        return app_.delegate->do_actions();
    case 7:
        return app_.delegate->do_prefs();
    default:
        return app_.delegate->do_expert();
    }
}

void random_user::wait() {
    static constexpr int SPANS[] = {1, 20, 100, 400, 1000, 1500, 3000, 3500, 8000, 27000};
    const milliseconds span(rng_.one_of(SPANS));
    app_.trace.note("user", "waits");
    app_.loop.advance(span);
}

void random_user::press(const char* name) {
    auto* const button = app_.find<>(name);
    if (!button || button->isHidden() || !button->isEnabled())
        return;
    app_.trace.note("user", name);
    if (!app_.bluetooth.open_leaves_channel) // the command is lost, its time-out armed
        app_.far.expect_link_timer(std::chrono::seconds(g_this_delta));
    button->click();
}

void random_user::expect_answer(const char* what, std::uint64_t before) {
    app_.trace.expect(app_.trace.effects() != before, ANSWERS, what);
}

void random_user::read_codes() {
    const std::uint64_t before = app_.trace.effects();
    promises_.task_begins(app_.ledger.moment());
    press("readCodes");
    expect_answer("read codes", before);
}

void random_user::use_codes() {
    const std::uint64_t before = app_.trace.effects();
    if (rng_.happens(65)) {
        read_codes();
    } else if (rng_.happens(75)) {
        const std::uint64_t began = app_.ledger.moment();
        press("clearCodes");
        expect_answer("clear codes", before);
        if (app_.trace.effects() > before + 1) // more than the question
            promises_.task_begins(began);
    } else {
        app_.trace.note("user", "diagnose");
        app_.find<QAction>("obd_sim")->trigger();
        expect_answer("diagnose", before);
    }
}

// Usually left alone while running: a second press cancels.
void random_user::use_report() {
    const bool running = static_cast<report_screen*>(app_.delegate->current_screen())->reading();
    if (running && rng_.happens(80))
        return wait();
    if (!running)
        promises_.report_begins();
    const std::uint64_t before = app_.trace.effects();
    press("readReport");
    expect_answer("read report", before);
}

void random_user::use_live_data() {
    auto& screen = static_cast<actions&>(*app_.delegate->current_screen());
    auto* const area = app_.find<QScrollArea>("xtopActionCharts");
    auto& strip = static_cast<thumbnail_strip&>(*area->widget());
    switch (rng_.below(9)) {
    case 0: {
        const int kind = rng_.below(4);
        app_.trace.note("user", "kind of run " + std::to_string(kind));
        app_.find<QComboBox>("runSelectorCombo")->setCurrentIndex(kind);
        break;
    }
    case 1: {
        std::set<int> some;
        for (int count = rng_.between(1, 3); count > 0; --count)
            some.insert(rng_.below(8));
        app_.trace.note("user", "selects thumbnails");
        strip.choose(some);
        app_.trace.expect(strip.cells() == 0 || !strip.selected().empty(), ANSWERS, "thumbnails");
        break;
    }
    case 2:
        if (auto* const zoom = app_.find<QSlider>("charty_zoomer"); !zoom->isHidden())
            zoom->setValue(rng_.between(0, 1000));
        break;
    case 3:
        press("o2SwapBtn");
        break;
    case 4:
        press("fastSwitch");
        break;
    default: {
        const bool running = screen.running();
        const std::uint64_t before = app_.trace.effects();
        press("startStopBtn");
        if (!running) // even one that ended at once
            promises_.run_begins();
        app_.trace.expect(running ? !screen.running()
                                  : screen.running() || app_.trace.effects() != before,
                          ANSWERS, "start or stop");
    }
    }
}

void random_user::use_preferences() {
    static constexpr const char* BOXES[] = {"unitsCheck", "logRunsCheck", "lastBTCheck"};
    switch (rng_.below(8)) {
    case 0:
        return press(rng_.happens(25) ? "interfaceBluetooth" : "interfaceWifi");
    case 1:
        app_.trace.note("user", "port");
        return app_.find<QLineEdit>("portsLbl")
            ->setText(
                QString::fromUtf8(rng_.happens(60) ? PORTS[rng_.below(3)] : rng_.one_of(PORTS)));
    case 2:
        app_.trace.note("user", "address");
        return app_.find<QLineEdit>("ipLbl")->setText(
            QString::fromUtf8(rng_.happens(80) ? HOSTS[rng_.below(2)] : rng_.one_of(HOSTS)));
    case 3:
    case 4: {
        auto* const table = app_.find<QTableView>("_pid_availableTableView");
        app_.trace.note("user", "parameter");
        Q_EMIT table->clicked(table->model()->index(rng_.below(4), 0));
        return;
    }
    case 5:
        return rng_.happens(30) ? press("setDefaultsBtn") : press("logRunsCheck");
    default:
        return press(rng_.one_of(BOXES));
    }
}

void random_user::use_console() {
    auto* const transcript = app_.find<QPlainTextEdit>("replyTxt");
    const int length = transcript->document()->characterCount();
    const std::uint64_t before = app_.trace.effects();
    app_.find<QLineEdit>("cmdTxt")->setText(QString::fromUtf8(rng_.one_of(COMMANDS)));
    press("sendBtn");
    app_.trace.expect(transcript->document()->characterCount() != length ||
                          app_.trace.effects() != before,
                      ANSWERS, "send");
}

void random_user::export_a_log() {
    const mac_toolies& toolies = mac_toolies::sharedManager();
    auto logs = toolies.list_logs();
    if (logs.empty())
        return;
    std::ranges::sort(logs, {}, &logged_run::name); // files of one second have no order
    const std::string& name = rng_.one_of(logs).name;
    app_.trace.note("user", "exports " + name);
    toolies.export_to_CSV(name, rng_.happens(50));
}

// In the middle of whatever is running, and back to that screen.
void random_user::choose_other_adapter() {
    const std::string before = app_.delegate->current_screen_name();
    app_.delegate->do_prefs();
    app_.loop.settle();
    if (rng_.happens(50))
        press(g_connect_with == KS_USE_WIFI ? "interfaceBluetooth" : "interfaceWifi");
    else
        app_.find<QLineEdit>("portsLbl")->setText(QLatin1String(PORTS[rng_.below(3)]));
    before == ACTIONS_VIEW ? app_.delegate->do_actions() : app_.delegate->do_read_codes();
}

void random_user::change_port_and_back() {
    for (const char* port : {"35009", "35000"}) {
        app_.delegate->do_prefs();
        app_.find<>("interfaceWifi")->click();
        app_.find<QLineEdit>("ipLbl")->setText(QStringLiteral("10.0.0.9"));
        app_.find<QLineEdit>("portsLbl")->setText(QLatin1String(port));
        app_.delegate->do_expert();
    }
    app_.delegate->do_read_codes();
    app_.loop.settle();
}

// Until it is as fast as it gets.
void random_user::sample_fast() {
    change_port_and_back();
    app_.delegate->do_actions();
    app_.loop.settle();
    press("fastSwitch");
    press("startStopBtn");
    promises_.run_begins();
    app_.loop.advance(std::chrono::seconds(8));
}
