// Bluetooth adapters that do what a test says. What the link asks for is recorded; what happens on
// the channel is raised by hand, through the run loop as the real door's.
#pragma once

#include "run_loop.h"
#include "serial_port_profile.h"

#include <deque>
#include <memory>
#include <string>
#include <utility>

class scripted_serial_port final : public serial_port_profile {
  public:
    explicit scripted_serial_port(run_loop& loop) : loop_(loop) {}

    // --- what goes wrong
    int no_selector = 0;
    int selector_result = SELECTOR_SUCCESS;
    int nothing_selected = 0;
    int no_service_record = 0;
    int channel_id_error = 0;
    int connect_error = 0;
    int open_error = 0;
    int open_leaves_channel = 1;
    int write_error = 0;
    int close_connection_error = 0;
    // Runs while the chooser is open.
    std::function<void()> while_choosing;
    // Run when the channel is asked for, and with whatever is written to it.
    std::function<void()> when_opened = [] {};
    std::function<void(std::string_view)> when_written = [](std::string_view) {};

    // --- what happened
    std::string address = "00-1a-7d-da-71-13"; // of the device chosen
    std::vector<std::uint16_t> allowed;
    int choosers = 0, opens = 0, closed_channels = 0, closed_connections = 0;
    int opened_channel_id = 0;
    std::deque<std::string> written;
    rfcomm_channel_delegate channel;

    void open_completes(int status = 0) {
        loop_.after(run_loop::milliseconds(0), [this, status] { channel.open_complete(status); });
    }
    void receive(std::string bytes) {
        loop_.after(run_loop::milliseconds(0),
                    [this, bytes = std::move(bytes)] { channel.data(bytes); });
    }
    void drop() {
        loop_.after(run_loop::milliseconds(0), [this] { channel.closed(); });
    }

    std::unique_ptr<device_selector> deviceSelector() override {
        ++choosers;
        return no_selector ? nullptr : std::make_unique<selector>(*this);
    }
    std::shared_ptr<bluetooth_device> device_with_address(std::string_view text) override {
        if (text.size() != address.size())
            return nullptr;
        return std::make_shared<device>(*this, std::string(text));
    }
    std::string advice() const override { return "Press again"; }

  private:
    struct wire final : rfcomm_channel {
        explicit wire(scripted_serial_port& s) : script(s) {}
        int writeSync(std::string_view bytes) override {
            script.written.emplace_back(bytes);
            script.when_written(bytes);
            return script.write_error;
        }
        int closeChannel() override { return ++script.closed_channels, 0; }
        scripted_serial_port& script;
    };
    struct record final : sdp_service_record {
        explicit record(scripted_serial_port& s) : script(s) {}
        int getRFCOMMChannelID(std::uint8_t& channel_id) const override {
            channel_id = 7;
            return script.channel_id_error;
        }
        scripted_serial_port& script;
    };
    struct device final : bluetooth_device {
        device(scripted_serial_port& s, std::string a) : script(s), text(std::move(a)) {}
        std::string address_text() const override { return text; }
        std::shared_ptr<sdp_service_record> getServiceRecordForUUID(std::uint16_t uuid) override {
            if (script.no_service_record || uuid != SERIAL_PORT_UUID)
                return nullptr;
            return std::make_shared<record>(script);
        }
        int connect() override { return script.connect_error; }
        int openRFCOMMChannelAsync(std::shared_ptr<rfcomm_channel>& opened, std::uint8_t channel_id,
                                   rfcomm_channel_delegate delegate) override {
            ++script.opens;
            script.opened_channel_id = channel_id;
            script.channel = std::move(delegate);
            if (script.open_leaves_channel) {
                opened = std::make_shared<wire>(script);
                script.when_opened();
            }
            return script.open_error;
        }
        int closeConnection() override {
            ++script.closed_connections;
            return script.close_connection_error;
        }
        scripted_serial_port& script;
        std::string text;
    };
    struct selector final : device_selector {
        explicit selector(scripted_serial_port& s) : script(s) {}
        void addAllowedUUID(std::uint16_t uuid) override { script.allowed.push_back(uuid); }
        int runModal() override {
            const modal_hold hold(script.loop_);
            if (script.while_choosing)
                script.while_choosing();
            return script.selector_result;
        }
        std::vector<std::shared_ptr<bluetooth_device>> getResults() const override {
            if (script.nothing_selected)
                return {};
            return {std::make_shared<device>(script, script.address)};
        }
        scripted_serial_port& script;
    };

    run_loop& loop_;
};
