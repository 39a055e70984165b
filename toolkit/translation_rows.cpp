#include "translation_rows.h"

#include "globalVars.h"

// Scalings after SAE J1979, service 01. Each is computed in the order written, because the last
// digit shown depends on it. Some constants deliberately differ from the usual conversions (1.6 km
// per mile, 7.5 g/s per lb/min, 0.145 and 6.895 for psi, 145 for evaporative pressure), as does the
// interpretation of a few rows (sign and magnitude for evaporative pressure, catalyst temperature
// from one byte).

namespace {

using data = const reply_data&;

double whole(data d) {
    return static_cast<double>(d.whole);
}
double byte_a(data d) {
    return static_cast<double>(d.a);
}
double integer(std::uint64_t value) {
    return static_cast<double>(value);
}

double kpa_to_psi(double kpa) {
    return kpa * 0.145;
}
double km_to_miles(double km) {
    return km / 1.6;
}

double a_as_it_is(data d) {
    return byte_a(d);
}
double whole_as_it_is(data d) {
    return whole(d);
}
double miles(data d) {
    return km_to_miles(whole(d));
}

double whole_percent_of_255(data d) {
    return whole(d) * 100 / 255;
}
double a_percent_of_255_integer(data d) {
    return integer(std::uint64_t{d.a} * 100 / 255);
}
double first_percent_of_255(data d) {
    return static_cast<double>(d.first) * 100 / 255;
}
double fuel_trim(data d) {
    return whole(d) * 0.78125 - 100;
}
double fuel_trim_b(data d) {
    return static_cast<double>(d.b) * 0.78125 - 100;
}

double celsius(data d) {
    return byte_a(d) - 40;
}
double fahrenheit(data d) {
    return (byte_a(d) - 40) * 1.8 + 32;
}
double catalyst_celsius(data d) {
    return integer(d.a / 10) - 40;
}
double catalyst_fahrenheit(data d) {
    return byte_a(d) * 1.8 / 10 - 40;
}
double ambient_fahrenheit(data d) {
    return byte_a(d) * 1.8 - 40;
}

double fuel_pressure_kpa(data d) {
    return whole(d) * 3;
}
double fuel_pressure_psi(data d) {
    return kpa_to_psi(fuel_pressure_kpa(d));
}
double rail_vacuum_kpa(data d) {
    return integer(std::uint64_t{d.whole} * 10 / 128);
}
double rail_vacuum_psi(data d) {
    return kpa_to_psi(rail_vacuum_kpa(d));
}
double rail_pressure_kpa(data d) {
    return whole(d) * 10;
}
double rail_pressure_psi(data d) {
    return kpa_to_psi(rail_pressure_kpa(d));
}
double manifold_inches(data d) {
    return whole(d) * 0.295;
}
double barometric_psi(data d) {
    return kpa_to_psi(byte_a(d));
}
double vapor_pressure(data d) { // sign and magnitude
    const double magnitude = integer(std::uint64_t{d.a & 0x7F} * 256 + d.b);
    return (d.a & 0x80) != 0 ? -magnitude : magnitude;
}
double vapor_pressure_psi(data d) {
    return vapor_pressure(d) * 145.0;
}
double boost_kpa(data d) {
    return whole(d) - g_cur_barom_press;
}
double boost_psi(data d) {
    return boost_kpa(d) / 6.895;
}

double engine_speed(data d) {
    return whole(d) * 0.25;
}
double timing_advance(data d) {
    return (whole(d) - 128) * 0.5;
}
double air_flow_grams(data d) {
    return whole(d) * 0.01;
}
double air_flow_pounds(data d) {
    return air_flow_grams(d) / 7.5;
}
double km_per_litre(data d) {
    return whole(d) / 100;
}
double miles_per_gallon(data d) {
    return km_per_litre(d) / 1.609344 * 3.78541178;
}

// "-1" and the like read as more.
bool b_is_a_byte(data d) {
    return d.b <= 0xFF;
}
double sensor_volts(data d) {
    return byte_a(d) * 0.005;
}
double wide_sensor_volts(data d) {
    return static_cast<double>(d.second) * 0.0001220703125;
}
double wide_sensor_current(data d) {
    return static_cast<double>(d.second) * 0.00390625 - 128;
}
double equivalence_ratio(data d) {
    return static_cast<double>(d.first) * 3.0517578125e-05;
}
double commanded_ratio(data d) {
    return integer(d.a >> 15);
}
double module_volts(data d) {
    return static_cast<double>(d.first) / 1000;
}

double hours(data d) {
    return integer(d.whole / 3600);
}
double minutes_of_hour(data d) {
    return integer(d.whole % 3600 / 60);
}
double seconds_of_minute(data d) {
    return integer(d.whole % 60);
}
double days(data d) {
    return integer(d.whole / 1440);
}
double hours_of_day(data d) {
    return integer(d.whole % 1440 / 60);
}
double minutes_of_count(data d) {
    return integer(d.whole % 60);
}

constexpr number_part LOAD[] = {{whole_percent_of_255, 2, "  %"}};
constexpr number_part TEMPERATURE_F[] = {{fahrenheit, 2, " ° F"}};
constexpr number_part TEMPERATURE_C[] = {{celsius, 1, " ° C"}};
constexpr number_part TRIM[] = {{fuel_trim, 2, "  %"}};
constexpr number_part FUEL_PSI[] = {{fuel_pressure_psi, 1, "  psi"}};
constexpr number_part FUEL_KPA[] = {{fuel_pressure_kpa, 1, "  KPa"}};
constexpr number_part MANIFOLD_INCHES[] = {{manifold_inches, 1, "  in.Hg"}};
constexpr number_part MANIFOLD_KPA[] = {{whole_as_it_is, 0, "  KPa"}};
constexpr number_part SPEED_OF_ENGINE[] = {{engine_speed, 2, " RPM"}};
constexpr number_part SPEED_MPH[] = {{miles, 2, " mph"}};
constexpr number_part SPEED_KMH[] = {{whole_as_it_is, 2, "  Km/h"}};
constexpr number_part ADVANCE[] = {{timing_advance, 1, "  deg"}};
constexpr number_part AIR_POUNDS[] = {{air_flow_pounds, 2, "  lb/min"}};
constexpr number_part AIR_GRAMS[] = {{air_flow_grams, 2, "  gm/s"}};
constexpr number_part SENSOR[] = {{sensor_volts, 3, "  V"},
                                  {fuel_trim_b, 2, "  V", " / ", b_is_a_byte}};
constexpr number_part RUN_TIME[] = {
    {hours, 0, " 'Hours' "}, {minutes_of_hour, 0, " 'mins' "}, {seconds_of_minute, 0, " 'secs'"}};
constexpr number_part VACUUM_PSI[] = {{rail_vacuum_psi, 1, " psi"}};
constexpr number_part VACUUM_KPA[] = {{rail_vacuum_kpa, 1, " KPa"}};
constexpr number_part RAIL_PSI[] = {{rail_pressure_psi, 1, " psi"}};
constexpr number_part RAIL_KPA[] = {{rail_pressure_kpa, 1, " KPa"}};
constexpr number_part WIDE_SENSOR_VOLTS[] = {{wide_sensor_volts, 3, " V"},
                                             {equivalence_ratio, 3, "  "}};
constexpr number_part SHARE[] = {{a_percent_of_255_integer, 2, " %"}};
constexpr number_part WARM_UPS[] = {{a_as_it_is, 0, " %"}};
constexpr number_part DISTANCE_MILES[] = {{miles, 2, " mls"}};
constexpr number_part DISTANCE_KM[] = {{whole_as_it_is, 2, " Kms"}};
constexpr number_part VAPOR_PSI[] = {{vapor_pressure_psi, 1, " psi"}};
constexpr number_part VAPOR_PA[] = {{vapor_pressure, 1, " Pa"}};
constexpr number_part BAROMETRIC_PSI[] = {{barometric_psi, 1, " psi"}};
constexpr number_part BAROMETRIC_KPA[] = {{a_as_it_is, 1, " KPPa"}};
constexpr number_part WIDE_SENSOR_CURRENT[] = {{wide_sensor_current, 3, " mA"},
                                               {equivalence_ratio, 3, " "}};
constexpr number_part CATALYST_F[] = {{catalyst_fahrenheit, 1, " F"}};
constexpr number_part CATALYST_C[] = {{catalyst_celsius, 1, " C"}};
constexpr number_part MODULE[] = {{module_volts, 3, " V"}};
constexpr number_part ABSOLUTE_LOAD[] = {{first_percent_of_255, 3, " %"}};
constexpr number_part COMMANDED[] = {{commanded_ratio, 3, "  "}};
constexpr number_part POSITION[] = {{a_percent_of_255_integer, 1, " %"}};
constexpr number_part AMBIENT_F[] = {{ambient_fahrenheit, 1, " F"}};
constexpr number_part AMBIENT_C[] = {{celsius, 1, " C"}};
constexpr number_part SINCE[] = {
    {days, 0, " days "}, {hours_of_day, 0, " 'hrs' "}, {minutes_of_count, 0, " 'mins' "}};
constexpr number_part ECONOMY_MPG[] = {{miles_per_gallon, 2, " mpg"}};
constexpr number_part ECONOMY_KPL[] = {{km_per_litre, 2, " kpl"}};
constexpr number_part BOOST_PSI[] = {{boost_psi, 2, " psi"}};
constexpr number_part BOOST_KPA[] = {{boost_kpa, 2, " KPa"}};

constexpr status_text FUEL_SYSTEM[] = {{1, "Open Loop - not ready for Close"},
                                       {2, "Close Loop - Using O2 snsr as feedback"},
                                       {4, "Open Loop - due to driving cond"},
                                       {8, "Open Loop - due to syst fault"},
                                       {16, "Close Loop - fault with a O2 snsr"}};
constexpr status_text SECONDARY_AIR[] = {
    {1, "UpStream 1st cat"}, {2, "DownStream 1st cat"}, {4, "atmosphere/off"}};
constexpr status_text TAKE_OFF[] = {{1, "Power Take-off Active"}};

constexpr translation_row both(std::span<const number_part> parts) {
    return {.imperial = parts, .metric = parts};
}
constexpr translation_row either(std::span<const number_part> imperial,
                                 std::span<const number_part> metric) {
    return {.imperial = imperial, .metric = metric};
}
constexpr translation_row status(std::span<const status_text> statuses, std::string_view other) {
    return {.statuses = statuses, .other_status = other};
}
constexpr translation_row line(std::string_view table, std::uint32_t reply_data::*code) {
    return {.table = table, .table_code = code};
}

struct pid_row {
    std::uint32_t pid;
    translation_row row;
};

constexpr pid_row ROWS[] = {
    {0x03, status(FUEL_SYSTEM, "N/A")},
    {0x04, both(LOAD)},
    {0x05, either(TEMPERATURE_F, TEMPERATURE_C)},
    {0x06, both(TRIM)},
    {0x07, both(TRIM)},
    {0x08, both(TRIM)},
    {0x09, both(TRIM)},
    {0x0A, either(FUEL_PSI, FUEL_KPA)},
    {0x0B, either(MANIFOLD_INCHES, MANIFOLD_KPA)},
    {0x0C, both(SPEED_OF_ENGINE)},
    {0x0D, either(SPEED_MPH, SPEED_KMH)},
    {0x0E, both(ADVANCE)},
    {0x0F, either(TEMPERATURE_F, TEMPERATURE_C)},
    {0x10, either(AIR_POUNDS, AIR_GRAMS)},
    {0x11, both(LOAD)},
    {0x12, status(SECONDARY_AIR, "~")},
    {0x14, both(SENSOR)},
    {0x15, both(SENSOR)},
    {0x16, both(SENSOR)},
    {0x17, both(SENSOR)},
    {0x18, both(SENSOR)},
    {0x19, both(SENSOR)},
    {0x1A, both(SENSOR)},
    {0x1B, both(SENSOR)},
    {0x1C, line("OBD_MODES", &reply_data::a)},
    {0x1E, status(TAKE_OFF, "Power Take-off Not Active")},
    {0x1F, both(RUN_TIME)},
    {0x22, either(VACUUM_PSI, VACUUM_KPA)},
    {0x23, either(RAIL_PSI, RAIL_KPA)},
    {0x24, both(WIDE_SENSOR_VOLTS)},
    {0x25, both(WIDE_SENSOR_VOLTS)},
    {0x26, both(WIDE_SENSOR_VOLTS)},
    {0x27, both(WIDE_SENSOR_VOLTS)},
    {0x28, both(WIDE_SENSOR_VOLTS)},
    {0x29, both(WIDE_SENSOR_VOLTS)},
    {0x2A, both(WIDE_SENSOR_VOLTS)},
    {0x2B, both(WIDE_SENSOR_VOLTS)},
    {0x2C, both(SHARE)},
    {0x2D, both(TRIM)},
    {0x2E, both(SHARE)},
    {0x2F, both(SHARE)},
    {0x30, both(WARM_UPS)},
    {0x31, either(DISTANCE_MILES, DISTANCE_KM)},
    {0x32, either(VAPOR_PSI, VAPOR_PA)},
    {0x33, either(BAROMETRIC_PSI, BAROMETRIC_KPA)},
    {0x34, both(WIDE_SENSOR_CURRENT)},
    {0x35, both(WIDE_SENSOR_CURRENT)},
    {0x36, both(WIDE_SENSOR_CURRENT)},
    {0x37, both(WIDE_SENSOR_CURRENT)},
    {0x38, both(WIDE_SENSOR_CURRENT)},
    {0x39, both(WIDE_SENSOR_CURRENT)},
    {0x3A, both(WIDE_SENSOR_CURRENT)},
    {0x3B, both(WIDE_SENSOR_CURRENT)},
    {0x3C, either(CATALYST_F, CATALYST_C)},
    {0x3D, either(CATALYST_F, CATALYST_C)},
    {0x3E, either(CATALYST_F, CATALYST_C)},
    {0x3F, either(CATALYST_F, CATALYST_C)},
    {0x42, both(MODULE)},
    {0x43, both(ABSOLUTE_LOAD)},
    {0x44, both(COMMANDED)},
    {0x45, both(POSITION)},
    {0x46, either(AMBIENT_F, AMBIENT_C)},
    {0x47, both(POSITION)},
    {0x48, both(POSITION)},
    {0x49, both(POSITION)},
    {0x4A, both(POSITION)},
    {0x4B, both(POSITION)},
    {0x4C, both(POSITION)},
    {0x4D, both(SINCE)},
    {0x4E, both(SINCE)},
    {0x51, line("OBD_FUEL_TYPE", &reply_data::whole)},
    {0x52, both(POSITION)},
    {0xE4, either(ECONOMY_MPG, ECONOMY_KPL)},
    {0xE5, either(BOOST_PSI, BOOST_KPA)},
};

constexpr std::uint8_t NO_ROW = 0xFF;

constexpr auto ROW_OF_PID = [] {
    std::array<std::uint8_t, 256> index{};
    index.fill(NO_ROW);
    std::uint8_t next = 0;
    for (const pid_row& entry : ROWS)
        index[entry.pid] = next++;
    return index;
}();

} // namespace

const translation_row* translation_row_of(std::uint32_t pid) {
    if (pid >= ROW_OF_PID.size() || ROW_OF_PID[pid] == NO_ROW)
        return nullptr;
    return &ROWS[ROW_OF_PID[pid]].row;
}
