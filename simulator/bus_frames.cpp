#include "bus_frames.h"

#include "hex_text.h"

#include <algorithm>
#include <numeric>

namespace {

constexpr std::size_t FRAME_BYTES = 8;
constexpr std::size_t FIRST_FRAME_DATA = 6;
constexpr std::size_t NEXT_FRAME_DATA = 7;
constexpr std::uint8_t TESTER = 0xF1;
constexpr std::uint8_t UNIT_PRIORITY = 0x18; // whatever AT CP sets for requests

using std::chrono::milliseconds;

constexpr milliseconds DEFERRED_BY{60}; // from "7F 01 78" to the answer

bool is_deferral(const byte_string& message) {
    return message.size() == 3 && message[0] == 0x7F && message[2] == 0x78;
}

byte_string slice(const byte_string& from, std::size_t start, std::size_t count) {
    const std::size_t end = std::min(from.size(), start + count);
    return {from.begin() + long(start), from.begin() + long(end)};
}

byte_string joined(byte_string first, const byte_string& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

// A single frame is shown as long as its length byte says; the frames of a long message as they
// came, padding included.
void add_can_message(std::vector<bus_frame>& frames, const unit_answer& answer,
                     const byte_string& message, milliseconds at, milliseconds per_frame,
                     bool flow_control) {
    const std::size_t size = message.size();
    bus_frame frame{at, answer.address, joined({std::uint8_t(size)}, message)};
    if (size < FRAME_BYTES) {
        frames.push_back(frame);
        return;
    }
    const byte_string length = {std::uint8_t(0x10 | size >> 8), std::uint8_t(size & 0xFF)};
    frame.data = joined(length, slice(message, 0, FIRST_FRAME_DATA));
    frame.ends_message = false;
    frames.push_back(frame);
    frame.at += 3 * per_frame; // the adapter's flow control frame and the unit's response to it
    std::uint8_t number = 1;
    for (std::size_t from = FIRST_FRAME_DATA; flow_control && from < size;
         from += NEXT_FRAME_DATA) {
        frame.data =
            joined({std::uint8_t(0x20 | (number++ & 15))}, slice(message, from, NEXT_FRAME_DATA));
        frame.ends_message = from + NEXT_FRAME_DATA >= size;
        frames.push_back(frame);
        frame.at += per_frame;
    }
}

std::uint8_t sum(const byte_string& bytes) {
    return std::accumulate(bytes.begin(), bytes.end(), std::uint8_t(0));
}

// The three bytes before the service data.
byte_string header_bytes(const bus_frame& frame, const bus_protocol& bus) {
    const auto sender = std::uint8_t(frame.address);
    switch (bus.kind) {
    case bus_kind::j1850_pwm:
        return {0x41, 0x6B, sender};
    case bus_kind::kwp_slow:
    case bus_kind::kwp_fast:
        return {std::uint8_t(0x80 | frame.data.size()), TESTER, sender};
    default:
        return {0x48, 0x6B, sender};
    }
}

std::string can_id(const bus_frame& frame, const bus_protocol& bus,
                   const adapter_settings& settings) {
    if (!bus.extended_ids)
        return hex_text({std::uint8_t(frame.address >> 8), std::uint8_t(frame.address)}, false)
            .substr(1);
    return hex_text({UNIT_PRIORITY, 0xDA, TESTER, std::uint8_t(frame.address)}, settings.spaces);
}

std::string shown_can_frame(const bus_frame& frame, const bus_protocol& bus,
                            const adapter_settings& settings, bool padding) {
    byte_string data = frame.data;
    const int type = data[0] >> 4;
    if (padding || type != 0 || !settings.can_formatting)
        data.resize(FRAME_BYTES, frame.fill);
    const std::string gap = settings.spaces ? " " : "";
    if (settings.headers) {
        const std::string length = settings.show_length ? gap + "8" : "";
        return can_id(frame, bus, settings) + length + gap + hex_text(data, settings.spaces);
    }
    if (!settings.can_formatting)
        return hex_text(data, settings.spaces);
    if (type == 0)
        return hex_text(slice(frame.data, 1, frame.data.size()), settings.spaces);
    // A long message: its length in three digits, then its frames, numbered.
    const std::string number =
        hex_text({std::uint8_t(type == 1 ? 0 : frame.data[0] & 15)}, false).substr(1);
    const std::string length =
        type == 1 ? hex_text(slice(frame.data, 0, 2), false).substr(1) + "\r" : "";
    return length + number + ":" + gap +
           hex_text(slice(data, type == 1 ? 2 : 1, FRAME_BYTES), settings.spaces);
}

} // namespace

std::vector<bus_frame> frames_on_bus(const std::vector<unit_answer>& answers,
                                     const bus_protocol& bus, std::uint8_t fill, bool flow_control,
                                     milliseconds unit_gap) {
    std::vector<bus_frame> frames;
    milliseconds next_unit = bus.first_byte;
    for (const unit_answer& answer : answers) {
        milliseconds at = next_unit + answer.delay;
        for (const byte_string& message : answer.messages) {
            if (bus.is_can())
                add_can_message(frames, answer, message, at, bus.per_frame, flow_control);
            else
                frames.push_back({at, answer.address, message});
            at += is_deferral(message) ? DEFERRED_BY : bus.per_frame;
        }
        // One wire: on an older bus a unit waits for the one before.
        next_unit = bus.is_can() ? next_unit + unit_gap : at - bus.per_frame + unit_gap;
    }
    for (bus_frame& frame : frames)
        frame.fill = fill;
    std::stable_sort(frames.begin(), frames.end(),
                     [](const bus_frame& a, const bus_frame& b) { return a.at < b.at; });
    return frames;
}

byte_string raw_frame(const bus_frame& frame, const bus_protocol& bus) {
    if (bus.is_can()) {
        const byte_string id =
            bus.extended_ids
                ? byte_string{UNIT_PRIORITY, 0xDA, TESTER, std::uint8_t(frame.address)}
                : byte_string{std::uint8_t(frame.address >> 8), std::uint8_t(frame.address)};
        return joined(id, frame.data);
    }
    byte_string bytes = joined(header_bytes(frame, bus), frame.data);
    bytes.push_back(bus.is_iso() ? sum(bytes) : j1850_crc(bytes));
    if (frame.damaged)
        bytes.back() ^= 0x5A;
    return bytes;
}

std::string shown_frame(const bus_frame& frame, const bus_protocol& bus,
                        const adapter_settings& settings, bool padding) {
    const std::string shown = bus.is_can()       ? shown_can_frame(frame, bus, settings, padding)
                              : settings.headers ? hex_text(raw_frame(frame, bus), settings.spaces)
                                                 : hex_text(frame.data, settings.spaces);
    return frame.damaged ? shown + " <DATA ERROR" : shown;
}

std::uint8_t j1850_crc(const byte_string& bytes) {
    unsigned crc = 0xFF;
    for (const std::uint8_t byte : bytes) {
        crc ^= byte;
        for (int bit = 0; bit < 8; ++bit)
            crc = crc & 0x80 ? (crc << 1 ^ 0x1D) & 0xFF : crc << 1;
    }
    return std::uint8_t(~crc);
}
