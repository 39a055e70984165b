#include "prefs.h"

#include "bundle.h"
#include "default_settings.h"
#include "globalVars.h"
#include "Ks_lite_delegate.h"
#include "languages.h"
#include "prefs_view.h"
#include "system_log.h"
#include "transports.h"
#include "user_defaults.h"

#include <algorithm>

prefs::prefs(Ks_lite_delegate& delegate)
    : KS_delegate(delegate),
      toolies({&delegate.doors().resources, &delegate.doors().defaults,
               &delegate.doors().message_boxes, &delegate.doors().notifications}),
      view_(std::make_unique<prefs_view>(delegate)) {
    awakeFromNib();
}

prefs::~prefs() = default;

QWidget* prefs::view() {
    return view_->root();
}

void prefs::awakeFromNib() {
    view_->on_wifi = [this] { interfaceWifiClicked(); };
    view_->on_bluetooth = [this] { interfaceBTClicked(); };
    view_->on_metric = [this] { metricCheckBoxStatus(); };
    view_->on_row = [this](int row) { tableViewSelectionDidChange(row); };
    view_->on_defaults = [this] { setDefaultsClicked(); };
    setPrefsScreen();
    printPidsCount();
}

void prefs::setPrefsScreen() {
    const user_defaults& store = KS_delegate.doors().defaults;
    view_->select_wifi(store.integer(KS_INTERFACE_KEY) == KS_USE_WIFI);
    handle_interface(0);
    view_->set_log_runs(g_log_runs);
    view_->set_metric_units(g_metric_units);
    view_->set_reuse_last_adapter(store.boolean(REUSE_LAST_BT_KEY));
    view_->set_language(chosen_language(store));
    view_->set_address(store.string(WIFI_IP_KEY), store.string(WIFI_PORT_KEY));
    _pid_available_list.clear();
    load_pids_list();
    for (const std::string& pid :
         store.string_array(PIDS_ARRAY_KEY).value_or(std::vector<std::string>())) {
        const auto found = std::ranges::find(_pid_available_list, pid, &pid_entry::pid);
        if (found != _pid_available_list.end())
            set_item_to_pref_vector(static_cast<std::size_t>(found - _pid_available_list.begin()));
    }
    reload_table();
}

void prefs::savePrefs() {
    user_defaults& store = KS_delegate.doors().defaults;
    use_transport(transport_named(view_->wifi_selected() ? "wifi" : "bluetooth"));
    store_transport(chosen_transport(), store);
    if (view_->wifi_selected()) {
        const std::string address = view_->address();
        const std::string port = view_->port();
        g_cur_wifi_IP = address;
        g_cur_wifi_port = port;
        store.set_string(WIFI_IP_KEY, address);
        store.set_string(WIFI_PORT_KEY, port);
    }
    KS_delegate.settings_left();
    g_metric_units = view_->metric_units();
    store.set_boolean(KS_METRIC_UNITS_KEY, g_metric_units);
    g_log_runs = view_->log_runs();
    store.set_boolean(LOG_RUNS_KEY, g_log_runs);
    store.set_boolean(REUSE_LAST_BT_KEY, view_->reuse_last_adapter());
    store.set_string(LANGUAGE_KEY, view_->language()); // the next start speaks it
    std::vector<std::string> chosen;
    for (const pid_entry& entry : _pid_available_list)
        if (entry.selected)
            chosen.push_back(entry.pid);
    store.set_string_array(PIDS_ARRAY_KEY, std::move(chosen));
    if (!store.synchronize())
        toolies.myMsgBox(KS_delegate.doors().resources.localized("ui_settings_not_saved") + "\n" +
                         store.path());
}

void prefs::setDefaults() {
    user_defaults& store = KS_delegate.doors().defaults;
    use_default_settings(store);
    store.set_boolean(REUSE_LAST_BT_KEY, false);
    store.set_string(LANGUAGE_KEY, "");
    store.synchronize();
}

void prefs::setDefaultsClicked() {
    setDefaults();
    setPrefsScreen();
    printPidsCount();
}

void prefs::handle_interface(int) {
    view_->show_wifi_panel(view_->wifi_selected());
}

void prefs::metricCheckBoxStatus() {
    qCDebug(log_screens, view_->metric_units() ? "Checkbox is ON" : "Checkbox is OFF");
}

void prefs::load_pids_list() {
    for (const std::string& pid : default_pids())
        add_item_to_pref_vector(pid);
}

void prefs::add_item_to_pref_vector(const std::string& pid) {
    _pid_available_list.push_back({false, pid});
}

void prefs::set_item_to_pref_vector(std::size_t index) {
    _pid_available_list[index].selected = true;
}

void prefs::tableViewSelectionDidChange(int row) {
    qCDebug(log_screens, "sel=%d", row);
    if (row < 0 || row >= static_cast<int>(_pid_available_list.size()))
        return;
    pid_entry& entry = _pid_available_list[static_cast<std::size_t>(row)];
    entry.selected = !entry.selected;
    printPidsCount();
    reload_table();
}

void prefs::printPidsCount() {
    const auto count = std::ranges::count(_pid_available_list, true, &pid_entry::selected);
    view_->set_pids_status(count ? " " + std::to_string(count) + " Selected PIDs" : "No selection");
}

void prefs::reload_table() {
    std::vector<prefs_view::pid_row> rows;
    for (const pid_entry& entry : _pid_available_list)
        rows.push_back({entry.selected, toolies.get_pid_name(entry.pid, false)});
    view_->show_pids(std::move(rows));
}
