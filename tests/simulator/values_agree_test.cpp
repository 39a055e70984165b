// The virtual car and the toolkit against each other: what the sensors see, encoded by the one and
// decoded by the other, is what the display text says.
#include "constantes.h"
#include "globalVars.h"
#include "hex_text.h"
#include "live_values.h"
#include "mac_toolies.h"
#include "parameters.h"
#include "user_defaults.h"

#include <array>
#include <charconv>
#include <cmath>
#include <gtest/gtest.h>

namespace {

struct conversion {
    double factor, offset;
};

constexpr conversion NONE{1, 0};
constexpr conversion FAHRENHEIT{1.8, 32};
constexpr conversion MILES{1 / 1.6, 0};
constexpr conversion PSI{0.145, 0};
// Where no letter fixes another.
constexpr conversion EXACT_MILES{0.6213712, 0}, EXACT_PSI{0.1450377, 0};

// SAE J1979: bytes [at, at + width) of an answer, as a number times `raw.factor` plus `raw.offset`,
// are the value that `sense` puts into the car.
struct value_row {
    int pid;
    std::size_t at, width;
    conversion raw;
    void (*sense)(car_moment&, double);
    conversion imperial = NONE;
    double cut = 0; // the toolkit drops the fraction of this much, on purpose
    // What the numbers of the display text count, to be summed up.
    std::array<double, 3> weights{1, 0, 0};
};

constexpr conversion PERCENT{100.0 / 255, 0};
constexpr conversion TRIM{1 / 1.28, -100};
constexpr conversion CELSIUS{1, -40};
constexpr conversion RATIO{1.0 / 32768, 0};
constexpr std::array<double, 3> SECOND{0, 1, 0};

using moment = car_moment&;

const value_row ROWS[] = {
    {0x04, 0, 1, PERCENT, [](moment m, double v) { m.engine.load = v; }},
    {0x05, 0, 1, CELSIUS, [](moment m, double v) { m.engine.coolant_celsius = v; }, FAHRENHEIT},
    {0x06, 0, 1, TRIM, [](moment m, double v) { m.engine.short_trim = v; }},
    {0x07, 0, 1, TRIM, [](moment m, double v) { m.engine.long_trim = v; }},
    {0x08, 0, 1, TRIM, [](moment m, double v) { m.engine.short_trim = v / 0.8; }},
    {0x09, 0, 1, TRIM, [](moment m, double v) { m.engine.long_trim = v / 0.9; }},
    {0x0B, 0, 1, NONE, [](moment m, double v) { m.engine.manifold_kpa = v; }, {0.295, 0}},
    {0x0C, 0, 2, {0.25, 0}, [](moment m, double v) { m.engine.rpm = v; }},
    {0x0D, 0, 1, NONE, [](moment m, double v) { m.engine.speed_kmh = v; }, MILES},
    {0x0E, 0, 1, {0.5, -64}, [](moment m, double v) { m.engine.advance_degrees = v; }},
    {0x0F, 0, 1, CELSIUS, [](moment m, double v) { m.engine.intake_celsius = v; }, FAHRENHEIT},
    {0x10, 0, 2, {0.01, 0}, [](moment m, double v) { m.engine.air_gram_s = v; }, {1 / 7.5, 0}},
    {0x11, 0, 1, PERCENT, [](moment m, double v) { m.engine.throttle = v; }},
    {0x14, 0, 1, {0.005, 0}, [](moment m, double v) { m.engine.oxygen_volts = v; }},
    {0x14, 1, 1, TRIM, [](moment m, double v) { m.engine.short_trim = v; }, NONE, 0, SECOND},
    {0x15, 0, 1, {0.005, 0}, [](moment m, double v) { m.engine.downstream_oxygen_volts = v; }},
    {0x1F,
     0,
     2,
     NONE,
     [](moment m, double v) { m.engine.run_seconds = v; },
     NONE,
     0,
     {3600, 60, 1}},
    {0x23, 0, 2, {10, 0}, [](moment m, double v) { m.engine.load = (v - 25000) / 1000; }, PSI},
    {0x24, 0, 2, RATIO, [](moment m, double v) { m.engine.equivalence_ratio = v; }, NONE, 0,
     SECOND},
    {0x24, 2, 2, {1.0 / 8192, 0}, [](moment m, double v) { m.engine.oxygen_volts = v; }},
    {0x2C, 0, 1, PERCENT, [](moment m, double v) { m.engine.load = 45 - v; }, NONE, 1},
    {0x2D, 0, 1, TRIM, [](moment m, double v) { m.engine.short_trim = v / 0.5; }},
    {0x2E, 0, 1, PERCENT, [](moment m, double v) { m.engine.load = v / 0.6; }, NONE, 1},
    {0x2F, 0, 1, PERCENT, [](moment m, double v) { m.engine.fuel_level = v; }, NONE, 1},
    {0x30, 0, 1, NONE, [](moment m, double v) { m.warm_ups = int(v); }},
    {0x31, 0, 2, NONE, [](moment m, double v) { m.km_since_clear = v; }, MILES},
    {0x33, 0, 1, NONE, [](moment m, double v) { m.engine.barometer_kpa = v; }, PSI},
    {0x34, 0, 2, RATIO, [](moment m, double v) { m.engine.equivalence_ratio = v; }, NONE, 0,
     SECOND},
    {0x34, 2, 2, {1.0 / 256, -128}, [](moment m, double v) { m.engine.short_trim = v * 20; }},
    {0x42, 0, 2, {0.001, 0}, [](moment m, double v) { m.engine.battery_volts = v; }},
    {0x43, 0, 2, PERCENT, [](moment m, double v) { m.engine.absolute_load = v; }},
    {0x45, 0, 1, PERCENT, [](moment m, double v) { m.engine.throttle = v + 11.8; }, NONE, 1},
    {0x46, 0, 1, CELSIUS, [](moment m, double v) { m.engine.ambient_celsius = v; }, FAHRENHEIT},
    {0x47, 0, 1, PERCENT, [](moment m, double v) { m.engine.throttle = v - 0.4; }, NONE, 1},
    {0x49, 0, 1, PERCENT, [](moment m, double v) { m.engine.pedal = (v - 14.5) / 0.7; }, NONE, 1},
    {0x4A, 0, 1, PERCENT, [](moment m, double v) { m.engine.pedal = (v - 14.9) / 0.7; }, NONE, 1},
    {0x4C, 0, 1, PERCENT, [](moment m, double v) { m.engine.throttle = v + 11.8; }, NONE, 1},
    {0x4D, 0, 2, NONE, [](moment m, double v) { m.lamp_km = v * 0.75; }, NONE, 0, {1440, 60, 1}},
    {0x4E,
     0,
     2,
     NONE,
     [](moment m, double v) { m.km_since_clear = v * 0.75; },
     NONE,
     0,
     {1440, 60, 1}},
    // Told by the table of standard values; a label's number stands between the values of a text.
    {0x21, 0, 2, NONE, [](moment m, double v) { m.lamp_km = v; }, EXACT_MILES},
    {0x53, 0, 2, {0.005, 0}, [](moment m, double v) { m.engine.barometer_kpa = v; }, {4.014631, 0}},
    {0x59,
     0,
     2,
     {10, 0},
     [](moment m, double v) { m.engine.load = (v - 25000) / 1000; },
     EXACT_PSI},
    {0x5A, 0, 1, PERCENT, [](moment m, double v) { m.engine.pedal = v; }},
    {0x5C, 0, 1, CELSIUS, [](moment m, double v) { m.engine.oil_celsius = v; }, FAHRENHEIT},
    {0x5D, 0, 2, {1.0 / 128, -210}, [](moment m, double v) { m.engine.advance_degrees = v; }},
    {0x5E,
     0,
     2,
     {0.05, 0},
     [](moment m, double v) { m.engine.fuel_gram_s = v * 745 / 3600; },
     {0.2641721, 0}},
    {0x61, 0, 1, {1, -125}, [](moment m, double v) { m.engine.pedal = v; }},
    {0x62, 0, 1, {1, -125}, [](moment m, double v) { m.engine.load = v; }},
    {0x66,
     1,
     2,
     {1.0 / 32, 0},
     [](moment m, double v) { m.engine.air_gram_s = v; },
     {0.1322774, 0}},
    {0x67, 1, 1, CELSIUS, [](moment m, double v) { m.engine.coolant_celsius = v; }, FAHRENHEIT},
    {0x68, 1, 1, CELSIUS, [](moment m, double v) { m.engine.ambient_celsius = v; }, FAHRENHEIT},
    {0x70, 1, 2, {1.0 / 32, 0}, [](moment m, double v) { m.engine.manifold_kpa = v; }, EXACT_PSI},
    {0x78,
     5,
     2,
     {0.1, -40},
     [](moment m, double v) { m.engine.catalyst_celsius = v; },
     FAHRENHEIT,
     0,
     {0, 0, 1}},
    {0x7C, 1, 2, {0.1, -40}, [](moment m, double v) { m.engine.catalyst_celsius = v; }, FAHRENHEIT},
    {0x7F, 3, 2, NONE, [](moment m, double v) { m.engine.run_seconds = v; }},
    {0x84, 0, 1, CELSIUS, [](moment m, double v) { m.engine.intake_celsius = v - 6; }, FAHRENHEIT},
    {0x87, 1, 2, {1.0 / 32, 0}, [](moment m, double v) { m.engine.manifold_kpa = v; }, EXACT_PSI},
    {0xA6, 2, 2, {0.1, 0}, [](moment m, double v) { m.odometer_km = v; }, EXACT_MILES},
};

#ifdef NDEBUG
constexpr unsigned TWO_BYTE_STEP = 1;
#else
constexpr unsigned TWO_BYTE_STEP = 5; // it divides 65535
#endif

struct printed_number {
    double value;
    double last_place;
};

std::vector<printed_number> numbers_of(std::string_view text) {
    std::vector<printed_number> numbers;
    const char* const end = text.data() + text.size();
    for (const char* at = text.data(); at < end;) {
        printed_number number{0, 1};
        const char* const behind =
            std::from_chars(at, end, number.value, std::chars_format::fixed).ptr;
        if (behind == at) {
            ++at;
            continue;
        }
        if (const char* const point = std::find(at, behind, '.'); point != behind)
            number.last_place = std::pow(10, point + 1 - behind);
        numbers.push_back(number);
        at = behind;
    }
    return numbers;
}

class values_agree : public testing::Test {
  protected:
    static std::string reply(int pid, const byte_string& data) {
        return "41 " + hex_text({std::uint8_t(pid)}, true) + " " + hex_text(data, true) + " \r\r>";
    }

    // What differs for one raw value; empty when it reads as it was sensed.
    std::string difference(const value_row& row, unsigned raw, const conversion& shown) const {
        const double value = raw * row.raw.factor + row.raw.offset;
        car_moment now;
        now.engine.closed_loop = true;
        row.sense(now, value);
        const byte_string data = live_value(row.pid, now);
        if (hex_number(hex_text(data, false).substr(2 * row.at, 2 * row.width)) != raw)
            return "encoded as " + hex_text(data, true);
        const std::string text = parameter_value(decoder, reply(row.pid, data)).text;
        const auto numbers = numbers_of(text);
        double missing = value * shown.factor + shown.offset, last_place = 0;
        for (std::size_t i = 0; i < numbers.size() && i < row.weights.size(); ++i) {
            missing -= row.weights[i] * numbers[i].value;
            if (row.weights[i] != 0)
                last_place = numbers[i].last_place;
        }
        const double half = last_place / 2 + 1e-9;
        return missing >= -half && missing <= half + row.cut ? "" : "read as " + text;
    }

    user_defaults settings{"/nonexistent/settings.conf"};
    mac_toolies decoder{{nullptr, &settings, nullptr, nullptr}};
};

// Within half a unit of the last place printed, for every raw value: in a build without
// optimisation for every fifth of two bytes.
TEST_F(values_agree, what_the_car_encodes_is_what_the_toolkit_shows) {
    for (const bool metric : {false, true})
        for (const value_row& row : ROWS) {
            settings.set_boolean(KS_METRIC_UNITS_KEY, metric);
            const unsigned end = row.width == 1 ? 0x100 : 0x10000;
            const unsigned step = row.width == 1 ? 1 : TWO_BYTE_STEP;
            std::string wrong;
            for (unsigned raw = 0; raw < end && wrong.empty(); raw += step)
                if (wrong = difference(row, raw, metric ? NONE : row.imperial); !wrong.empty())
                    ADD_FAILURE() << std::hex << "PID " << row.pid << (metric ? " metric" : "")
                                  << ": " << raw << " is " << wrong;
        }
}

// Parameters that the car has no encoder for: the number of charts is the one that is printed, and
// members of a family are read like the one that the car does encode.
TEST_F(values_agree, charts_take_the_printed_number_and_families_read_alike) {
    constexpr const char* FAMILIES[] = {"060708092D",
                                        "0411",
                                        "050F",
                                        "0A",
                                        "0B",
                                        "0C",
                                        "0D",
                                        "0E",
                                        "10",
                                        "1415161718191A1B",
                                        "1F",
                                        "22",
                                        "23",
                                        "2425262728292A2B",
                                        "2C2E2F",
                                        "30",
                                        "31",
                                        "32",
                                        "33",
                                        "3435363738393A3B",
                                        "3C3D3E3F",
                                        "42",
                                        "43",
                                        "44",
                                        "454748494A4B4C52",
                                        "46",
                                        "4D4E",
                                        "E4",
                                        "E5"};
    g_cur_barom_press = 101;
    for (const bool metric : {false, true}) {
        settings.set_boolean(KS_METRIC_UNITS_KEY, metric);
        for (const char* const family : FAMILIES)
            for (unsigned raw = 0; raw < 0x10000; raw += 85) { // it divides 65535
                const auto high = std::uint8_t(raw >> 8), low = std::uint8_t(raw);
                const byte_string data{high, low, low, high};
                const byte_string pids = hex_bytes(family);
                const std::string text = decoder.translateResponse(reply(pids[0], data));
                const auto numbers = numbers_of(text);
                ASSERT_FALSE(numbers.empty()) << text;
                ASSERT_EQ(decoder.get_OBDVal(reply(pids[0], data)), numbers[0].value) << text;
                for (const int pid : pids)
                    ASSERT_EQ(decoder.translateResponse(reply(pid, data)), text) << pid;
            }
    }
    reset_global_vars();
}

} // namespace
