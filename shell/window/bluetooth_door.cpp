#include "bluetooth_door.h"

#include "alerts.h"
#include "bluez_serial_port.h"
#include "bundle.h"
#include "connecting_dialog.h"
#include "constantes.h"
#include "device_chooser.h"
#include "user_defaults.h"

#include <QApplication>
#include <QEventLoop>

namespace {

void show_problem(alerts& message_boxes, const std::string& message) {
    alert_request box;
    box.title = "Bluetooth";
    box.message = message;
    message_boxes.show(box);
}

bluetooth_user user_at_window(alerts& message_boxes, const bundle& texts,
                              const user_defaults& store) {
    bluetooth_user user;
    user.choose = [&texts, &store](bluez_devices& devices) -> std::unique_ptr<bluez_connection> {
        device_chooser dialog(QApplication::activeWindow(), devices, texts,
                              bluetooth_address(store.string(KS_LAST_BT_KEY)).value_or(""));
        return dialog.exec() == QDialog::Accepted ? dialog.take_connection() : nullptr;
    };
    user.wait = [&texts](bluez_connection& connection, const std::string& device) {
        connecting_dialog(QApplication::activeWindow(), connection, texts, device).exec();
    };
    user.tell = [&](bluetooth_problem problem, const std::string& device) {
        show_problem(message_boxes, problem_text(problem, texts, device));
    };
    user.advice = [&texts](bool after_chooser) {
        return texts.localized(after_chooser ? "bt_no_adapter_MSG" : "bt_not_reached_MSG");
    };
    return user;
}

// For a command there is no user to press again: it prints only the reason.
bluetooth_user user_of_command(alerts& message_boxes, const bundle& texts) {
    const auto reason = std::make_shared<std::string>();
    bluetooth_user user;
    user.wait = [](bluez_connection& connection, const std::string&) {
        QEventLoop waiting;
        QObject::connect(&connection, &bluez_connection::done, &waiting, &QEventLoop::quit);
        waiting.exec();
    };
    user.tell = [&, reason](bluetooth_problem problem, const std::string& device) {
        *reason = problem_text(problem, texts, device);
        show_problem(message_boxes, *reason);
    };
    user.advice = [reason](bool) { return *reason; };
    return user;
}

} // namespace

std::unique_ptr<serial_port_profile> make_bluetooth_door(run_loop& loop, alerts& message_boxes,
                                                         const bundle& texts,
                                                         const user_defaults& store,
                                                         bool has_user) {
    return std::make_unique<bluez_serial_port>(
        loop, has_user ? user_at_window(message_boxes, texts, store)
                       : user_of_command(message_boxes, texts));
}
