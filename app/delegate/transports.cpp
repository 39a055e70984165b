#include "transports.h"

#include "globalVars.h"
#include "Ks_lite_delegate.h"
#include "user_defaults.h"

#include <algorithm>
#include <charconv>

namespace {

// Decimal value of the leading digits; no number: 0. A number beyond long is beyond every port too.
long decimal_value(const std::string& text) {
    const std::size_t start = text.find_first_not_of(" \t");
    if (start == std::string::npos)
        return 0;
    long number = 0;
    const auto read = std::from_chars(text.data() + start, text.data() + text.size(), number);
    return read.ec == std::errc::result_out_of_range ? 65536 : number;
}

stream_address wifi_address() {
    const long port = decimal_value(g_cur_wifi_port);
    return {g_cur_wifi_IP, port, g_cur_wifi_IP + ":" + std::to_string(port),
            g_cur_wifi_IP + "\n" + g_cur_wifi_port};
}

stream_address serial_address() {
    const std::string speed =
        g_cur_serial_speed == 0 ? "" : ":" + std::to_string(g_cur_serial_speed);
    const std::string shown = g_cur_serial_port + speed;
    return {g_cur_serial_port, g_cur_serial_speed, shown, shown};
}

// Deliberately does not read the address of a Wi-Fi adapter.
void load_nothing(const user_defaults&) {}

void load_wifi(const user_defaults& store) {
    g_cur_wifi_IP = store.string(WIFI_IP_KEY);
    g_cur_wifi_port = store.string(WIFI_PORT_KEY);
}

void load_serial(const user_defaults& store) {
    g_cur_serial_port = store.string(SERIAL_PORT_KEY);
    g_cur_serial_speed = store.integer(SERIAL_SPEED_KEY);
}

std::string bluetooth_advice(const app_doors& doors) {
    return doors.bluetooth.advice();
}

constexpr transport TRANSPORTS[] = {
    {.name = "bluetooth",
     .interface = KS_USE_BT,
     .serial = false,
     .first_step = "startBluetooth",
     .first_step_key = "ui_start_bluetooth",
     .kind_key = "ui_kind_bluetooth",
     .car_silent_key = "no_reply_from_car_MSG_BT",
     .open = &Ks_lite_delegate::openSerialPortProfile,
     .send = &Ks_lite_delegate::sendOBDcmd_BT,
     .connected = &connected_2_BT_interface,
     .sends_while_opening = true,
     .load = load_nothing,
     .advice = bluetooth_advice,
     .make_streams = nullptr,
     .address = [] { return stream_address(); },
     .connected_text = "",
     .slow_key = ""},
    {.name = "wifi",
     .interface = KS_USE_WIFI,
     .serial = false,
     .first_step = "startWifi",
     .first_step_key = "ui_start_wifi",
     .kind_key = "ui_kind_wifi",
     .car_silent_key = "no_reply_from_car_MSG_TCP",
     .open = &Ks_lite_delegate::openTCP_socky,
     .send = &Ks_lite_delegate::sendOBDcmd_TCP,
     .connected = &connected_2_WIFI_interface,
     .sends_while_opening = false,
     .load = load_wifi,
     .advice = nullptr,
     .make_streams = &app_doors::make_streams,
     .address = wifi_address,
     .connected_text = "TCP Connected!! ... Sending intial request",
     .slow_key = "tcp_no_answer_yet_MSG"},
    {.name = "serial",
     .interface = KS_USE_WIFI,
     .serial = true,
     .first_step = "startSerial",
     .first_step_key = "ui_start_serial",
     .kind_key = "ui_kind_serial",
     .car_silent_key = "no_reply_from_car_MSG_serial",
     .open = &Ks_lite_delegate::openTCP_socky,
     .send = &Ks_lite_delegate::sendOBDcmd_TCP,
     .connected = &connected_2_WIFI_interface,
     .sends_while_opening = false,
     .load = load_serial,
     .advice = nullptr,
     .make_streams = &app_doors::make_serial_streams,
     .address = serial_address,
     .connected_text = "Connected!! ... Sending initial request",
     .slow_key = "serial_no_answer_yet_MSG"},
};

// Bluetooth has its own number; all others are streams.
const transport& row_of(int interface, bool serial) {
    if (interface == KS_USE_BT)
        return transport_named("bluetooth");
    return transport_named(serial ? "serial" : "wifi");
}

} // namespace

std::span<const transport> transports() {
    return TRANSPORTS;
}

const transport& transport_named(std::string_view name) {
    return *std::ranges::find(TRANSPORTS, name, &transport::name);
}

const transport& chosen_transport() {
    return row_of(g_connect_with, g_stream_is_serial);
}

const transport& stored_transport(const user_defaults& store) {
    return row_of(store.integer(KS_INTERFACE_KEY), store.boolean(STREAM_IS_SERIAL_KEY));
}

void use_transport(const transport& chosen) {
    g_connect_with = chosen.interface;
    g_stream_is_serial = chosen.serial;
}

void store_transport(const transport& chosen, user_defaults& store) {
    store.set_integer(KS_INTERFACE_KEY, chosen.interface);
    if (chosen.interface != KS_USE_BT) // which needs no second key
        store.set_boolean(STREAM_IS_SERIAL_KEY, chosen.serial);
}
