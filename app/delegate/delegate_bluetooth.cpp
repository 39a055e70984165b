// The Bluetooth transport. Not there yet: the user is sent to the Wi-Fi setting.
#include "bundle.h"
#include "Ks_lite_delegate.h"
#include "system_log.h"

bool Ks_lite_delegate::openSerialPortProfile() {
    qCWarning(log_link, "Bluetooth adapters are not supported yet");
    l_set_status_msg(doors_.resources.localized("bluetooth_not_built_MSG"));
    return false;
}

void Ks_lite_delegate::sendOBDcmd_BT(std::string_view) {}
