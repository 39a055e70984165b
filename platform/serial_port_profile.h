// The door to adapters that offer the Bluetooth Serial Port Profile: choose a device, find its
// serial-port service, open an RFCOMM channel to it. Owned by the program's start-up code, which
// hands it down. Operations that can fail return 0 for success.
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
    virtual ~rfcomm_channel() = default; // closes; a channel that is gone calls nobody
    // Hands all bytes to the system, waiting a bounded time for room; 65535 bytes at most. A
    // channel that is not open drops them and answers an error.
    virtual int writeSync(std::string_view bytes) = 0;
    // The far end is told; our own close calls nobody.
    virtual int closeChannel() = 0;
};

// What happens on a channel. `closed` comes at most once, for the far end's close only.
struct rfcomm_channel_delegate {
    std::function<void(int status)> open_complete; // 0, or an error number of the system's
    std::function<void(std::string_view data)> data;
    std::function<void()> closed;
};

// One entry of a device's service list, as far as it is known when asked for.
class sdp_service_record {
  public:
    virtual ~sdp_service_record() = default;
    // The channel to ask for; it comes from the record, never from a guess.
    virtual int getRFCOMMChannelID(std::uint8_t& channel_id) const = 0;
};

class bluetooth_device {
  public:
    virtual ~bluetooth_device() = default;
    // Six pairs of hexadecimal digits separated by dashes.
    virtual std::string address_text() const = 0;
    // Nothing when the device does not offer the service.
    virtual std::shared_ptr<sdp_service_record> getServiceRecordForUUID(std::uint16_t uuid) = 0;
    // Connects when the chooser has not done so; the run loop delivers nothing meanwhile. Answers
    // an error number of the system's after the user was told why.
    virtual int connect() = 0;
    // Begins to open, once connected. `channel` may be filled although the call fails.
    virtual int openRFCOMMChannelAsync(std::shared_ptr<rfcomm_channel>& channel,
                                       std::uint8_t channel_id,
                                       rfcomm_channel_delegate delegate) = 0;
    // Closes the baseband connection, unless somebody else had made it.
    virtual int closeConnection() = 0;
};

class device_selector {
  public:
    virtual ~device_selector() = default;
    // Only devices that offer one of the services allowed may be chosen.
    virtual void addAllowedUUID(std::uint16_t uuid) = 0;
    // Lets the user choose; the run loop delivers nothing meanwhile. SELECTOR_SUCCESS, or anything
    // else when the user did not want to.
    virtual int runModal() = 0;
    virtual std::vector<std::shared_ptr<bluetooth_device>> getResults() const = 0;
};

class serial_port_profile {
  public:
    virtual ~serial_port_profile() = default;
    // Nothing when there is nobody to ask.
    virtual std::unique_ptr<device_selector> deviceSelector() = 0;
    // The device of an address text, whether in reach or not; nothing when the text is no address.
    virtual std::shared_ptr<bluetooth_device> device_with_address(std::string_view text) = 0;
    // After an attempt that came to nothing: what to do now, in the user's language.
    virtual std::string advice() const = 0;
};
