#include "standard_rows.h"

namespace {

constexpr quantity COUNT{"", ""}, SHARE{"%", "%"}, DEGREES{"°", "°"}, VOLTS{"V", "V"},
    SECONDS{"s", "s"}, HOURS{"h", "h"}, PARTS{"ppm", "ppm"}, SOOT{"mg/m³", "mg/m³"},
    STROKE{"mg/stroke", "mg/stroke"};
constexpr quantity TEMPERATURE{"°C", "°F", 1.8, 32};
constexpr quantity PRESSURE{"kPa", "psi", 0.1450377};
constexpr quantity VAPOUR{"kPa", "inH2O", 4.014631}, SMALL_VAPOUR{"Pa", "inH2O", 0.004014631};
constexpr quantity DISTANCE{"km", "miles", 0.6213712};
constexpr quantity FUEL_FLOW{"L/h", "gal/h", 0.2641721};
constexpr quantity AIR_FLOW{"g/s", "lb/min", 0.1322774};
constexpr quantity TORQUE{"Nm", "lb-ft", 0.7375621};

constexpr scaling_rule PERCENT{100.0 / 255, 0, 1, &SHARE};
constexpr scaling_rule HALF_PERCENT{0.5, 0, 1, &SHARE};
constexpr scaling_rule HUNDREDTH_PERCENT{0.01, 0, 2, &SHARE};
constexpr scaling_rule TRIM{100.0 / 128, -100, 1, &SHARE};
constexpr scaling_rule TORQUE_SHARE{1, -125, 0, &SHARE};
constexpr scaling_rule NEWTON_METRES{1, 0, 0, &TORQUE};
constexpr scaling_rule CELSIUS{1, -40, 0, &TEMPERATURE};
constexpr scaling_rule CELSIUS_BY_4{4, -40, 0, &TEMPERATURE};
constexpr scaling_rule CELSIUS_TENTHS{0.1, -40, 1, &TEMPERATURE};
constexpr scaling_rule KPA{1, 0, 0, &PRESSURE};
constexpr scaling_rule KPA_BY_8{8, 0, 0, &PRESSURE};
constexpr scaling_rule KPA_BY_10{10, 0, 0, &PRESSURE};
constexpr scaling_rule KPA_32NDS{1.0 / 32, 0, 2, &PRESSURE};
constexpr scaling_rule KPA_HUNDREDTHS{0.01, 0, 2, &PRESSURE};
constexpr scaling_rule VAPOUR_200THS{1.0 / 200, 0, 3, &VAPOUR};
constexpr scaling_rule VAPOUR_PASCAL{1, 0, 0, &SMALL_VAPOUR, true};
constexpr scaling_rule VAPOUR_QUARTERS{0.25, 0, 2, &SMALL_VAPOUR, true};
constexpr scaling_rule KM{1, 0, 0, &DISTANCE};
constexpr scaling_rule KM_TENTHS{0.1, 0, 1, &DISTANCE};
constexpr scaling_rule LITRES_20THS{1.0 / 20, 0, 2, &FUEL_FLOW};
constexpr scaling_rule LITRES_200THS{1.0 / 200, 0, 3, &FUEL_FLOW};
constexpr scaling_rule GRAMS_32NDS{1.0 / 32, 0, 2, &AIR_FLOW};
constexpr scaling_rule MILLIGRAMS_32NDS{1.0 / 32, 0, 2, &STROKE};
constexpr scaling_rule TIMING{1.0 / 128, -210, 2, &DEGREES};
constexpr scaling_rule SENSOR{0.005, 0, 3, &VOLTS};
constexpr scaling_rule LAMBDA{1.0 / 32768, 0, 3, &COUNT};
constexpr scaling_rule WIDE_LAMBDA{1.0 / 8192, 0, 3, &COUNT};
constexpr scaling_rule GEAR_RATIO{0.001, 0, 3, &COUNT};
constexpr scaling_rule NUMBER{1, 0, 0, &COUNT};
constexpr scaling_rule CODES{1, 0, 0, &COUNT, false, 0x7F};
constexpr scaling_rule RUN_SECONDS{1, 0, 0, &SECONDS};
constexpr scaling_rule RUN_HOURS{1, 0, 0, &HOURS};
constexpr scaling_rule NOX{1, 0, 0, &PARTS};
constexpr scaling_rule SOOT_80THS{1.0 / 80, 0, 2, &SOOT};

constexpr value_range SHARES{0, 100}, TRIMS{-100, 100}, WARMTH{-40, 160}, EXHAUST{0, 1000},
    BOOST{0, 400}, TORQUES{-100, 100}, RAIL{0, 200000}, NO_SPAN{0, 0};

constexpr std::string_view SENSORS = "B1S1|B1S2|B2S1|B2S2";
constexpr std::string_view TIMERS = "1a|1b|2a|2b|3a|3b|4a|4b|5a|5b";

// Comments in brackets: true values of rows that the named operations also have.
constexpr parameter_row PARAMETERS[] = {
    {0x01, 4, {0, 20}},
    {0x03, 2, NO_SPAN}, // (both systems)
    {0x12, 1, NO_SPAN}, // (in plain words)
    {0x13, 1, NO_SPAN, {}, 0, "none"},
    {0x14, 2, {0, 1.275}},
    {0x15, 2, {0, 1.275}},
    {0x16, 2, {0, 1.275}},
    {0x17, 2, {0, 1.275}}, // (trim in %)
    {0x18, 2, {0, 1.275}},
    {0x19, 2, {0, 1.275}},
    {0x1A, 2, {0, 1.275}},
    {0x1B, 2, {0, 1.275}},
    {0x1D, 1, NO_SPAN, {}, 0, "none"},
    {0x21, 2, {0, 1000}},
    {0x30, 1, {0, 255}},      // (a count)
    {0x32, 2, {-2000, 2000}}, // (two's complement, quarters of a pascal)
    {0x33, 1, {50, 110}},
    {0x3C, 2, EXHAUST},
    {0x3D, 2, EXHAUST},
    {0x3E, 2, EXHAUST},
    {0x3F, 2, EXHAUST}, // (tenths of two bytes)
    {0x41, 4, NO_SPAN, {}, 0, "all complete"},
    {0x44, 2, {0, 2}}, // (a fraction)
    {0x53, 2, {0, 200}},
    {0x54, 2, {-5000, 5000}},
    {0x55, 2, TRIMS, {}, 1},
    {0x56, 2, TRIMS, {}, 1},
    {0x57, 2, TRIMS, {}, 1},
    {0x58, 2, TRIMS, {}, 1},
    {0x59, 2, RAIL},
    {0x5A, 1, SHARES},
    {0x5B, 1, SHARES},
    {0x5C, 1, WARMTH},
    {0x5D, 2, {-60, 60}},
    {0x5E, 2, {0, 50}},
    {0x5F, 1, NO_SPAN},
    {0x61, 1, TORQUES, "Driver's Demand Engine Torque"},
    {0x62, 1, TORQUES, "Actual Engine Torque"},
    {0x63, 2, {0, 1000}, "Engine Reference Torque"},
    {0x64, 5, TORQUES, "Engine Torque at Idle and Points 1 to 4"},
    {0x65, 2, NO_SPAN, "Auxiliary Inputs and Outputs"},
    {0x66, 5, {0, 400}, "Mass Air Flow Sensors A and B"},
    {0x67, 3, WARMTH, "Engine Coolant Temperature Sensors 1 and 2"},
    {0x68, 7, {-40, 100}, "Intake Air Temperature Sensors", 3},
    {0x69, 7, SHARES, "EGR Commanded/Actual/Error"},
    {0x6A, 5, SHARES, "Diesel Intake Air Flow Control"},
    {0x6B, 5, {0, 500}, "EGR Temperature"},
    {0x6C, 5, SHARES, "Throttle Actuators Commanded/Position"},
    {0x6D, 11, RAIL, "Fuel Rail Pressure Control"},
    {0x6E, 9, RAIL, "Injection Pressure Control"},
    {0x6F, 3, {0, 300}, "Turbocharger Compressor Inlet Pressure"},
    {0x70, 10, BOOST, "Boost Pressure Control"},
    {0x71, 6, SHARES, "Variable Geometry Turbocharger Control"},
    {0x72, 5, SHARES, "Wastegate Control"},
    {0x73, 5, {0, 200}, "Exhaust Pressure"},
    {0x74, 5, {0, 30000}, "Turbocharger Speed (raw count)"},
    {0x75, 7, EXHAUST, "Turbocharger A Temperature"},
    {0x76, 7, EXHAUST, "Turbocharger B Temperature"},
    {0x77, 5, {-40, 160}, "Charge Air Cooler Temperature"},
    {0x78, 9, EXHAUST, "Exhaust Gas Temperature Bank 1"},
    {0x79, 9, EXHAUST, "Exhaust Gas Temperature Bank 2"},
    {0x7A, 7, {0, 100}, "Particulate Filter Pressure Bank 1"},
    {0x7B, 7, {0, 100}, "Particulate Filter Pressure Bank 2"},
    {0x7C, 9, EXHAUST, "Particulate Filter Temperature"},
    {0x7D, 1, NO_SPAN, "NOx NTE Control Area Status", 0, "none"},
    {0x7E, 1, NO_SPAN, "PM NTE Control Area Status", 0, "none"},
    {0x7F, 13, {0, 36000}, "Engine Run Time"},
    {0x81, 41, {0, 36000}, "Run Time of Emission Devices 1 to 5"},
    {0x82, 41, {0, 36000}, "Run Time of Emission Devices 6 to 10"},
    {0x83, 9, {0, 2000}, "NOx Sensors"},
    {0x84, 1, WARMTH, "Intake Manifold Surface Temperature"},
    {0x85, 10, {0, 20}, "NOx Reagent System"},
    {0x86, 5, {0, 100}, "Particulate Matter Sensors"},
    {0x87, 5, BOOST, "Intake Manifold Absolute Pressure A and B"},
    {0x88, 13, {0, 10000}, "SCR Inducement Distances"},
    {0x89, 41, {0, 36000}, "Run Time of Emission Devices 11 to 15"},
    {0x8A, 41, {0, 36000}, "Run Time of Emission Devices 16 to 20"},
    {0x8B, 7, SHARES, "Diesel Aftertreatment"},
    {0x8C, 17, {0, 4}, "Wide Range O2 Sensors Lambda"},
    {0x8D, 1, SHARES, "Absolute Throttle Position G"},
    {0x8E, 1, TORQUES, "Engine Friction Torque"},
    {0x8F, 7, SHARES, "Particulate Matter Sensor Output"},
    {0x90, 3, {0, 1000}, "WWH-OBD Vehicle Lamp Hours"},
    {0x91, 5, {0, 1000}, "WWH-OBD Unit Hour Counters"},
    {0x92, 2, NO_SPAN, "Fuel System Control"},
    {0x93, 3, {0, 1000}, "WWH-OBD Continuous Lamp Hours"},
    {0x94, 12, {0, 1000}, "NOx Warning and Inducement Hours"},
    {0x98, 9, EXHAUST, "Exhaust Gas Temperature Bank 1 Sensors 5 to 8"},
    {0x99, 9, EXHAUST, "Exhaust Gas Temperature Bank 2 Sensors 5 to 8"},
    {0x9B, 4, SHARES, "Diesel Exhaust Fluid Level"},
    {0x9C, 17, {0, 4}, "Wide Range O2 Sensors 3 and 4 Lambda"},
    {0xA2, 2, {0, 100}, "Cylinder Fuel Rate"},
    {0xA4, 4, {0, 10}, "Transmission Gear Ratio"},
    {0xA5, 4, SHARES, "Commanded Diesel Exhaust Fluid Dosing"},
    {0xA6, 4, {0, 300000}, "Odometer"},
    {0xA9, 4, NO_SPAN, "ABS Disable Switch"},
    {0xC6, 7, {0, 1000}, "Particulate Control Inducement Hours"},
};

constexpr number_row NUMBERS[] = {
    {0x01, 0, 1, &CODES},
    {0x14, 0, 1, &SENSOR},
    {0x14, 1, 1, &TRIM, ALWAYS, "trim", 1, 0xFF},
    {0x15, 0, 1, &SENSOR},
    {0x15, 1, 1, &TRIM, ALWAYS, "trim", 1, 0xFF},
    {0x16, 0, 1, &SENSOR},
    {0x16, 1, 1, &TRIM, ALWAYS, "trim", 1, 0xFF},
    {0x17, 0, 1, &SENSOR},
    {0x17, 1, 1, &TRIM, ALWAYS, "trim", 1, 0xFF},
    {0x18, 0, 1, &SENSOR},
    {0x18, 1, 1, &TRIM, ALWAYS, "trim", 1, 0xFF},
    {0x19, 0, 1, &SENSOR},
    {0x19, 1, 1, &TRIM, ALWAYS, "trim", 1, 0xFF},
    {0x1A, 0, 1, &SENSOR},
    {0x1A, 1, 1, &TRIM, ALWAYS, "trim", 1, 0xFF},
    {0x1B, 0, 1, &SENSOR},
    {0x1B, 1, 1, &TRIM, ALWAYS, "trim", 1, 0xFF},
    {0x21, 0, 2, &KM},
    {0x30, 0, 1, &NUMBER},
    {0x32, 0, 2, &VAPOUR_QUARTERS},
    {0x33, 0, 1, &KPA},
    {0x3C, 0, 2, &CELSIUS_TENTHS},
    {0x3D, 0, 2, &CELSIUS_TENTHS},
    {0x3E, 0, 2, &CELSIUS_TENTHS},
    {0x3F, 0, 2, &CELSIUS_TENTHS},
    {0x44, 0, 2, &LAMBDA},
    {0x53, 0, 2, &VAPOUR_200THS},
    {0x54, 0, 2, &VAPOUR_PASCAL},
    {0x55, 0, 1, &TRIM, ALWAYS, "bank 1|bank 3"},
    {0x56, 0, 1, &TRIM, ALWAYS, "bank 1|bank 3"},
    {0x57, 0, 1, &TRIM, ALWAYS, "bank 2|bank 4"},
    {0x58, 0, 1, &TRIM, ALWAYS, "bank 2|bank 4"},
    {0x59, 0, 2, &KPA_BY_10},
    {0x5A, 0, 1, &PERCENT},
    {0x5B, 0, 1, &PERCENT},
    {0x5C, 0, 1, &CELSIUS},
    {0x5D, 0, 2, &TIMING},
    {0x5E, 0, 2, &LITRES_20THS},
    {0x61, 0, 1, &TORQUE_SHARE},
    {0x62, 0, 1, &TORQUE_SHARE},
    {0x63, 0, 2, &NEWTON_METRES},
    {0x64, 0, 1, &TORQUE_SHARE, ALWAYS, "idle|point 1|point 2|point 3|point 4"},
    {0x66, 1, 2, &GRAMS_32NDS, 0, "A|B"},
    {0x67, 1, 1, &CELSIUS, 0, "sensor 1|sensor 2"},
    {0x68, 1, 1, &CELSIUS, 0, "B1S1|B1S2|B1S3|B2S1|B2S2|B2S3"},
    {0x69, 1, 1, &PERCENT, 0, "A commanded|A actual"},
    {0x69, 3, 1, &TRIM, 2, "A error"},
    {0x69, 4, 1, &PERCENT, 3, "B commanded|B actual"},
    {0x69, 6, 1, &TRIM, 5, "B error"},
    {0x6A, 1, 1, &PERCENT, 0, "A commanded|A position|B commanded|B position"},
    {0x6B, 1, 1, &CELSIUS, 0, SENSORS},
    {0x6B, 1, 1, &CELSIUS_BY_4, 4, SENSORS},
    {0x6C, 1, 1, &PERCENT, 0, "A commanded|A position|B commanded|B position"},
    {0x6D, 1, 2, &KPA_BY_10, 0, "A commanded|A rail"},
    {0x6D, 5, 1, &CELSIUS, 2, "A fuel"},
    {0x6D, 6, 2, &KPA_BY_10, 3, "B commanded|B rail"},
    {0x6D, 10, 1, &CELSIUS, 5, "B fuel"},
    {0x6E, 1, 2, &KPA_BY_10, 0, "A commanded|A actual|B commanded|B actual"},
    {0x6F, 1, 1, &KPA, 0, "A|B"},
    {0x6F, 1, 1, &KPA_BY_8, 2, "A|B"},
    {0x70, 1, 2, &KPA_32NDS, 0, "A commanded|A actual"},
    {0x70, 5, 2, &KPA_32NDS, 3, "B commanded|B actual"},
    {0x71, 1, 1, &PERCENT, 0, "A commanded|A position"},
    {0x71, 3, 1, &PERCENT, 3, "B commanded|B position"},
    {0x72, 1, 1, &PERCENT, 0, "A commanded|A position|B commanded|B position"},
    {0x73, 1, 2, &KPA_HUNDREDTHS, 0, "bank 1|bank 2"},
    {0x74, 1, 2, &NUMBER, 0, "A|B"},
    {0x75, 1, 1, &CELSIUS, 0, "compressor in|compressor out"},
    {0x75, 3, 2, &CELSIUS_TENTHS, 2, "turbine in|turbine out"},
    {0x76, 1, 1, &CELSIUS, 0, "compressor in|compressor out"},
    {0x76, 3, 2, &CELSIUS_TENTHS, 2, "turbine in|turbine out"},
    {0x77, 1, 1, &CELSIUS, 0, SENSORS},
    {0x78, 1, 2, &CELSIUS_TENTHS, 0, "sensor 1|sensor 2|sensor 3|sensor 4"},
    {0x79, 1, 2, &CELSIUS_TENTHS, 0, "sensor 1|sensor 2|sensor 3|sensor 4"},
    {0x7A, 3, 2, &KPA_HUNDREDTHS, 1, "inlet|outlet"}, // sources differ on the pressure difference
    {0x7B, 3, 2, &KPA_HUNDREDTHS, 1, "inlet|outlet"},
    {0x7C, 1, 2, &CELSIUS_TENTHS, 0, "bank 1 inlet|bank 1 outlet|bank 2 inlet|bank 2 outlet"},
    {0x7F, 1, 4, &RUN_SECONDS, 0, "total|idling|with power take-off"},
    {0x81, 1, 4, &RUN_SECONDS, 0, TIMERS, 2},
    {0x82, 1, 4, &RUN_SECONDS, 0, "6a|6b|7a|7b|8a|8b|9a|9b|10a|10b", 2},
    {0x83, 1, 2, &NOX, 0, SENSORS},
    {0x84, 0, 1, &CELSIUS},
    {0x85, 1, 2, &LITRES_200THS, 0, "average use|demanded use"},
    {0x85, 5, 1, &PERCENT, 2, "tank"},
    {0x85, 6, 4, &RUN_SECONDS, 3, "with warning"},
    {0x86, 1, 2, &SOOT_80THS, 0, "bank 1|bank 2"},
    {0x87, 1, 2, &KPA_32NDS, 0, "A|B"},
    {0x88, 3, 2, &KM, ALWAYS, "distance 1|distance 2|distance 3|distance 4|distance 5"},
    {0x89, 1, 4, &RUN_SECONDS, 0, "11a|11b|12a|12b|13a|13b|14a|14b|15a|15b", 2},
    {0x8A, 1, 4, &RUN_SECONDS, 0, "16a|16b|17a|17b|18a|18b|19a|19b|20a|20b", 2},
    {0x8B, 2, 1, &PERCENT, 4, "trigger"},
    {0x8B, 5, 2, &KM, 6, "between regenerations"},
    {0x8C, 9, 2, &WIDE_LAMBDA, 4, SENSORS}, // sources differ on the concentration
    {0x8D, 0, 1, &PERCENT},
    {0x8E, 0, 1, &TORQUE_SHARE},
    {0x8F, 2, 2, &HUNDREDTH_PERCENT, 1, "bank 1"},
    {0x8F, 5, 2, &HUNDREDTH_PERCENT, 3, "bank 2"},
    {0x90, 1, 2, &RUN_HOURS},
    {0x91, 1, 2, &RUN_HOURS, ALWAYS, "counter 1|counter 2"},
    {0x93, 1, 2, &RUN_HOURS, 0},
    {0x94, 2, 2, &RUN_HOURS, 1, "counter 1|counter 2|counter 3|counter 4|counter 5"},
    {0x98, 1, 2, &CELSIUS_TENTHS, 0, "sensor 5|sensor 6|sensor 7|sensor 8"},
    {0x99, 1, 2, &CELSIUS_TENTHS, 0, "sensor 5|sensor 6|sensor 7|sensor 8"},
    {0x9B, 3, 1, &PERCENT},
    {0x9C, 9, 2, &WIDE_LAMBDA, 4, "B1S3|B1S4|B2S3|B2S4"},
    {0xA2, 0, 2, &MILLIGRAMS_32NDS},
    {0xA4, 2, 2, &GEAR_RATIO, 1},
    {0xA5, 1, 1, &HALF_PERCENT, 0},
    {0xA6, 0, 4, &KM_TENTHS},
    {0xC6, 1, 2, &RUN_HOURS, ALWAYS, "counter 1|counter 2|counter 3"},
};

} // namespace

std::span<const parameter_row> standard_parameters() {
    return PARAMETERS;
}

std::span<const number_row> standard_numbers() {
    return NUMBERS;
}
