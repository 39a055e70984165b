#include "bluetooth_door.h"

#include "alerts.h"
#include "bluez_serial_port.h"
#include "bundle.h"
#include "constantes.h"
#include "device_chooser.h"
#include "user_defaults.h"

#include <QApplication>

std::unique_ptr<serial_port_profile> make_bluetooth_door(run_loop& loop, alerts& message_boxes,
                                                         const bundle& texts,
                                                         const user_defaults& store,
                                                         bool somebody_to_ask) {
    bluez_serial_port::device_chooser choose;
    if (somebody_to_ask)
        choose = [&texts, &store](bluez_devices& devices) -> std::unique_ptr<bluez_connection> {
            device_chooser dialog(QApplication::activeWindow(), devices, texts,
                                  bluetooth_address(store.string(KS_LAST_BT_KEY)).value_or(""));
            return dialog.exec() == QDialog::Accepted ? dialog.take_connection() : nullptr;
        };
    const auto tell = [&message_boxes, &texts, somebody_to_ask](bluetooth_problem problem,
                                                                const std::string& device) {
        alert_request box;
        box.title = "Bluetooth";
        box.message = problem_text(problem, texts, device);
        if (somebody_to_ask) // a command ends anyway
            box.informative = texts.localized("bt_restart_to_connect");
        message_boxes.show(box);
    };
    return std::make_unique<bluez_serial_port>(loop, choose, tell);
}
