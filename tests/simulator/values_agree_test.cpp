// The virtual car and the toolkit against each other and the standard, by the rows of
// data/values_agree.rows: what the sensors see is encoded by the one as SAE J1979 has it, and
// decoded by the other into the display text.
#include "constantes.h"
#include "hex_text.h"
#include "live_values.h"
#include "mac_toolies.h"
#include "parameters.h"
#include "rows.h"
#include "test_paths.h"
#include "user_defaults.h"

#include <charconv>
#include <cmath>

namespace {

using e = engine_state;
using m = car_moment;
const std::map<std::string, double e::*> OF_ENGINE{
    {"load", &e::load},
    {"coolant_celsius", &e::coolant_celsius},
    {"short_trim", &e::short_trim},
    {"long_trim", &e::long_trim},
    {"manifold_kpa", &e::manifold_kpa},
    {"rpm", &e::rpm},
    {"speed_kmh", &e::speed_kmh},
    {"advance_degrees", &e::advance_degrees},
    {"intake_celsius", &e::intake_celsius},
    {"air_gram_s", &e::air_gram_s},
    {"throttle", &e::throttle},
    {"oxygen_volts", &e::oxygen_volts},
    {"downstream_oxygen_volts", &e::downstream_oxygen_volts},
    {"run_seconds", &e::run_seconds},
    {"equivalence_ratio", &e::equivalence_ratio},
    {"fuel_level", &e::fuel_level},
    {"barometer_kpa", &e::barometer_kpa},
    {"battery_volts", &e::battery_volts},
    {"absolute_load", &e::absolute_load},
    {"ambient_celsius", &e::ambient_celsius},
    {"pedal", &e::pedal},
    {"oil_celsius", &e::oil_celsius},
    {"fuel_gram_s", &e::fuel_gram_s},
    {"catalyst_celsius", &e::catalyst_celsius}};
const std::map<std::string, double m::*> OF_CAR{{"km_since_clear", &m::km_since_clear},
                                                {"lamp_km", &m::lamp_km},
                                                {"odometer_km", &m::odometer_km}};

car_moment moment_of(const std::string& sensor, double value) {
    car_moment now;
    now.engine.closed_loop = true;
    if (const auto found = OF_ENGINE.find(sensor); found != OF_ENGINE.end())
        now.engine.*found->second = value;
    else if (sensor == "warm_ups")
        now.warm_ups = int(value);
    else
        now.*OF_CAR.at(sensor) = value;
    return now;
}

// What the numbers of a text come to, each times its weight, and the place of the last one that
// counts.
struct sum_of {
    double sum = 0, last_place = 0;

    sum_of(std::string_view text, const std::vector<double>& weights) {
        const char* const end = text.data() + text.size();
        std::size_t count = 0;
        for (const char* at = text.data(); at < end && count < weights.size();) {
            double number = 0;
            const char* const behind =
                std::from_chars(at, end, number, std::chars_format::fixed).ptr;
            if (behind != at) {
                const char* const point = std::find(at, behind, '.');
                if (weights[count] != 0)
                    last_place = point == behind ? 1 : std::pow(10, point + 1 - behind);
                sum += weights[count++] * number;
            }
            at = std::max(behind, at + 1);
        }
    }
};

#ifdef NDEBUG
constexpr unsigned TWO_BYTE_STEP = 1;
#else
constexpr unsigned TWO_BYTE_STEP = 5; // it divides 65535
#endif

// Within half a unit of the last place printed, for every raw value: in a build without
// optimisation for every fifth of two bytes.
TEST(values_agree, what_the_car_encodes_is_what_the_toolkit_shows) {
    user_defaults settings("/nonexistent/settings.conf");
    const mac_toolies decoder({nullptr, &settings, nullptr, nullptr});
    for (const table_row& row : read_rows(test_data("values_agree.rows"))) {
        const auto& f = row.fields;
        const int pid = int(hex_number(f[0]));
        const auto place = numbers_in(f[1]), raw_scale = numbers_in(f[2]), seen = numbers_in(f[5]);
        const auto at = std::size_t(2 * place[0]), width = std::size_t(2 * place[1]);
        const double cut = std::stod(f[6]);
        const auto weights = numbers_in(f[7]);
        for (const bool metric : {false, true}) {
            settings.set_boolean(KS_METRIC_UNITS_KEY, metric);
            const auto shown = metric ? std::vector{1.0, 0.0} : numbers_in(f[3]);
            for (unsigned raw = 0; raw < (width == 2 ? 0x100u : 0x10000u);
                 raw += width == 2 ? 1 : TWO_BYTE_STEP) {
                const double value = raw * raw_scale[0] + raw_scale[1];
                const byte_string data =
                    live_value(pid, moment_of(f[4], value * seen[0] + seen[1]));
                ASSERT_EQ(hex_number(hex_text(data, false).substr(at, width)), raw) << row.place;
                const std::string reply = "41 " + f[0] + " " + hex_text(data, true) + " \r\r>";
                const std::string text = parameter_value(decoder, reply).text;
                const sum_of told(text, weights);
                const double missing = value * shown[0] + shown[1] - told.sum;
                const double half = told.last_place / 2 + 1e-9;
                ASSERT_TRUE(missing >= -half && missing <= half + cut)
                    << row.place << ": " << raw << " reads as " << text;
            }
        }
    }
}

// Beyond the scale, and no number.
TEST(live_values, stop_at_the_ends_of_their_scale) {
    EXPECT_EQ(live_value(0x10, moment_of("air_gram_s", 1000)), (byte_string{0xFF, 0xFF}));
    EXPECT_EQ(live_value(0x06, moment_of("short_trim", -100.8)), byte_string{0});
    EXPECT_EQ(live_value(0x0F, moment_of("intake_celsius", std::nan(""))), byte_string{0});
}

} // namespace
