// A virtual adapter on a clock that a test moves.
#pragma once

#include "car_library.h"
#include "virtual_adapter.h"

#include <string>
#include <vector>

struct timed_chunk {
    long at; // ms
    std::string text;

    bool operator==(const timed_chunk&) const = default;
};

// What a conversation is held with.
struct adapter_scene {
    std::string car_name = "can11";
    std::vector<std::string> faults{};
    std::optional<long> latency = 0; // none: as long as on the genuine bus
    std::uint64_t seed = 1;
    std::string protocol{};
    int baud = 0, round_trip = 0;
};

class adapter_harness {
  public:
    using milliseconds = std::chrono::milliseconds;

    explicit adapter_harness(const adapter_scene& scene = {})
        : the_car(load_car(scene.car_name)), adapter(in_place(scene), options(scene)) {
        adapter.connection_opened(now);
    }

    // Sends and runs the clock until nothing more is due: what came, and when.
    std::vector<timed_chunk> chunks(const std::string& bytes) {
        adapter.receive(bytes, now);
        return run_until(milliseconds(1'000'000'000));
    }
    std::vector<timed_chunk> run_until(milliseconds end) {
        std::vector<timed_chunk> came;
        while (adapter.next_output() && *adapter.next_output() <= end &&
               !adapter.wants_close(now)) {
            now = std::max(now, *adapter.next_output());
            if (const std::string text = adapter.take_output(now); !text.empty())
                came.push_back({now.count(), text});
        }
        return came;
    }
    std::string say(const std::string& command) { return joined(chunks(command + "\r")); }

    static std::string joined(const std::vector<timed_chunk>& chunks) {
        std::string text;
        for (const timed_chunk& chunk : chunks)
            text += chunk.text;
        return text;
    }

    car the_car;
    virtual_adapter adapter;
    milliseconds now{0};

  private:
    car& in_place(const adapter_scene& scene) {
        if (!scene.protocol.empty())
            change_protocol(the_car, *protocol_named(scene.protocol));
        return the_car;
    }
    static adapter_options options(const adapter_scene& scene) {
        std::vector<fault> faults;
        for (const std::string& name : scene.faults)
            faults.push_back(parse_fault(name));
        adapter_options made;
        made.faults = fault_set(faults);
        made.seed = scene.seed;
        if (scene.latency)
            made.latency = milliseconds(*scene.latency);
        made.baud = scene.baud;
        made.round_trip = milliseconds(scene.round_trip);
        return made;
    }
};
