#include "default_settings.h"

#include "constantes.h"
#include "globalVars.h"
#include "transports.h"
#include "user_defaults.h"

std::vector<std::string> default_pids() {
    return {"0D", "11", "0C", "05"};
}

void use_default_settings(user_defaults& store) {
    use_transport(transport_named("bluetooth"));
    g_cur_wifi_IP = "192.168.0.10";
    g_cur_wifi_port = "35000";
    g_metric_units = false;
    g_log_runs = false;
    store_transport(chosen_transport(), store);
    store.set_string(WIFI_IP_KEY, g_cur_wifi_IP);
    store.set_string(WIFI_PORT_KEY, g_cur_wifi_port);
    store.set_boolean(KS_METRIC_UNITS_KEY, g_metric_units);
    store.set_string_array(PIDS_ARRAY_KEY, default_pids());
}
