// Replies during the handshake: how the screener and each step handle them.
#include "codes_handshake.h"
#include "fuzz_one.h"
#include "fuzz_toolkit.h"
#include "globalVars.h"
#include "live_handshake.h"
#include "obd_screen.h"
#include "scripted_alerts.h"
#include "scripted_serial_port.h"
#include "text.h"
#include "virtual_run_loop.h"

namespace {

struct bare_screen final : obd_screen {
    using obd_screen::obd_screen;
    QWidget* view() override { return nullptr; }
};

constexpr int STEPS[] = {1, 2, 250, 3, 301, 4, 402, 403, 5};

} // namespace

int fuzz_one(std::span<const std::uint8_t> bytes) {
    static const bundle resources(":/kestrom", "en");
    virtual_run_loop loop;
    scripted_alerts boxes(loop);
    user_defaults settings("/nonexistent/settings.conf");
    notification_center notifications;
    scripted_serial_port serial_ports(loop);
    Ks_lite_delegate delegate({loop, boxes, settings, resources, notifications, {}, serial_ports},
                              {});
    bare_screen screen(delegate);
    codes_handshake of_codes(screen);
    live_handshake of_live_data(screen);

    for (adapter_handshake* handshake : {static_cast<adapter_handshake*>(&of_codes),
                                         static_cast<adapter_handshake*>(&of_live_data)})
        for (const int step : STEPS) {
            reset_global_vars();
            cur_cmd = std::string_view("AT I\r");
            odb_curReplyMsg = std::string(as_text(bytes)) + ">";
            const std::string screened = handshake->check_initial_car_reply();
            REQUIRE(screened.size() <= odb_curReplyMsg.size() || screened == REPLY_REJECTED);
            REQUIRE(handshake == &of_live_data || !contains(screened, ">")); // the other keeps it
            boxes.shown.clear();
            const bool done = handshake->connect_2_interface(step);
            REQUIRE(done == (step == 5 && connected_2_KS_interface));
            REQUIRE(boxes.shown.size() <= 2); // the screener's and the step's
            REQUIRE(cur_cmd.str().ends_with('\r'));
        }
    return 0;
}
