// The door to adapters that offer the Bluetooth Serial Port Profile: choose a device, find its
// serial-port service, open an RFCOMM channel to it. Owned by the start-up code. Operations that
// can fail return 0 for success.
//
// Callbacks of a channel come from the run loop, never from inside an operation.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

inline constexpr std::uint16_t SERIAL_PORT_UUID = 0x1101; // Bluetooth assigned numbers
inline constexpr int SELECTOR_SUCCESS = -1000;

class rfcomm_channel {
  public:
    virtual ~rfcomm_channel() = default; // closes; a destroyed channel makes no calls
    // Hands all bytes to the system, waiting a limited time for room; 65535 bytes at most. A
    // channel that is not open drops them and returns an error.
    virtual int writeSync(std::string_view bytes) = 0;
    // Informs the far end; our own close makes no calls.
    virtual int closeChannel() = 0;
};

// Events of a channel. `closed` comes at most once, only if the far end closes.
struct rfcomm_channel_delegate {
    std::function<void(int status)> open_complete; // 0, or a system error number
    std::function<void(std::string_view data)> data;
    std::function<void()> closed;
};

// One entry of a device's service list, as far as known.
class sdp_service_record {
  public:
    virtual ~sdp_service_record() = default;
    // The channel to request: from the record, never a guess.
    virtual int getRFCOMMChannelID(std::uint8_t& channel_id) const = 0;
};

class bluetooth_device {
  public:
    virtual ~bluetooth_device() = default;
    // Six pairs of hexadecimal digits separated by dashes.
    virtual std::string address_text() const = 0;
    // Nothing if the device does not offer the service.
    virtual std::shared_ptr<sdp_service_record> getServiceRecordForUUID(std::uint16_t uuid) = 0;
    // Connects unless the chooser has done so; the run loop delivers nothing meanwhile. Returns a
    // system error number after telling the user why.
    virtual int connect() = 0;
    // Begins to open, once connected. `channel` may be set even if the call fails.
    virtual int openRFCOMMChannelAsync(std::shared_ptr<rfcomm_channel>& channel,
                                       std::uint8_t channel_id,
                                       rfcomm_channel_delegate delegate) = 0;
    // Closes the baseband connection unless another program made it.
    virtual int closeConnection() = 0;
};

class device_selector {
  public:
    virtual ~device_selector() = default;
    // Only devices that offer one of the services allowed may be chosen.
    virtual void addAllowedUUID(std::uint16_t uuid) = 0;
    // Lets the user choose; the run loop delivers nothing meanwhile. SELECTOR_SUCCESS, or anything
    // else if the user cancelled.
    virtual int runModal() = 0;
    virtual std::vector<std::shared_ptr<bluetooth_device>> getResults() const = 0;
};

class serial_port_profile {
  public:
    virtual ~serial_port_profile() = default;
    // Nothing if there is no user to ask.
    virtual std::unique_ptr<device_selector> deviceSelector() = 0;
    // The device with that address, in range or not; nothing if the text is not an address.
    virtual std::shared_ptr<bluetooth_device> device_with_address(std::string_view text) = 0;
    // After a failed attempt: what to do now, in the user's language.
    virtual std::string advice() const = 0;
};
