// One start of the whole program on the virtual clock, with the far end behind its doors. A session
// starts it once, and again where only a restart helps.
#pragma once

#include "bundle.h"
#include "far_end.h"
#include "globalVars.h"
#include "kept_report.h"
#include "Ks_lite_delegate.h"
#include "mac_toolies.h"
#include "screen_factories.h"
#include "scripted_alerts.h"
#include "scripted_serial_port.h"
#include "user_defaults.h"
#include "virtual_run_loop.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QTimer>

#include <ctime>
#include <memory>
#include <string>

struct application {
    application(const std::string& folder, event_trace& events, wire_ledger& answers,
                fault_plan& plan)
        : trace(events), ledger(answers), far(loop, events, answers, plan),
          defaults(folder + "/settings.conf") {
        trace.use_clock(&loop);
        reset_global_vars();
        last_report() = {};
        mac_toolies::initialize({&resources(), &defaults, &messages, &notifications,
                                 folder + "/data",
                                 [this] { return wall_clock + loop.now().count() / 1000; }});
        far.serve(bluetooth);
        // A file dialog runs in real time: this user wants no file.
        QObject::connect(&dismisses_, &QTimer::timeout, [] {
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
                dialog->reject();
        });
        dismisses_.start(1);
    }
    // Separate from the constructor: observers of the deliveries must register first.
    void start() {
        delegate = std::make_unique<Ks_lite_delegate>(
            app_doors{
                loop, messages, defaults, resources(), notifications,
                [this](const std::string& host, long port) { return far.make_streams(host, port); },
                bluetooth},
            all_screens());
    }
    ~application() { trace.use_clock(nullptr); }

    static const bundle& resources() {
        static const bundle compiled_in(":/kestrom", "en_GB");
        return compiled_in;
    }

    QWidget* view() { return delegate->current_screen()->view(); }
    template <class widget = QAbstractButton>
    widget* find(const char* name) {
        return view()->findChild<widget*>(QLatin1String(name));
    }
    // The current screen if it is that one, else null.
    template <class screen>
    screen* showing(const char* interface_file) {
        return delegate && delegate->current_screen_name() == interface_file
                   ? static_cast<screen*>(delegate->current_screen())
                   : nullptr;
    }
    bool advance(run_loop::milliseconds span) { return loop.advance(span), !trace.failed(); }

    event_trace& trace;
    wire_ledger& ledger;
    std::time_t wall_clock = 1'790'000'000;
    virtual_run_loop loop;
    far_end far;
    scripted_alerts messages{loop};
    user_defaults defaults;
    notification_center notifications;
    scripted_serial_port bluetooth{loop};
    std::unique_ptr<Ks_lite_delegate> delegate;

  private:
    QTimer dismisses_;
};
