// The Bluetooth transport: an RFCOMM channel to the adapter's serial-port service. A channel once
// requested remains the program's channel, open or not: only another adapter in the preferences, or
// Reconnect, connects again.
#include "globalVars.h"
#include "Ks_lite_delegate.h"
#include "system_log.h"
#include "user_defaults.h"

namespace {

constexpr std::chrono::seconds DISCONNECTION_DELAY{1};
constexpr std::size_t LONGEST_WRITE = 65535;

void log_failed_open(int status) {
    qCWarning(log_link, "Error - failed to open the RFCOMM channel with error %08lx.\n",
              static_cast<unsigned long>(static_cast<unsigned>(status)));
}

} // namespace

std::shared_ptr<bluetooth_device> Ks_lite_delegate::choose_bluetooth_device() {
    const std::unique_ptr<device_selector> selector = doors_.bluetooth.deviceSelector();
    if (!selector) {
        qCWarning(log_link, "Error - unable to allocate IOBluetoothDeviceSelectorController.\n");
        return nullptr;
    }
    selector->addAllowedUUID(SERIAL_PORT_UUID);
    if (selector->runModal() != SELECTOR_SUCCESS) {
        qCInfo(log_link, "User has cancelled the device selection.\n");
        return nullptr;
    }
    const auto chosen = selector->getResults();
    if (chosen.empty()) {
        qCWarning(log_link, "Error - no selected device.  ***This should never happen.***\n");
        return nullptr;
    }
    return chosen.front();
}

// The last adapter, if the user wants to reuse it and its address is valid.
std::shared_ptr<bluetooth_device> Ks_lite_delegate::last_bluetooth_device() const {
    if (!doors_.defaults.boolean(REUSE_LAST_BT_KEY))
        return nullptr;
    const std::string address = doors_.defaults.string(KS_LAST_BT_KEY);
    return address.empty() ? nullptr : doors_.bluetooth.device_with_address(address);
}

rfcomm_channel_delegate Ks_lite_delegate::channel_callbacks() {
    const std::uint64_t attempt = ++attempt_;
    opened_to_ = chosen_adapter();
    rfcomm_channel_delegate callbacks;
    callbacks.open_complete = [this, attempt](int status) {
        if (attempt == attempt_)
            rfcommChannelOpenComplete(status);
    };
    callbacks.data = [this, attempt](std::string_view data) {
        if (attempt == attempt_)
            rfcommChannelData(data);
    };
    callbacks.closed = [this, attempt] {
        if (attempt == attempt_)
            rfcommChannelClosed();
    };
    return callbacks;
}

bool Ks_lite_delegate::openSerialPortProfile() {
    if (mRFCOMMChannel)
        return true;
    std::shared_ptr<bluetooth_device> device = last_bluetooth_device();
    if (!device)
        device = choose_bluetooth_device();
    if (!device)
        return false;
    const auto record = device->getServiceRecordForUUID(SERIAL_PORT_UUID);
    if (!record) {
        qCWarning(log_link,
                  "Error - no spp service in selected device.  ***This should never happen since "
                  "the selector forces the user to select only devices with spp.***\n");
        return false;
    }
    std::uint8_t channel_id = 0;
    if (record->getRFCOMMChannelID(channel_id) != 0) {
        qCWarning(log_link, "Error - no spp service in selected device.  ***This should never "
                            "happen an spp service must have an rfcomm channel id.***\n");
        return false;
    }
    // Already connected by the chooser; else connects now, and a failure changes nothing.
    if (const int refused = device->connect(); refused != 0) {
        log_failed_open(refused);
        return false;
    }
    const int failed =
        device->openRFCOMMChannelAsync(mRFCOMMChannel, channel_id, channel_callbacks());
    if (failed != 0 && mRFCOMMChannel) {
        qCWarning(log_link, "Error - open sequence failed.***\n");
        closeDeviceConnectionOnDevice(device);
        return false;
    }
    // A failure without a channel deliberately continues like a success.
    bluetooth_opening_ = mRFCOMMChannel != nullptr;
    mBluetoothDevice = device;
    l_set_status_msg("BT Connected");
    doors_.defaults.set_string(KS_LAST_BT_KEY, device->address_text());
    doors_.defaults.synchronize();
    return true;
}

void Ks_lite_delegate::rfcommChannelOpenComplete(int status) {
    bluetooth_opening_ = false;
    if (status != 0) {
        log_failed_open(status);
        rfcommChannelClosed();
        return;
    }
    connected_2_BT_interface = true;
    l_set_status_msg("BT Connected!!");
    work_over_new_link("");
}

void Ks_lite_delegate::rfcommChannelData(std::string_view data) {
    if (data.empty())
        return;
    // A chunk ends at its first zero byte.
    post_received(std::string(data.substr(0, data.find('\0'))));
}

void Ks_lite_delegate::rfcommChannelClosed() {
    doors_.loop.after(DISCONNECTION_DELAY,
                      [this, device = mBluetoothDevice] { closeDeviceConnectionOnDevice(device); });
    connected_2_BT_interface = false;
    // Its first piece stopped the time-out that would report the loss.
    if (ledger_.reply_incomplete())
        ledger_.link_gone();
    notify_link_lost();
}

void Ks_lite_delegate::closeDeviceConnectionOnDevice(
    const std::shared_ptr<bluetooth_device>& device) {
    if (!device || device != mBluetoothDevice)
        return;
    if (const int failed = device->closeConnection(); failed != 0)
        qCWarning(log_link, "Error - failed to close the device connection with error %08lx.\n",
                  static_cast<unsigned long>(static_cast<unsigned>(failed)));
    mBluetoothDevice.reset();
}

void Ks_lite_delegate::closeRFCOMMConnectionOnChannel(
    const std::shared_ptr<rfcomm_channel>& channel) {
    if (channel && channel == mRFCOMMChannel)
        channel->closeChannel();
}

void Ks_lite_delegate::drop_channel() {
    closeRFCOMMConnectionOnChannel(mRFCOMMChannel);
    closeDeviceConnectionOnDevice(mBluetoothDevice); // or the next connection would time out
    mRFCOMMChannel.reset();
    bluetooth_opening_ = false;
    connected_2_BT_interface = false;
}

void Ks_lite_delegate::sendOBDcmd_BT(std::string_view command) {
    // The terminating zero byte is sent as well.
    std::string bytes(command);
    bytes.push_back('\0');
    bytes.resize(bytes.size() & LONGEST_WRITE);
    ledger_.command_left(doors_.loop.now());
    if (mRFCOMMChannel)
        (void)mRFCOMMChannel->writeSync(bytes); // a failure shows as a time-out
}
