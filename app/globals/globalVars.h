// State that the link and the screens share. Everything runs on the one main thread, so there are
// no locks. scripts/check-structure names the files that may include it.
#pragma once

#include "constantes.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>

// Text with the capacity of a C buffer of SIZE bytes: longer text is truncated to SIZE - 1.
template <std::size_t SIZE>
class bounded_text {
  public:
    bounded_text() = default;
    bounded_text(std::string_view text) : text_(text.substr(0, SIZE - 1)) {}

    const std::string& str() const { return text_; }
    operator std::string_view() const { return text_; }
    bool empty() const { return text_.empty(); }
    bool contains(std::string_view part) const { return text_.find(part) != std::string::npos; }
    void clear() { text_.clear(); }

  private:
    std::string text_;
};

extern int g_connect_with;        // transport: KS_USE_BT or KS_USE_WIFI
extern bool g_stream_is_serial;   // of KS_USE_WIFI: a serial port
extern std::string g_cur_wifi_IP; // adapter address and port, as typed
extern std::string g_cur_wifi_port;
extern std::string g_cur_serial_port;
extern int g_cur_serial_speed; // 0: the usual ones are tried
extern bool g_metric_units;
extern bool g_log_runs;
extern int g_this_delta;    // reply time-out in seconds
extern int g_cur_task;      // task asked for
extern int g_cur_mode;      // task running; MODE_HANDSHAKE while the adapter is brought up for it
extern int next_step_idx;   // step that the next complete reply runs
extern int g_retries;       // one counter for every step chain
extern int g_obd_msg_state; // S_IDLE ...
extern int g_replies_expected;           // set to 1 before each send; informative
extern bounded_text<20> cur_cmd;         // the last command built, "\r" included
extern std::string odb_curReplyBuffyMsg; // reply accumulator
extern std::string odb_curReplyMsg;      // last complete reply, prompt included
extern bool connected_2_WIFI_interface;
extern bool connected_2_BT_interface;
extern bool connected_2_KS_interface; // handshake completed
extern bool KS_did_connect_2_car;     // the car has answered once; later handshakes skip the reset
extern bounded_text<40> g_cur_interface; // adapter identity, the raw answer to "AT I"
extern bounded_text<80> g_cur_protocol;  // the first screened answer to "AT DP"
// Units that support PID 01 (status): names by address, from the same headers.
extern std::map<std::string, std::string> g_status_units;
extern bus_form g_bus_form;                     // by the headers of the handshake's answers
extern bounded_text<16> g_Supported_obd_mask_0; // supported-PID bitmaps as 8 hex digits
extern bounded_text<16> g_Supported_obd_mask_1;
extern bounded_text<16> g_Supported_obd_mask_2;
extern bounded_text<12> g_Supported_obd_mask_3;
extern bounded_text<20> p_cur_01_pid; // bytes B, C, D of the engine's "01 01" answer, hex
extern int g_cur_barom_press;         // kPa
extern int g_BT_cur_status;
extern int g_vehicle_idx;
extern bool connecting_2_car_port;

// Puts every global back to zero or empty, as at program start.
void reset_global_vars();
