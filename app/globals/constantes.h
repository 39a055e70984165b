// Constants that the link and the screens share. A leaf: anyone may include it.
#pragma once

#include <chrono>

// Values of g_connect_with (and of the stored setting KS_interface).
inline constexpr int KS_USE_BT = 5;
inline constexpr int KS_USE_WIFI = 6;

// Values of g_BT_cur_status.
inline constexpr int BT_DISCONNECTED = 0;
inline constexpr int BT_CONNECTING = 1;
inline constexpr int BT_CONNECTING_DONE = 2;
inline constexpr int BT_CONNECTED = 3;

// Values of g_obd_msg_state.
inline constexpr int S_IDLE = 0;
inline constexpr int S_WAITING = 1;
inline constexpr int S_FAIL = -1;
inline constexpr int S_SUCCESS = 2;
inline constexpr int S_LOGGING = 3;

// The kind of bus, by the headers of an answer.
enum class bus_form { unknown, can, older };

inline constexpr std::chrono::seconds TCP_TIME_OUT{25};
inline constexpr int REPLY_TIME_OUT_AT_START = 3; // seconds, of g_this_delta

// Values of g_cur_task and g_cur_mode.
inline constexpr int MODE_HANDSHAKE = 0;
inline constexpr int TASK_READ_CODES = 1;
inline constexpr int TASK_CLEAR_CODES = 2;
inline constexpr int TASK_RUN_LOG = 4;
inline constexpr int TASK_FUEL_ECONOMY = 7;
inline constexpr int TASK_BOOST = 12;
inline constexpr int TASK_O2_SAMPLING = 13;

// Barometric pressure if not measured, in kPa.
inline constexpr int STANDARD_BAROMETER = 101;

// Names of the stored settings.
inline constexpr char KS_INTERFACE_KEY[] = "KS_interface";
inline constexpr char WIFI_IP_KEY[] = "wifi_IP";
inline constexpr char WIFI_PORT_KEY[] = "wifi_port";
inline constexpr char STREAM_IS_SERIAL_KEY[] = "stream_is_serial"; // of KS_USE_WIFI
inline constexpr char SERIAL_PORT_KEY[] = "serial_port";           // path of the device file
inline constexpr char SERIAL_SPEED_KEY[] = "serial_speed";         // 0: the usual ones are tried
inline constexpr char KS_METRIC_UNITS_KEY[] = "KS_metric_units";
inline constexpr char LOG_RUNS_KEY[] = "log_runs";
inline constexpr char FAST_KEY[] = "fast_sampling"; // the live-data screen's switch
inline constexpr char PIDS_ARRAY_KEY[] = "pidsArray";
inline constexpr char KS_LAST_BT_KEY[] = "KS_last_BT"; // address, bytes separated by dashes
inline constexpr char REUSE_LAST_BT_KEY[] = "reuse_last_BT";
