// The car behind the adapter: its units answer service requests (SAE J1979) with message bytes. A
// vehicle does not own its car; clearing codes changes that car.
#pragma once

#include "car.h"
#include "drive_cycle.h"
#include "live_values.h"

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <vector>

struct unit_answer {
    std::uint32_t address = 0;
    // Service data from the answer byte on ("41 00 ..."). CAN: one message of any length. Older
    // buses: each message at most seven bytes.
    std::vector<byte_string> messages;
    std::chrono::milliseconds delay{0}; // in addition to the bus's own
};

class vehicle {
  public:
    // The car's time runs `speed` times as fast as the clock.
    vehicle(car& the_car, std::uint64_t seed, double speed);

    const bus_protocol& protocol() const;
    std::uint8_t fill_byte() const { return car_.fill_byte; }
    // All units' answers to a request, in the order of their addresses; with `only`, those of the
    // unit with that address.
    std::vector<unit_answer> answer(const byte_string& request, std::chrono::milliseconds now,
                                    std::optional<std::uint32_t> only = std::nullopt);
    double battery_volts(std::chrono::milliseconds now);
    // Time counts from the first call.
    double seconds(std::chrono::milliseconds now);

  private:
    using messages = std::vector<byte_string>;

    messages answer_of(control_unit& unit, const byte_string& request);
    messages answer_now(control_unit& unit, const byte_string& request);
    messages current_data(control_unit& unit, const byte_string& request);
    messages freeze_frame_data(const control_unit& unit, const byte_string& request) const;
    messages codes(const control_unit& unit, const byte_string& request) const;
    messages clear(control_unit& unit, const byte_string& request);
    std::optional<byte_string> value(const control_unit& unit, int pid) const;
    bool can() const { return protocol().is_can(); }

    car& car_;
    drive_cycle drive_;
    double speed_;
    std::optional<std::chrono::milliseconds> start_;
    car_moment moment_;
    double cleared_at_km_ = 0;
    double second_ = 0; // of the current request
    std::map<std::pair<std::uint32_t, std::string>, double>
        asked_first_; // when a deferred answer was first requested
};

// Two bytes of SAE J2012: P0301 is 03 01, U0100 is C1 00.
byte_string code_bytes(const std::string& code);
// The four bytes of a "supported" bitmap for the group of 32 that follows `base`.
byte_string support_mask(int base, const std::vector<int>& supported);
