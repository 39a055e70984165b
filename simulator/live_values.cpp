#include "live_values.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

// Rounded to an unsigned number of that many bytes, clamped to its range.
byte_string number(double value, int bytes) {
    const double highest = bytes == 1 ? 255 : bytes == 2 ? 65535 : 4294967295.0;
    const double held = std::isnan(value) ? 0 : std::clamp(std::round(value), 0.0, highest);
    const auto raw = static_cast<std::uint32_t>(held);
    byte_string made;
    for (int i = bytes - 1; i >= 0; --i)
        made.push_back(std::uint8_t(raw >> (8 * i)));
    return made;
}

byte_string percent(double share) {
    return number(share * 255 / 100, 1);
}
byte_string trim(double share) {
    return number((share + 100) * 1.28, 1);
}
byte_string celsius(double degrees) {
    return number(degrees + 40, 1);
}

byte_string pair(byte_string first, const byte_string& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

// The bits that say which of the following values are present, and these values.
byte_string present(std::uint8_t bits, std::initializer_list<byte_string> values) {
    byte_string made{bits};
    for (const byte_string& value : values)
        made = pair(std::move(made), value);
    return made;
}
byte_string torque(double share) {
    return number(share + 125, 1);
}
byte_string exhaust(double degrees) {
    return number((degrees + 40) * 10, 2);
}
const byte_string NO_BYTE(1, 0), NO_WORD(2, 0);

byte_string fuel_system(const car_moment& m) {
    const std::uint8_t status = !m.engine.running      ? 0
                                : m.engine.fuel_cut    ? 4
                                : m.engine.closed_loop ? 2
                                                       : 1;
    return {status, 0};
}

struct value_row {
    int pid;
    int bytes;
    byte_string (*encode)(const car_moment&); // null: only a car file gives it
};

using moment = const car_moment&;

constexpr std::array ROWS = {
    value_row{0x03, 2, fuel_system},
    value_row{0x04, 1, [](moment m) { return percent(m.engine.load); }},
    value_row{0x05, 1, [](moment m) { return celsius(m.engine.coolant_celsius); }},
    value_row{0x06, 1, [](moment m) { return trim(m.engine.short_trim); }},
    value_row{0x07, 1, [](moment m) { return trim(m.engine.long_trim); }},
    value_row{0x08, 1, [](moment m) { return trim(m.engine.short_trim * 0.8); }},
    value_row{0x09, 1, [](moment m) { return trim(m.engine.long_trim * 0.9); }},
    value_row{0x0A, 1,
              [](moment m) { return number(m.engine.running ? 380 / 3.0 : 300 / 3.0, 1); }},
    value_row{0x0B, 1, [](moment m) { return number(m.engine.manifold_kpa, 1); }},
    value_row{0x0C, 2, [](moment m) { return number(m.engine.rpm * 4, 2); }},
    value_row{0x0D, 1, [](moment m) { return number(m.engine.speed_kmh, 1); }},
    value_row{0x0E, 1, [](moment m) { return number(m.engine.advance_degrees * 2 + 128, 1); }},
    value_row{0x0F, 1, [](moment m) { return celsius(m.engine.intake_celsius); }},
    value_row{0x10, 2, [](moment m) { return number(m.engine.air_gram_s * 100, 2); }},
    value_row{0x11, 1, [](moment m) { return percent(m.engine.throttle); }},
    value_row{0x12, 1, nullptr},
    value_row{0x13, 1, nullptr},
    value_row{0x14, 2,
              [](moment m) {
                  return pair(number(m.engine.oxygen_volts * 200, 1), trim(m.engine.short_trim));
              }},
    // The sensor after the catalyst is not used for trimming: FF.
    value_row{
        0x15, 2,
        [](moment m) { return pair(number(m.engine.downstream_oxygen_volts * 200, 1), {0xFF}); }},
    value_row{0x18, 2,
              [](moment m) {
                  return pair(number(m.engine.oxygen_volts * 190, 1), trim(m.engine.short_trim));
              }},
    value_row{
        0x19, 2,
        [](moment m) { return pair(number(m.engine.downstream_oxygen_volts * 195, 1), {0xFF}); }},
    value_row{0x1C, 1, nullptr},
    value_row{0x1D, 1, nullptr},
    value_row{0x1E, 1, nullptr},
    value_row{0x1F, 2, [](moment m) { return number(m.engine.run_seconds, 2); }},
    value_row{0x21, 2, [](moment m) { return number(m.lamp_km, 2); }},
    value_row{0x23, 2,
              [](moment m) {
                  return number((m.engine.running ? 25000 + m.engine.load * 1000 : 4000) / 10, 2);
              }},
    value_row{0x24, 4,
              [](moment m) {
                  return pair(number(m.engine.equivalence_ratio * 32768, 2),
                              number(m.engine.oxygen_volts * 8192, 2));
              }},
    value_row{
        0x2C, 1,
        [](moment m) { return percent(m.engine.running ? std::max(0.0, 45 - m.engine.load) : 0); }},
    value_row{0x2D, 1, [](moment m) { return trim(m.engine.short_trim * 0.5); }},
    value_row{0x2E, 1,
              [](moment m) { return percent(m.engine.closed_loop ? m.engine.load * 0.6 : 0); }},
    value_row{0x2F, 1, [](moment m) { return percent(m.engine.fuel_level); }},
    value_row{0x30, 1, [](moment m) { return number(m.warm_ups, 1); }},
    value_row{0x31, 2, [](moment m) { return number(m.km_since_clear, 2); }},
    value_row{0x33, 1, [](moment m) { return number(m.engine.barometer_kpa, 1); }},
    value_row{0x34, 4,
              [](moment m) {
                  return pair(number(m.engine.equivalence_ratio * 32768, 2),
                              number((m.engine.short_trim / 20 + 128) * 256, 2));
              }},
    value_row{0x3C, 2, [](moment m) { return number((m.engine.catalyst_celsius + 40) * 10, 2); }},
    value_row{0x42, 2, [](moment m) { return number(m.engine.battery_volts * 1000, 2); }},
    value_row{0x43, 2, [](moment m) { return number(m.engine.absolute_load * 255 / 100, 2); }},
    value_row{0x44, 2, [](moment m) { return number(m.engine.equivalence_ratio * 32768, 2); }},
    value_row{0x45, 1, [](moment m) { return percent(std::max(0.0, m.engine.throttle - 11.8)); }},
    value_row{0x46, 1, [](moment m) { return celsius(m.engine.ambient_celsius); }},
    value_row{0x47, 1, [](moment m) { return percent(m.engine.throttle + 0.4); }},
    value_row{0x49, 1, [](moment m) { return percent(14.5 + m.engine.pedal * 0.7); }},
    value_row{0x4A, 1, [](moment m) { return percent(14.9 + m.engine.pedal * 0.7); }},
    value_row{0x4C, 1, [](moment m) { return percent(std::max(0.0, m.engine.throttle - 11.8)); }},
    value_row{0x4D, 2, [](moment m) { return number(m.lamp_km * 60 / 45, 2); }},
    value_row{0x4E, 2, [](moment m) { return number(m.km_since_clear * 60 / 45, 2); }},
    value_row{0x51, 1, nullptr},
    value_row{0x52, 1, nullptr},
    value_row{0x53, 2, [](moment m) { return number(m.engine.barometer_kpa * 200, 2); }},
    value_row{0x59, 2,
              [](moment m) {
                  return number((m.engine.running ? 25000 + m.engine.load * 1000 : 4000) / 10, 2);
              }},
    value_row{0x5A, 1, [](moment m) { return percent(m.engine.pedal); }},
    value_row{0x5B, 1, nullptr},
    value_row{0x5C, 1, [](moment m) { return celsius(m.engine.oil_celsius); }},
    // Litres an hour; petrol weighs 745 g/l.
    value_row{0x5E, 2, [](moment m) { return number(m.engine.fuel_gram_s * 3600 / 745 * 20, 2); }},
    value_row{0x5D, 2, [](moment m) { return number((m.engine.advance_degrees + 210) * 128, 2); }},
    value_row{0x61, 1, [](moment m) { return torque(m.engine.pedal); }},
    value_row{0x62, 1, [](moment m) { return torque(m.engine.load); }},
    value_row{0x63, 2, nullptr},
    value_row{0x64, 5, nullptr},
    value_row{0x66, 5,
              [](moment m) {
                  return present(1, {number(m.engine.air_gram_s * 32, 2), NO_WORD});
              }},
    value_row{0x67, 3,
              [](moment m) {
                  return present(3, {celsius(m.engine.coolant_celsius),
                                     celsius(m.engine.coolant_celsius * 0.9)});
              }},
    // The sensor after the air filter, and the one after the intercooler.
    value_row{0x68, 7,
              [](moment m) {
                  return present(3, {celsius(m.engine.ambient_celsius),
                                     celsius(m.engine.intake_celsius), byte_string(4, 0)});
              }},
    value_row{0x70, 10,
              [](moment m) {
                  return present(7, {number(m.engine.manifold_kpa * 32, 2),
                                     number(m.engine.manifold_kpa * 0.98 * 32, 2), NO_WORD,
                                     NO_WORD, {2}});
              }},
    // Sensor 1 before the catalyst, sensor 3 before the particulate filter.
    value_row{0x78, 9,
              [](moment m) {
                  return present(5, {exhaust(m.engine.catalyst_celsius * 1.2), NO_WORD,
                                     exhaust(m.engine.catalyst_celsius), NO_WORD});
              }},
    value_row{0x7C, 9,
              [](moment m) {
                  return present(3, {exhaust(m.engine.catalyst_celsius),
                                     exhaust(m.engine.catalyst_celsius * 0.8), NO_WORD, NO_WORD});
              }},
    value_row{0x7F, 13,
              [](moment m) {
                  return present(1, {number(m.engine.run_seconds, 4), byte_string(8, 0)});
              }},
    value_row{0x84, 1, [](moment m) { return celsius(m.engine.intake_celsius + 6); }},
    value_row{0x87, 5,
              [](moment m) {
                  return present(1, {number(m.engine.manifold_kpa * 32, 2), NO_WORD});
              }},
    value_row{0x8E, 1, nullptr},
    value_row{0xA6, 4, [](moment m) { return number(m.odometer_km * 10, 4); }},
};

const value_row* row_of(int pid) {
    for (const value_row& row : ROWS)
        if (row.pid == pid)
            return &row;
    return nullptr;
}

} // namespace

int pid_length(int pid) {
    const value_row* const row = row_of(pid);
    return row ? row->bytes : 0;
}

bool has_live_value(int pid) {
    const value_row* const row = row_of(pid);
    return row && row->encode;
}

byte_string live_value(int pid, const car_moment& moment) {
    return row_of(pid)->encode(moment);
}
