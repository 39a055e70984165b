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

namespace {

// In the table of transports as on the screen.
constexpr std::size_t BLUETOOTH_ROW = 0, WIFI_ROW = 1, SERIAL_ROW = 2;
constexpr std::chrono::seconds BETWEEN_LOOKS{1};

} // namespace

prefs::prefs(Ks_lite_delegate& delegate)
    : KS_delegate(delegate),
      toolies({&delegate.doors().resources, &delegate.doors().defaults,
               &delegate.doors().message_boxes, &delegate.doors().notifications}),
      view_(std::make_unique<prefs_view>(delegate)) {
    awakeFromNib();
}

prefs::~prefs() {
    KS_delegate.doors().loop.cancel(next_look_);
}

QWidget* prefs::view() {
    return view_->root();
}

void prefs::awakeFromNib() {
    view_->on_wifi = [this] { interfaceWifiClicked(); };
    view_->on_bluetooth = [this] { interfaceBTClicked(); };
    view_->on_serial = [this] { interfaceSerialClicked(); };
    view_->on_metric = [this] { metricCheckBoxStatus(); };
    view_->on_row = [this](int row) { tableViewSelectionDidChange(row); };
    view_->on_defaults = [this] { setDefaultsClicked(); };
    setPrefsScreen();
    printPidsCount();
}

void prefs::setPrefsScreen() {
    const user_defaults& store = KS_delegate.doors().defaults;
    const bool stream = store.integer(KS_INTERFACE_KEY) == KS_USE_WIFI;
    view_->select_interface(!stream                          ? BLUETOOTH_ROW
                            : stored_transport(store).serial ? SERIAL_ROW
                                                             : WIFI_ROW);
    view_->set_serial(store.string(SERIAL_PORT_KEY), store.integer(SERIAL_SPEED_KEY));
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
    save_adapter(store);
    KS_delegate.settings_left();
    g_metric_units = view_->metric_units();
    store.set_boolean(KS_METRIC_UNITS_KEY, g_metric_units);
    g_log_runs = view_->log_runs();
    store.set_boolean(LOG_RUNS_KEY, g_log_runs);
    store.set_boolean(REUSE_LAST_BT_KEY, view_->reuse_last_adapter());
    store.set_string(LANGUAGE_KEY, view_->language()); // takes effect at the next start
    std::vector<std::string> chosen;
    for (const pid_entry& entry : _pid_available_list)
        if (entry.selected)
            chosen.push_back(entry.pid);
    store.set_string_array(PIDS_ARRAY_KEY, std::move(chosen));
    if (!store.synchronize())
        toolies.myMsgBox(KS_delegate.doors().resources.localized("ui_settings_not_saved") + "\n" +
                         store.path());
}

void prefs::save_adapter(user_defaults& store) {
    const transport& chosen = transports()[view_->interface_row()];
    use_transport(chosen);
    store_transport(chosen, store);
    if (chosen.serial)
        save_serial(store);
    else if (chosen.interface == KS_USE_WIFI) {
        const std::string address = view_->address();
        const std::string port = view_->port();
        g_cur_wifi_IP = address;
        g_cur_wifi_port = port;
        store.set_string(WIFI_IP_KEY, address);
        store.set_string(WIFI_PORT_KEY, port);
    }
}

void prefs::setDefaults() {
    user_defaults& store = KS_delegate.doors().defaults;
    use_default_settings(store);
    store.set_boolean(REUSE_LAST_BT_KEY, false);
    store.set_string(LANGUAGE_KEY, "");
    store.set_string(SERIAL_PORT_KEY, "");
    store.set_integer(SERIAL_SPEED_KEY, 0);
    store.synchronize();
}

void prefs::setDefaultsClicked() {
    setDefaults();
    setPrefsScreen();
    printPidsCount();
}

void prefs::handle_interface(int) {
    view_->show_panel();
    follow_serial_ports();
}

void prefs::save_serial(user_defaults& store) {
    g_cur_serial_port = view_->serial_port();
    g_cur_serial_speed = view_->serial_speed();
    store.set_string(SERIAL_PORT_KEY, g_cur_serial_port);
    store.set_integer(SERIAL_SPEED_KEY, g_cur_serial_speed);
}

void prefs::follow_serial_ports() {
    app_doors& doors = KS_delegate.doors();
    doors.loop.cancel(next_look_);
    next_look_ = 0;
    if (view_->interface_row() != SERIAL_ROW)
        return;
    if (doors.serial_ports)
        view_->show_serial_ports(doors.serial_ports());
    next_look_ = doors.loop.after(BETWEEN_LOOKS, [this] { follow_serial_ports(); });
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
