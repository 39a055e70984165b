// Starts Kestrom: the window, or one command without a display.
#include "bluetooth_door.h"
#include "bundle.h"
#include "car_library.h"
#include "command_line.h"
#include "command_runner.h"
#include "commands.h"
#include "console_alerts.h"
#include "conversation_recorder.h"
#include "default_settings.h"
#include "globalVars.h"
#include "Ks_lite_delegate.h"
#include "languages.h"
#include "mac_toolies.h"
#include "main_window.h"
#include "message_box_alerts.h"
#include "progress_line.h"
#include "qt_run_loop.h"
#include "qt_serial_line.h"
#include "quick_style.h"
#include "quit_signals.h"
#include "recorded_doors.h"
#include "report_printer.h"
#include "screen_factories.h"
#include "serial_port_profile.h"
#include "serial_stream_pair.h"
#include "supported_scan.h"
#include "system_log.h"
#include "tcp_adapter_server.h"
#include "tcp_stream_pair.h"
#include "transports.h"
#include "user_defaults.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <memory>
#include <optional>
#include <poll.h>
#include <stdexcept>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

constexpr int USAGE_STATUS = 2;
constexpr int FAILURE_STATUS = 1;
constexpr char DEFAULT_DEMO_CAR[] = "can11";

bool display_there() {
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        if (const char* value = std::getenv(name); value && *value)
            return true;
    return false;
}

// The built-in virtual car, listening on loopback.
std::unique_ptr<tcp_adapter_server> start_demo_car(const std::string& name) {
    auto server =
        std::make_unique<tcp_adapter_server>(load_car(name.empty() ? DEFAULT_DEMO_CAR : name));
    if (!server->listen("127.0.0.1", 0))
        throw std::runtime_error("the virtual car cannot listen on 127.0.0.1: " + server->error());
    return server;
}

stream_pair_factory tcp_streams(run_loop& loop) {
    return [&loop](const std::string& host, long port) {
        return std::make_unique<tcp_stream_pair>(loop, host, port);
    };
}

stream_pair_factory serial_streams(run_loop& loop, const bundle& texts) {
    return [&loop, &texts](const std::string& path, long speed) {
        return std::make_unique<serial_stream_pair>(loop, texts, std::make_unique<qt_serial_line>(),
                                                    path, speed);
    };
}

// The stored settings, read only.
user_defaults kept_settings(const cli_request& asked) {
    return user_defaults(asked.settings.value_or(user_defaults::default_path()));
}

// The resources, with texts in the language chosen in the preferences.
bundle resources_for(const user_defaults& store) {
    return bundle(":/kestrom", chosen_language(store));
}

// The settings file to use. A demo, a named adapter and a live run work on a copy in `scratch`, so
// that the user's settings do not change.
std::string settings_path(const cli_request& asked, std::optional<QTemporaryDir>& scratch) {
    const std::string path = asked.settings.value_or(user_defaults::default_path());
    if (!asked.demo && !asked.adapter_host && !asked.serial_port && !asked.bluetooth &&
        asked.command != "live")
        return path;
    const QString copy = scratch.emplace().filePath(QStringLiteral("kestrom.conf"));
    QFile::copy(QString::fromStdString(path), copy); // a missing file has no copy
    return copy.toStdString();
}

// With a named interface this is not a first start, which would set default parameters.
void use_stored(user_defaults& store, const transport& way) {
    store_transport(way, store);
    if (!store.contains(PIDS_ARRAY_KEY))
        store.set_string_array(PIDS_ARRAY_KEY, default_pids());
}

void use_adapter(user_defaults& store, const std::string& host, const std::string& port) {
    use_stored(store, transport_named("wifi"));
    store.set_string(WIFI_IP_KEY, host);
    store.set_string(WIFI_PORT_KEY, port);
}

// What the command line asks of a live run, as if the user had chosen it in the preferences.
void use_run(user_defaults& store, const cli_request& asked) {
    store.set_boolean(LOG_RUNS_KEY, asked.log);
    store.set_boolean(FAST_KEY, asked.fast);
    if (asked.all_pids || !asked.pids.empty()) {
        store.set_string_array(MORE_PIDS_KEY, {});
        store.set_string_array(PIDS_ARRAY_KEY,
                               asked.all_pids ? std::vector<std::string>{"0C"} : asked.pids);
    } else if (asked.run != "log") { // has its own parameters, but needs a non-empty list
        store.set_string_array(PIDS_ARRAY_KEY, {"0C"});
    }
}

void use_bluetooth(user_defaults& store, const std::string& address) {
    use_stored(store, transport_named("bluetooth"));
    store.set_boolean(REUSE_LAST_BT_KEY, true);
    store.set_string(KS_LAST_BT_KEY, address);
}

void use_serial_port(user_defaults& store, const std::string& path, int speed) {
    use_stored(store, transport_named("serial"));
    store.set_string(SERIAL_PORT_KEY, path);
    store.set_integer(SERIAL_SPEED_KEY, speed);
}

void open_screen(Ks_lite_delegate& delegate, const std::string& name) {
    if (name == "codes")
        delegate.do_read_codes();
    else if (name == "live")
        delegate.do_actions();
    else if (name == "report")
        delegate.do_report();
    else if (name == "prefs")
        delegate.do_prefs();
    else if (name == "expert")
        delegate.do_expert();
}

// Quits once the window has been painted for the first time.
class first_paint final : public QObject {
  public:
    using QObject::QObject;
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        return false;
    }
};

// True if it was saved, or none was requested.
bool save_screenshot(main_window& window, const std::optional<std::string>& path) {
    if (!path || window.grab().save(QString::fromStdString(*path), "PNG"))
        return true;
    std::fprintf(stderr, "kestrom: cannot write %s\n", path->c_str());
    return false;
}

// A command without a car.
int run_at_desk(int argc, char** argv, const cli_request& asked) {
    const QGuiApplication application(argc, argv); // the chart is drawn
    const QTemporaryDir scratch;
    user_defaults units(scratch.filePath(QStringLiteral("kestrom.conf")).toStdString());
    const user_defaults kept = kept_settings(asked);
    units.set_boolean(KS_METRIC_UNITS_KEY, kept.boolean(KS_METRIC_UNITS_KEY));
    const bundle resources = resources_for(kept);
    const mac_toolies toolies({&resources, &units, nullptr, nullptr});
    g_cur_barom_press = STANDARD_BAROMETER; // reference of boost in logs
    return find_command(asked.command)
        ->run({asked, toolies, resources, units, std::cout, std::cerr});
}

// The doors to adapters, with a recorder if requested.
struct link_doors {
    stream_pair_factory make_streams, make_serial_streams;
    std::unique_ptr<serial_port_profile> bluetooth;
    std::unique_ptr<serial_port_profile> recorded_bluetooth;

    serial_port_profile& serial_port() {
        return *(recorded_bluetooth ? recorded_bluetooth : bluetooth);
    }
    void record(conversation_recorder& recorder) {
        make_streams = recorded_streams(std::move(make_streams), recorder, "wifi");
        make_serial_streams = recorded_streams(std::move(make_serial_streams), recorder, "serial");
        recorded_bluetooth = recorded_serial_port(*bluetooth, recorder);
    }
};

// False, after printing the reason, if the file cannot be created.
bool start_recording(conversation_recorder& recorder, const cli_request& asked,
                     const transport& way) {
    const std::string& path = *asked.record;
    recorder.stopped = [path](const std::string& why) {
        clear_progress();
        std::fprintf(stderr, "kestrom: the recording %s ends here: %s\n", path.c_str(),
                     why.c_str());
    };
    const auto failure = recorder.start(path, KESTROM_VERSION, asked.demo ? "demo" : way.name);
    if (failure)
        std::fprintf(stderr, "kestrom: cannot record to %s: %s; name another file\n", path.c_str(),
                     failure->c_str());
    return !failure;
}

// Puts the command line's choices into the store; answers the demo's car.
std::unique_ptr<tcp_adapter_server> apply_options(user_defaults& defaults,
                                                  const cli_request& asked) {
    std::unique_ptr<tcp_adapter_server> car;
    if (asked.demo) {
        car = start_demo_car(asked.demo_car);
        use_adapter(defaults, "127.0.0.1", std::to_string(car->port()));
    } else if (asked.adapter_host) {
        use_adapter(defaults, *asked.adapter_host, asked.adapter_port);
    } else if (asked.serial_port) {
        use_serial_port(defaults, *asked.serial_port, asked.serial_speed);
    } else if (asked.bluetooth) {
        use_bluetooth(defaults, *asked.bluetooth);
    }
    if (asked.command == "live")
        use_run(defaults, asked);
    return car;
}

// Used until the preferences choose an adapter; the user's settings do not change.
std::unique_ptr<tcp_adapter_server> connect_to_virtual_car(Ks_lite_delegate& delegate) {
    auto car = start_demo_car({});
    use_transport(transport_named("wifi"));
    g_cur_wifi_IP = "127.0.0.1";
    g_cur_wifi_port = std::to_string(car->port());
    delegate.settings_left();
    return car;
}

// What the window and commands with a car need.
struct house {
    QApplication& application;
    const cli_request& asked;
    std::optional<QTemporaryDir> scratch{};
    user_defaults defaults{settings_path(asked, scratch)};
    std::unique_ptr<tcp_adapter_server> car{apply_options(defaults, asked)};
    const bool first_start = defaults.integer(KS_INTERFACE_KEY) == 0;
    qt_run_loop loop{};
    const bundle resources{resources_for(defaults)};
    notification_center notifications{};
    console_alerts printed_alerts{loop};
    message_box_alerts shown_alerts{loop};
    conversation_recorder recorder{loop};
    link_doors link{};

    // False if the conversation cannot be recorded.
    bool make_doors() {
        mac_toolies::initialize({&resources, &defaults, &message_boxes(), &notifications});
        link.make_streams = tcp_streams(loop);
        link.make_serial_streams = serial_streams(loop, resources);
        link.bluetooth = make_bluetooth_door(loop, message_boxes(), resources, defaults,
                                             !asked.without_display());
        if (!asked.record)
            return true;
        link.record(recorder);
        return start_recording(recorder, asked, stored_transport(defaults));
    }
    app_doors doors() {
        return {loop,
                message_boxes(),
                defaults,
                resources,
                notifications,
                link.make_streams,
                link.serial_port(),
                link.make_serial_streams,
                list_serial_ports};
    }
    alerts& message_boxes() {
        return asked.without_display() ? static_cast<alerts&>(printed_alerts) : shown_alerts;
    }
    int leave_with(main_window& window, int status) {
        const int result = save_screenshot(window, asked.screenshot) ? status : FAILURE_STATUS;
        window.close();
        application.exit(result);
        return result;
    }
};

int run_window(house& home, Ks_lite_delegate& delegate, main_window& window) {
    if (home.first_start)
        window.offer_first_steps([&] { home.car = connect_to_virtual_car(delegate); });
    first_paint painted;
    if (home.asked.quit_when_shown)
        window.installEventFilter(&painted);
    const quit_signals signals([&] { window.close(); });
    int status = 0;
    window.show();
    QTimer::singleShot(0, &home.application, [&] { // a box that it opens must not delay the start
        open_screen(delegate, home.asked.screen);
        if (home.asked.screenshot) // once the window has been laid out
            QTimer::singleShot(200, &home.application,
                               [&] { status = home.leave_with(window, 0); });
    });
    const int ended = home.application.exec();
    return status ? status : ended;
}

int run_command(house& home, Ks_lite_delegate& delegate, main_window& window) {
    command_runner runner(home.asked, delegate, home.printed_alerts);
    const quit_signals signals([&] { runner.interrupt(); });
    if (home.asked.screenshot)
        window.show();
    int status = 0;
    home.loop.after(run_loop::milliseconds(0), [&] {
        runner.start([&](int ended) { status = home.leave_with(window, ended); });
    });
    const int ended = home.application.exec();
    return status ? status : ended;
}

int run(QApplication& application, const cli_request& asked) {
    house home{application, asked};
    if (!home.make_doors())
        return USAGE_STATUS;
    Ks_lite_delegate delegate(home.doors(), all_screens());
    main_window window(delegate);
    return asked.command.empty() ? run_window(home, delegate, window)
                                 : run_command(home, delegate, window);
}

// Lost output makes any command fail, silently if the reader (head, say) has closed the pipe.
int status_with_output(int status) {
    if (!output_lost())
        return status;
    pollfd out{STDOUT_FILENO, 0, 0};
    if (::poll(&out, 1, 0) <= 0 || !(out.revents & POLLERR))
        std::fputs("kestrom: the output could not be written\n", stderr);
    return FAILURE_STATUS;
}

int start(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const parsed_command_line read = parse_command_line(arguments);
    const cli_request& asked = read.asked;
    if (!read.error.empty()) {
        std::fputs(complaint_about(read).c_str(), stderr);
        return USAGE_STATUS;
    }
    const command_row* command = find_command(asked.command);
    if (asked.help) {
        std::fputs(help_text(command).c_str(), stdout);
        return 0;
    }
    if (asked.version) {
        std::puts("kestrom " KESTROM_VERSION);
        return 0;
    }
    if (asked.without_display())
        qputenv("QT_QPA_PLATFORM", "offscreen");
    log_to_system(asked.command.empty());
    if (command && !talks_to_car(asked))
        return run_at_desk(argc, argv, asked);
    if (!display_there()) {
        std::fputs("kestrom: there is no display; give a command, such as 'kestrom --demo codes'\n",
                   stderr);
        return FAILURE_STATUS;
    }
    QApplication application(argc, argv);
    QApplication::setStyle(new quick_style);
    QApplication::setApplicationName(QStringLiteral("kestrom"));
    QApplication::setApplicationDisplayName(QStringLiteral("Kestrom"));
    QApplication::setDesktopFileName(QStringLiteral(APPLICATION_ID));
    try {
        return run(application, asked);
    } catch (const car_file_error& unusable) {
        std::fprintf(stderr, "kestrom: %s\n", unusable.what());
        return USAGE_STATUS;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "kestrom: %s\n", failure.what());
        return FAILURE_STATUS;
    }
}

} // namespace

int main(int argc, char** argv) {
    std::signal(SIGPIPE, SIG_IGN); // the failed write is reported instead
    return status_with_output(start(argc, argv));
}
