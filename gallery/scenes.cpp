// The states, in the order in which a user meets them.
#include "bluetooth_stage.h"
#include "constantes.h"
#include "mac_toolies.h"
#include "stage.h"
#include "stall_hint.h"
#include "thumbnail_strip.h"
#include "transports.h"

#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QSlider>
#include <QTreeWidget>

#include <filesystem>
#include <fstream>

namespace {

constexpr double CODES_SECONDS = 20; // enough for handshake, status and codes
constexpr double RUN_SECONDS = 60;

void nothing_chosen(stage&) {}

void first_steps(stage& on) {
    on.window.offer_first_steps([] {});
}

void codes(stage& on) {
    on.app.delegate->do_read_codes();
}
void read_codes(stage& on) {
    codes(on);
    on.press("readCodes", CODES_SECONDS);
}
void busy_codes(stage& on) {
    codes(on);
    on.press("readCodes", 2.5);
}
void no_reply_box(stage& on) {
    on.look_at_message();
    read_codes(on);
}
void clear_question(stage& on) {
    read_codes(on);
    on.look_at_message();
    on.answer(1);
    on.press("clearCodes", 0);
}
void cleared_codes(stage& on) {
    read_codes(on);
    on.press("clearCodes", CODES_SECONDS);
}

void live(stage& on) {
    on.app.delegate->do_actions();
}
void run(stage& on, int kind, double seconds) {
    live(on);
    on.app.find<QComboBox>("runSelectorCombo")->setCurrentIndex(kind);
    on.press("startStopBtn", seconds);
}
// The second parameter alone: nothing moves its dial.
void unmoved_dial(stage& on) {
    run(on, 0, RUN_SECONDS);
    static_cast<thumbnail_strip*>(on.app.find("thumbiesMtrx"))->choose({1});
    on.pass(5);
}
void log_run(stage& on) {
    run(on, 0, RUN_SECONDS);
}
void two_dials(stage& on) {
    log_run(on);
    static_cast<thumbnail_strip*>(on.app.find("thumbiesMtrx"))->choose({0, 2});
    on.pass(5);
}
void all_curves(stage& on) {
    log_run(on);
    static_cast<thumbnail_strip*>(on.app.find("thumbiesMtrx"))->choose({0, 1, 2, 3});
    on.app.find<QSlider>("charty_zoomer")->setValue(0);
    on.pass(5);
}
void fuel_run(stage& on) {
    run(on, 1, RUN_SECONDS);
}
void sensor_run(stage& on) {
    run(on, 2, RUN_SECONDS);
}
void boost_run(stage& on) {
    run(on, 3, RUN_SECONDS);
}
void stopped_run(stage& on) {
    log_run(on);
    on.press("startStopBtn", 1);
}
void stalled_run(stage& on) {
    run(on, 0, 30);
    static_cast<stall_hint*>(on.app.find("stallHint"))->refresh();
}
// A file takes the log folder's place.
void log_failed(stage& on) {
    const std::filesystem::path folder = mac_toolies::sharedManager().log_folder();
    std::filesystem::create_directories(folder.parent_path().parent_path());
    std::ofstream(folder.parent_path()) << "a file";
    log_run(on);
}
void no_parameters(stage& on) {
    on.look_at_message();
    live(on);
}

void report(stage& on) {
    on.app.delegate->do_report();
}
void report_read(stage& on) {
    report(on);
    on.press("readReport", CODES_SECONDS);
}
void report_reading(stage& on) {
    report(on);
    on.press("readReport", 4);
}

void expert(stage& on) {
    on.app.delegate->do_expert();
}
void say(stage& on, const char* command) {
    on.app.find<QLineEdit>("cmdTxt")->setText(QLatin1String(command));
    on.press("sendBtn", 3);
}
void expert_talk(stage& on) {
    expert(on);
    for (const char* command : {"AT Z", "AT I", "AT SP 0", "AT H1", "01 00", "09 02", "03"})
        say(on, command);
}
void expert_timed_out(stage& on) {
    expert(on);
    for (const char* command : {"AT I", "01 0C"})
        say(on, command);
    on.pass(10);
}
void expert_blank(stage& on) {
    expert(on);
    on.look_at_message();
    on.press("sendBtn", 0);
}

void prefs(stage& on) {
    on.app.delegate->do_prefs();
}
void help(stage& on) {
    on.look_at_message();
    on.app.delegate->do_help_button();
}
void about(stage& on) {
    on.look_at_message();
    on.window.findChild<QAction*>(QStringLiteral("about"))->trigger();
}

void open_export(stage& on) {
    on.window.findChild<QAction*>(QStringLiteral("exportLog"))->trigger();
    on.show_dialog(on.window.findChild<QDialog*>(QStringLiteral("exportWindow")));
}
void more_parameters_known(stage& on) {
    live(on);
    on.press("moreParameters", 0);
    on.press("askCar", 20);
    auto* dialog = on.app.find<QDialog>("moreParametersDialog");
    auto* rows = on.app.find<QTreeWidget>("parameters");
    rows->findItems(QStringLiteral("5C"), Qt::MatchExactly, 2)
        .front()
        ->setCheckState(0, Qt::Checked);
    rows->scrollToItem(rows->findItems(QStringLiteral("61"), Qt::MatchExactly, 2).front());
    on.show_dialog(dialog);
}
void look_up(stage& on) {
    on.window.findChild<QAction*>(QStringLiteral("lookUpCode"))->trigger();
    auto* dialog = on.window.findChild<QDialog*>(QStringLiteral("lookupWindow"));
    dialog->findChild<QLineEdit*>()->setText(QStringLiteral("oil pressure"));
    on.show_dialog(dialog);
}
void twelve_parameters(user_defaults& store) {
    app_harness::use_wifi(store);
    store.set_string_array("more_pids", {"0B", "10", "42", "5C", "5E", "62", "67", "A6"});
}
void write_logs(int cycles) {
    const std::filesystem::path folder = mac_toolies::sharedManager().log_folder();
    std::filesystem::create_directories(folder);
    using namespace std::chrono;
    constexpr sys_days TODAY = 2025y / 4 / 24;
    const std::pair<const char*, sys_seconds> logs[] = {
        {"log_Apr_24_2025-1030_07.gol", TODAY + 10h + 30min},
        {"fuel_Apr_24_2025-0912_44.txt", TODAY + 9h + 12min},
        {"o2_Apr_23_2025-1805_30.txt", TODAY - days(1) + 18h + 5min},
        {"boost_Apr_21_2025-0758_01.txt", TODAY - days(3) + 7h + 58min}};
    for (const auto& [name, written] : logs) {
        std::ofstream log(folder / name);
        for (int i = 0; i < cycles; ++i)
            log << "410C0FA0,410D64\n";
        log.close();
        std::filesystem::last_write_time(folder / name, file_clock::from_sys(written));
    }
}
void export_list(stage& on) {
    write_logs(400);
    open_export(on);
}
void export_running(stage& on) {
    write_logs(100'000);
    open_export(on);
    on.freeze();
    on.window.findChild<QAbstractButton*>(QStringLiteral("startExport"))->click();
}
void export_done(stage& on) {
    export_list(on);
    on.window.findChild<QAbstractButton*>(QStringLiteral("startExport"))->click();
    on.pass(5);
}

void bluetooth_without_service(stage& on) {
    show_device_chooser(on, {.service = false});
}
void bluetooth_without_adapter(stage& on) {
    show_device_chooser(on, {.adapter = false});
}
void bluetooth_searching(stage& on) {
    show_device_chooser(on, {});
}
void bluetooth_list(stage& on) {
    show_device_chooser(on, {.devices = true});
}
void bluetooth_connecting(stage& on) {
    show_device_chooser(on, {.devices = true, .connect = true});
}
void bluetooth_refused(stage& on) {
    show_device_chooser(on, {.devices = true, .connect = true, .refuse = true});
}

void without_parameters(user_defaults& store) {
    app_harness::use_wifi(store);
    store.set_string_array(PIDS_ARRAY_KEY, {});
}
void with_logging(user_defaults& store) {
    app_harness::use_wifi(store);
    store.set_boolean(LOG_RUNS_KEY, true);
    store.set_boolean(KS_METRIC_UNITS_KEY, true);
}

void with_a_cable(user_defaults& store) {
    with_logging(store);
    store_transport(transport_named("serial"), store);
    store.set_string(SERIAL_PORT_KEY, "/dev/ttyUSB0");
}

const std::vector<scene> ALL = {
    {"start", "Nothing chosen yet", nothing_chosen},
    {"start-first", "A first start", first_steps, "can11", {}, app_harness::first_start},
    {"codes-empty", "Trouble codes, nothing read", codes},
    {"codes-busy", "Codes are being read", busy_codes, "can11", {{fault_kind::stall_after, 3}}},
    {"codes-read", "Codes read", read_codes},
    {"codes-three-units", "Codes of three control units", read_codes, "three_units"},
    {"codes-thirty", "Thirty codes", read_codes, "thirty"},
    {"codes-none", "A car without codes", read_codes, "clean"},
    {"codes-timed-out",
     "The adapter stopped answering",
     read_codes,
     "can11",
     {{fault_kind::stall_after, 5}}},
    {"codes-cannot-connect",
     "No adapter at that address",
     read_codes,
     "can11",
     {{fault_kind::refuse}}},
    {"codes-no-car",
     "The adapter works, the car does not answer",
     no_reply_box,
     "can11",
     {{fault_kind::no_bus}}},
    {"codes-clear-question", "Before codes are cleared", clear_question},
    {"codes-cleared", "Codes cleared", cleared_codes},
    {"live-idle", "Live data before a run", live},
    {"live-run", "A run", log_run},
    {"live-two-dials", "Two parameters chosen", two_dials},
    {"live-unmoved-dial", "A dial that nothing moves", unmoved_dial},
    {"live-all-curves", "Four parameters chosen, zoomed in", all_curves},
    {"live-fuel", "Fuel consumption, metric units", fuel_run, "can11", {}, with_logging},
    {"live-sensors", "Oxygen sensors", sensor_run},
    {"live-boost", "Boost", boost_run, "diesel"},
    {"live-stopped", "A run that was stopped", stopped_run},
    {"live-stalled",
     "A run whose adapter owes a reply",
     stalled_run,
     "can11",
     {{fault_kind::stall_after, 60}}},
    {"live-log-stopped",
     "The run goes on, its log does not",
     log_failed,
     "can11",
     {},
     with_logging},
    {"live-no-parameters",
     "No parameters are chosen: the message",
     no_parameters,
     "can11",
     {},
     without_parameters},
    {"live-nothing", "No parameters are chosen: the screen", live, "can11", {}, without_parameters},
    {"live-cannot-connect", "A run without an adapter", log_run, "can11", {{fault_kind::refuse}}},
    {"live-twelve", "A run of twelve parameters", log_run, "hybrid", {}, twelve_parameters},
    {"live-more", "More parameters, and what the car supports", more_parameters_known, "hybrid"},
    {"look-up", "Looking a code up", look_up},
    {"report-empty", "Report, nothing read", report},
    {"report-reading", "A report is being read", report_reading, "diesel"},
    {"report-read", "The report of a car", report_read, "diesel2019"},
    {"expert-empty", "Expert, nothing sent", expert},
    {"expert-talk", "Commands and replies", expert_talk},
    {"expert-timed-out",
     "A command without a reply",
     expert_timed_out,
     "can11",
     {{fault_kind::stall_after, 1}}},
    {"expert-blank", "Send without a command", expert_blank},
    {"prefs-wifi", "Preferences, Wi-Fi", prefs, "can11", {}, with_logging},
    {"prefs-serial", "Preferences, a cable", prefs, "can11", {}, with_a_cable},
    {"prefs-bluetooth",
     "Preferences as they are at the first start",
     prefs,
     "can11",
     {},
     app_harness::first_start},
    {"help", "Help", help},
    {"about", "About", about},
    {"export-empty", "Export without any log", open_export},
    {"export-list", "Export, a log to choose", export_list},
    {"export-running", "An export on its way", export_running},
    {"export-done", "An export that is done", export_done},
    {"bluetooth-no-service", "Bluetooth: the service does not run", bluetooth_without_service},
    {"bluetooth-no-adapter", "Bluetooth: the computer has none", bluetooth_without_adapter},
    {"bluetooth-searching", "Bluetooth: searching", bluetooth_searching},
    {"bluetooth-list", "Bluetooth: devices to choose from", bluetooth_list},
    {"bluetooth-connecting", "Bluetooth: connecting", bluetooth_connecting},
    {"bluetooth-refused", "Bluetooth: the device does not answer", bluetooth_refused},
};

} // namespace

const std::vector<scene>& scenes() {
    return ALL;
}
