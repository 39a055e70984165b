#include "bluez_serial_port.h"

#include "bluez_channel.h"

#include <algorithm>
#include <cerrno>

namespace {

constexpr int ASKING_LIMIT_MS = 500;

// BlueZ looks up the channel number in the device's record whenever it connects.
class bluez_service_record final : public sdp_service_record {
  public:
    int getRFCOMMChannelID(std::uint8_t& channel_id) const override {
        channel_id = 0;
        return 0;
    }
};

} // namespace

class bluez_device final : public bluetooth_device {
  public:
    bluez_device(bluez_serial_port& door, std::string address,
                 std::unique_ptr<bluez_connection> connection = nullptr)
        : door_(door), address_(std::move(address)), connection_(std::move(connection)) {}

    std::string address_text() const override {
        std::string text = address_;
        std::ranges::replace(text, ':', '-');
        return text;
    }

    std::shared_ptr<sdp_service_record> getServiceRecordForUUID(std::uint16_t uuid) override {
        bluez_devices& devices = door_.devices();
        if (!connection_)
            devices.load_now(ASKING_LIMIT_MS);
        // A device whose services are unknown is asked when connecting.
        const auto known = devices.find(address_);
        if (known && known->serial_port == serial_port_offer::no) {
            door_.user_.tell(bluetooth_problem::no_serial_port, known->name);
            return nullptr;
        }
        if (uuid != SERIAL_PORT_UUID)
            return nullptr;
        return std::make_shared<bluez_service_record>();
    }

    int connect() override {
        if (!connection_) {
            const modal_hold hold(door_.loop_);
            connection_ = std::make_unique<bluez_connection>(door_.devices(), address_);
            door_.user_.wait(*connection_, name());
        }
        if (!connection_->finished()) {
            connection_.reset();
            return ECANCELED;
        }
        const bluetooth_problem problem = connection_->problem();
        if (problem != bluetooth_problem::none) {
            connection_.reset();
            door_.user_.tell(problem, name());
        }
        return error_number(problem);
    }

    int openRFCOMMChannelAsync(std::shared_ptr<rfcomm_channel>& channel, std::uint8_t,
                               rfcomm_channel_delegate delegate) override {
        if (!connection_)
            return ENOTCONN;
        made_link_ = connection_->made_link();
        channel = std::make_shared<bluez_channel>(door_.loop_, std::move(connection_),
                                                  std::move(delegate));
        return 0;
    }

    int closeConnection() override {
        bluez_devices& devices = door_.devices();
        if (!devices.bus().isConnected())
            return ENOTCONN;
        const auto known = devices.find(address_);
        if (made_link_ && known && known->connected)
            devices.disconnect_device(known->path);
        return 0;
    }

  private:
    std::string name() const {
        const auto known = door_.devices().find(address_);
        return known ? known->name : address_;
    }

    bluez_serial_port& door_;
    std::string address_;
    std::unique_ptr<bluez_connection> connection_;
    bool made_link_ = false;
};

// The chooser connects only devices with a serial port.
class bluez_selector final : public device_selector {
  public:
    explicit bluez_selector(bluez_serial_port& door) : door_(door) {}

    void addAllowedUUID(std::uint16_t) override {}
    int runModal() override {
        const modal_hold hold(door_.loop_);
        auto connection = door_.user_.choose(door_.devices());
        if (!connection)
            return SELECTOR_SUCCESS - 1;
        std::string address = connection->address();
        chosen_ = std::make_shared<bluez_device>(door_, std::move(address), std::move(connection));
        return SELECTOR_SUCCESS;
    }
    std::vector<std::shared_ptr<bluetooth_device>> getResults() const override {
        return chosen_ ? std::vector<std::shared_ptr<bluetooth_device>>{chosen_}
                       : std::vector<std::shared_ptr<bluetooth_device>>{};
    }

  private:
    bluez_serial_port& door_;
    std::shared_ptr<bluetooth_device> chosen_;
};

bluez_serial_port::bluez_serial_port(run_loop& loop, bluetooth_user user,
                                     std::function<QDBusConnection()> bus)
    : loop_(loop), user_(std::move(user)), bus_(std::move(bus)) {}

bluez_serial_port::~bluez_serial_port() = default;

bluez_devices& bluez_serial_port::devices() {
    if (!devices_)
        devices_ = std::make_unique<bluez_devices>(bus_());
    return *devices_;
}

std::unique_ptr<device_selector> bluez_serial_port::deviceSelector() {
    chooser_opened_ = static_cast<bool>(user_.choose);
    if (chooser_opened_)
        return std::make_unique<bluez_selector>(*this);
    user_.tell(bluetooth_problem::no_user, "");
    return nullptr;
}

std::shared_ptr<bluetooth_device> bluez_serial_port::device_with_address(std::string_view text) {
    chooser_opened_ = false;
    auto address = bluetooth_address(text);
    return address ? std::make_shared<bluez_device>(*this, *std::move(address)) : nullptr;
}
