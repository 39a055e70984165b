#include "bluetooth_stage.h"

#include "device_chooser.h"
#include "mock_bluez.h"
#include "stage.h"

#include <QPushButton>

namespace {

// The dialog's data lives as long as the dialog.
class chooser_on_show final : public QObject {
  public:
    chooser_on_show(stage& on, const bluetooth_surroundings& there) : mock_(there.service) {
        std::string refusing;
        if (there.service && there.adapter)
            mock_.add_adapter();
        if (there.devices) {
            refusing = mock_.add_device("00:1D:A5:68:98:8B", "OBDII");
            mock_.set_device(refusing,
                             {{QStringLiteral("Paired"), true},
                              {QStringLiteral("UUIDs"), QStringList{SERIAL_PORT_UUID_TEXT}}});
            mock_.add_device("AA:BB:CC:11:22:33", "Wireless diagnostic adapter, workshop 2");
            mock_.set_device(
                mock_.add_device("D0:5F:B8:20:14:7C", "OBDII BLE"),
                {{QStringLiteral("AddressType"), QStringLiteral("random")},
                 {QStringLiteral("UUIDs"),
                  QStringList{QStringLiteral("000018f0-0000-1000-8000-00805f9b34fb")}}});
            mock_.set_device(
                mock_.add_device("5C:F3:70:8A:01:02", "Headphones"),
                {{QStringLiteral("Paired"), true},
                 {QStringLiteral("UUIDs"),
                  QStringList{QStringLiteral("0000110b-0000-1000-8000-00805f9b34fb")}}});
        }
        if (there.refuse)
            mock_.on_connect(refusing,
                             "raise dbus.exceptions.DBusException('br-connection-page-timeout', "
                             "name='org.bluez.Error.Failed')");
        else if (there.connect)
            mock_.on_connect(refusing, "");
        devices_ = std::make_unique<bluez_devices>(mock_.connect());
        dialog_ = new device_chooser(&on.window, *devices_, on.app.resources, "00:1D:A5:68:98:8B");
        setParent(dialog_);
        dialog_->show();
        QTest::qWait(600);
        if (there.connect) {
            dialog_->findChild<QPushButton*>(QStringLiteral("connectBtn"))->click();
            QTest::qWait(600);
        }
        on.show_dialog(dialog_);
    }

  private:
    mock_bluez mock_;
    std::unique_ptr<bluez_devices> devices_;
    device_chooser* dialog_;
};

} // namespace

void show_device_chooser(stage& on, const bluetooth_surroundings& there) {
    new chooser_on_show(on, there); // owned by the dialog
}
