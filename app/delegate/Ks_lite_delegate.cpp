#include "Ks_lite_delegate.h"

#include "alerts.h"
#include "bundle.h"
#include "default_settings.h"
#include "globalVars.h"
#include "system_log.h"
#include "transports.h"
#include "user_defaults.h"

#include <QLayout>
#include <QWidget>

Ks_lite_delegate::Ks_lite_delegate(app_doors doors, screen_factories factories)
    : doors_(std::move(doors)), factories_(std::move(factories)) {
    observer_ = doors_.notifications.add_observer(
        OBD_EVENT, [this](const std::string& text) { handleOBDRcvdNotification(text); });
    load_settings();
    g_cur_protocol.clear();
    connected_2_WIFI_interface = false;
    connected_2_BT_interface = false;
    g_this_delta = REPLY_TIME_OUT_AT_START;
}

Ks_lite_delegate::~Ks_lite_delegate() {
    doors_.notifications.remove_observer(observer_);
    doors_.loop.cancel(release_);
    doors_.loop.cancel(restore_limit_);
}

void Ks_lite_delegate::load_settings() {
    user_defaults& store = doors_.defaults;
    if (store.integer(KS_INTERFACE_KEY) == 0) { // first run
        use_default_settings(store);
        store.set_boolean(LOG_RUNS_KEY, false);
        store.synchronize();
        return;
    }
    use_transport(stored_transport(store));
    chosen_transport().load(store);
    g_metric_units = store.boolean(KS_METRIC_UNITS_KEY);
    g_log_runs = store.boolean(LOG_RUNS_KEY);
}

void Ks_lite_delegate::show_screen(std::string_view interface_file, bool save_first) {
    if (mainViewController && save_first)
        mainViewController->save_before_leaving();
    release_current_screen();
    const auto factory = factories_.find(interface_file);
    if (factory != factories_.end())
        mainViewController = factory->second(*this);
    screen_name_ = mainViewController ? std::string(interface_file) : std::string();
    if (!mainViewController)
        qCWarning(log_screens, "no screen for %s", std::string(interface_file).c_str());
    else if (mainView && mainView->layout())
        mainView->layout()->addWidget(mainViewController->view());
    if (screen_changed)
        screen_changed();
}

void Ks_lite_delegate::release_current_screen() {
    if (!mainViewController)
        return;
    stop_restore();
    mainViewController->view()->hide();
    mainViewController->view()->setParent(nullptr);
    // One of the screen's own operations may be running: destroy it only from the run loop.
    released_.push_back(std::move(mainViewController));
    doors_.loop.cancel(release_);
    release_ = doors_.loop.after(run_loop::milliseconds(0), [this] { released_.clear(); });
}

void Ks_lite_delegate::do_help_button() {
    alert_request help;
    help.message = "Kestrom - 1.11";
    help.informative = doors_.resources.localized("KS_help");
    help.is_help = true;
    doors_.message_boxes.show(help);
}

void Ks_lite_delegate::applicationWillTerminate() {
    if (mainViewController)
        mainViewController->save_before_leaving();
    wrap_leave();
}

void Ks_lite_delegate::wrap_leave() {
    stop_restore();
    // An open Bluetooth channel is not closed here, only abandoned; it ends with the program.
    if (connected_2_BT_interface)
        rfcommChannelClosed();
    else
        disconnect();
}
