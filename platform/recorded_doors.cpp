#include "recorded_doors.h"

#include "conversation_recorder.h"

namespace {

class recorded_stream_pair final : public stream_pair {
  public:
    recorded_stream_pair(std::unique_ptr<stream_pair> streams, conversation_recorder& recorder,
                         const char* over)
        : streams_(std::move(streams)), recorder_(recorder), over_(over) {}
    ~recorded_stream_pair() override { note_close(); }

    void open(event_handler handler) override {
        recorder_.connecting(over_);
        begun_ = true;
        streams_->open([this, handler = std::move(handler)](stream_side side, int event_code) {
            if (side == stream_side::input)
                note(event_code);
            handler(side, event_code); // may destroy this pair
        });
    }
    std::string read(std::size_t most) override {
        std::string bytes = streams_->read(most);
        if (!bytes.empty())
            recorder_.received(bytes);
        return bytes;
    }
    void write(std::string_view bytes) override {
        if (open_)
            recorder_.sent(bytes);
        else
            recorder_.unsent(bytes);
        streams_->write(bytes);
    }
    void close() override {
        note_close();
        streams_->close();
    }
    std::string error_description() const override { return streams_->error_description(); }

  private:
    void note(int event_code) {
        if (event_code == STREAM_BYTES_AVAILABLE)
            return;
        open_ = event_code == STREAM_OPEN_COMPLETED;
        if (open_)
            recorder_.opened();
        else if (event_code == STREAM_END)
            recorder_.ended();
        else
            recorder_.failed(streams_->error_description());
    }
    void note_close() {
        if (begun_)
            recorder_.closed();
        begun_ = open_ = false;
    }

    std::unique_ptr<stream_pair> streams_;
    conversation_recorder& recorder_;
    const char* over_;
    bool begun_ = false;
    bool open_ = false;
};

class recorded_channel final : public rfcomm_channel {
  public:
    recorded_channel(std::shared_ptr<rfcomm_channel> channel, conversation_recorder& recorder)
        : channel_(std::move(channel)), recorder_(recorder) {}

    int writeSync(std::string_view bytes) override {
        const int failed = channel_->writeSync(bytes);
        if (failed == 0)
            recorder_.sent(bytes);
        else
            recorder_.unsent(bytes);
        return failed;
    }
    int closeChannel() override {
        recorder_.closed();
        return channel_->closeChannel();
    }

  private:
    std::shared_ptr<rfcomm_channel> channel_;
    conversation_recorder& recorder_;
};

class recorded_device final : public bluetooth_device {
  public:
    recorded_device(std::shared_ptr<bluetooth_device> device, conversation_recorder& recorder)
        : device_(std::move(device)), recorder_(recorder) {}

    std::string address_text() const override { return device_->address_text(); }
    std::shared_ptr<sdp_service_record> getServiceRecordForUUID(std::uint16_t uuid) override {
        return device_->getServiceRecordForUUID(uuid);
    }
    int connect() override {
        const int failed = device_->connect();
        if (failed != 0) {
            recorder_.connecting("bluetooth");
            recorder_.failed("status " + std::to_string(failed));
        }
        return failed;
    }
    int openRFCOMMChannelAsync(std::shared_ptr<rfcomm_channel>& channel, std::uint8_t channel_id,
                               rfcomm_channel_delegate delegate) override {
        recorder_.connecting("bluetooth");
        std::shared_ptr<rfcomm_channel> opening;
        const int failed =
            device_->openRFCOMMChannelAsync(opening, channel_id, listening(std::move(delegate)));
        if (failed != 0)
            recorder_.failed("status " + std::to_string(failed));
        if (opening)
            channel = std::make_shared<recorded_channel>(std::move(opening), recorder_);
        return failed;
    }
    int closeConnection() override { return device_->closeConnection(); }

  private:
    rfcomm_channel_delegate listening(rfcomm_channel_delegate delegate) {
        rfcomm_channel_delegate recorded;
        recorded.open_complete = [&recorder = recorder_,
                                  tell = std::move(delegate.open_complete)](int status) {
            if (status == 0)
                recorder.opened();
            else
                recorder.failed("status " + std::to_string(status));
            tell(status);
        };
        recorded.data = [&recorder = recorder_,
                         tell = std::move(delegate.data)](std::string_view data) {
            recorder.received(data);
            tell(data);
        };
        recorded.closed = [&recorder = recorder_, tell = std::move(delegate.closed)] {
            recorder.ended();
            tell();
        };
        return recorded;
    }

    std::shared_ptr<bluetooth_device> device_;
    conversation_recorder& recorder_;
};

class recorded_selector final : public device_selector {
  public:
    recorded_selector(std::unique_ptr<device_selector> selector, conversation_recorder& recorder)
        : selector_(std::move(selector)), recorder_(recorder) {}

    void addAllowedUUID(std::uint16_t uuid) override { selector_->addAllowedUUID(uuid); }
    int runModal() override { return selector_->runModal(); }
    std::vector<std::shared_ptr<bluetooth_device>> getResults() const override {
        auto devices = selector_->getResults();
        for (auto& device : devices)
            device = std::make_shared<recorded_device>(std::move(device), recorder_);
        return devices;
    }

  private:
    std::unique_ptr<device_selector> selector_;
    conversation_recorder& recorder_;
};

class recorded_profile final : public serial_port_profile {
  public:
    recorded_profile(serial_port_profile& door, conversation_recorder& recorder)
        : door_(door), recorder_(recorder) {}

    std::unique_ptr<device_selector> deviceSelector() override {
        auto selector = door_.deviceSelector();
        return selector ? std::make_unique<recorded_selector>(std::move(selector), recorder_)
                        : nullptr;
    }
    std::shared_ptr<bluetooth_device> device_with_address(std::string_view text) override {
        auto device = door_.device_with_address(text);
        return device ? std::make_shared<recorded_device>(std::move(device), recorder_) : nullptr;
    }
    std::string advice() const override { return door_.advice(); }

  private:
    serial_port_profile& door_;
    conversation_recorder& recorder_;
};

} // namespace

stream_pair_factory recorded_streams(stream_pair_factory make, conversation_recorder& recorder,
                                     const char* over) {
    return [make = std::move(make), &recorder, over](const std::string& host,
                                                     long port) -> std::unique_ptr<stream_pair> {
        auto streams = make(host, port);
        return streams ? std::make_unique<recorded_stream_pair>(std::move(streams), recorder, over)
                       : nullptr;
    };
}

std::unique_ptr<serial_port_profile> recorded_serial_port(serial_port_profile& door,
                                                          conversation_recorder& recorder) {
    return std::make_unique<recorded_profile>(door, recorder);
}
