#include "drive_cycle.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double STEP = 0.1; // seconds
constexpr double GRAVITY = 9.81;
constexpr double AIR_DENSITY = 1.2;          // kg/m3
constexpr double ROLLING_RESISTANCE = 0.011; // share of the weight
constexpr double DRIVELINE_EFFICIENCY = 0.92;
constexpr double ACCESSORY_WATTS = 500;
constexpr double PETROL_STOICHIOMETRIC = 14.7; // air to fuel, by mass
constexpr double DIESEL_STOICHIOMETRIC = 14.5;
constexpr double PETROL_JOULE_GRAM = 43500;
constexpr double DIESEL_JOULE_GRAM = 42800;
constexpr double IDLE_THROTTLE = 11.8;  // percent, sensor value with the pedal released
constexpr double GAS_CONSTANT = 287.05; // J/(kg K), air
constexpr double VOLUMETRIC_EFFICIENCY = 0.88;
constexpr double LEANEST = 1.99; // the most that the commanded ratio's two bytes can express
constexpr double WARM_IDLE_RPM = 740;

// Engine revolutions a minute for each km/h, by gear.
constexpr std::array GEARS = {128.0, 70.0, 47.0, 35.5, 27.5};

enum phase { cold_idle, town, motorway, coasting, phase_count };

// Moves `value` towards `aim` with time constant `tau`.
void follow(double& value, double aim, double tau) {
    value += (aim - value) * std::min(1.0, STEP / tau);
}

} // namespace

drive_cycle::drive_cycle(const engine_data& engine, std::uint64_t seed)
    : engine_(engine), random_(seed) {
    state_.coolant_celsius = state_.oil_celsius = state_.catalyst_celsius =
        engine.start_coolant_celsius;
    state_.intake_celsius = state_.ambient_celsius = engine.ambient_celsius;
    state_.fuel_level = random_.between(35, 90);
    state_.long_trim = engine.fuel_trim_percent;
    phase_ = cold_idle;
    phase_left_ = leg_left_ = 40;
    leg_ = {0, 40, false};
    run_engine(0);
}

const engine_state& drive_cycle::at(double seconds) {
    const double wanted = std::clamp(seconds / STEP, 0.0, 1e8);
    while (double(steps_) + 1 <= wanted)
        step();
    return state_;
}

drive_cycle::leg drive_cycle::next_leg() {
    constexpr std::array PHASE_SECONDS = {40.0, 300.0, 300.0, 45.0};
    if (phase_left_ <= 0) {
        phase_ = phase_ + 1 < phase_count ? phase_ + 1 : int(town);
        phase_left_ = PHASE_SECONDS[std::size_t(phase_)];
    }
    switch (phase_) {
    case motorway:
        return {random_.between(105, 128), random_.between(20, 45), false};
    case coasting:
        return {30, phase_left_, true};
    case town:
        standing_ = !standing_;
        return standing_ ? leg{0, random_.between(10, 28), false}
                         : leg{random_.between(28, 57), random_.between(15, 40), false};
    default:
        return {0, phase_left_, false};
    }
}

void drive_cycle::step() {
    ++steps_;
    state_.seconds = double(steps_) * STEP;
    leg_left_ -= STEP;
    phase_left_ -= STEP;
    if (leg_left_ <= 0) {
        leg_ = next_leg();
        leg_left_ = leg_.seconds;
    }
    choose_gear();
    run_engine(accelerate());
    warm_up();
    trim_fuel();
    state_.run_seconds += state_.running ? STEP : 0;
    state_.distance_km += state_.speed_kmh * STEP / 3600;
    // A 50-litre tank that is filled when it runs low.
    state_.fuel_level -= state_.fuel_gram_s * STEP / 745 / 50 * 100;
    if (state_.fuel_level < 8)
        state_.fuel_level = 95;
}

// An automatic gearbox: up at high revs, later under load; down at low revs.
void drive_cycle::choose_gear() {
    const double rpm = state_.speed_kmh * GEARS[std::size_t(gear_)];
    const double up_at = 2100 + state_.pedal * 18;
    if (rpm > up_at && gear_ + 1 < int(GEARS.size()))
        ++gear_;
    else if (rpm < 1150 && gear_ > 0)
        --gear_;
}

// Moves the car by one step. Returns the power that the wheels need, negative when braking.
double drive_cycle::accelerate() {
    const double metre_s = state_.speed_kmh / 3.6;
    const double drag = 0.5 * AIR_DENSITY * engine_.drag_area_m2 * metre_s * metre_s;
    const double resistance =
        metre_s > 0.1 ? drag + engine_.mass_kg * GRAVITY * ROLLING_RESISTANCE : 0;
    const double gap = leg_.target_kmh - state_.speed_kmh;
    const double strongest = std::max(0.35, 1.7 - state_.speed_kmh / 90);
    double wanted = std::clamp(gap / 3.6 / 2.5, -1.9, strongest);
    if (leg_.coast && gap < 0) // pedal released: the resistance and the engine's drag slow the car
        wanted = std::max(wanted, -(resistance + 220) / engine_.mass_kg);
    state_.speed_kmh = std::max(0.0, state_.speed_kmh + wanted * STEP * 3.6);
    if (leg_.target_kmh <= 0 && state_.speed_kmh < 0.5)
        state_.speed_kmh = 0;
    if (state_.speed_kmh <= 0)
        return 0;
    return (engine_.mass_kg * wanted + resistance) * metre_s;
}

void drive_cycle::run_engine(double wheel_watts) {
    const double power = std::max(0.0, wheel_watts) / DRIVELINE_EFFICIENCY;
    // A cold engine idles faster.
    const double idle = WARM_IDLE_RPM + std::clamp((60 - state_.coolant_celsius) * 8, 0.0, 480.0);
    const double geared = state_.speed_kmh * GEARS[std::size_t(gear_)];
    if (engine_.fuel == fuel_kind::hybrid) {
        const bool electric = state_.coolant_celsius > 55 && power < 9000 && state_.speed_kmh < 60;
        state_.running = !electric;
        follow(state_.rpm, electric ? 0 : std::clamp(1150 + power * 0.075, 1150.0, 4800.0), 0.4);
        if (electric && state_.rpm < 50)
            state_.rpm = 0;
    } else {
        // Pulling away, the clutch slips.
        const double aim = std::max(geared, state_.speed_kmh > 1 && power > 3000 ? 1250.0 : idle);
        follow(state_.rpm, aim + (geared < idle ? random_.between(-12, 12) : 0), 0.35);
    }
    state_.fuel_cut =
        state_.running && wheel_watts < 0 && geared > 1250 && engine_.fuel != fuel_kind::hybrid;
    // Friction as a mean pressure over speed (bar), more of it with cold oil; pumping against the
    // throttle.
    const double kilo_rpm = state_.rpm / 1000;
    const double cold = 1 + std::clamp((70 - state_.oil_celsius) / 150, 0.0, 0.6);
    const double friction = (0.9 + 0.12 * kilo_rpm + 0.05 * kilo_rpm * kilo_rpm) * cold;
    const double pumping =
        engine_.fuel == fuel_kind::diesel
            ? 0.15
            : std::max(0.0, state_.barometer_kpa - state_.manifold_kpa) / 100 * 0.8;
    const double swept_m3_s = engine_.displacement_litres / 1000 * state_.rpm / 120;
    breathe(power + ACCESSORY_WATTS + (friction + pumping) * 1e5 * swept_m3_s);
}

// Air, fuel and manifold pressure for the power that the cylinders must give. The mass of air is
// the swept volume at the manifold's pressure and temperature (speed-density).
void drive_cycle::breathe(double indicated_watts) {
    const bool diesel = engine_.fuel == fuel_kind::diesel;
    const double swept_m3_s = engine_.displacement_litres / 1000 * state_.rpm / 120;
    const double kelvin = state_.intake_celsius + 273.15;
    const double density = state_.barometer_kpa * 1000 / (GAS_CONSTANT * kelvin) * 1000; // g/m3
    const double atmospheric_air = VOLUMETRIC_EFFICIENCY * swept_m3_s * density;
    state_.air_gram_s = state_.fuel_gram_s = state_.load = 0;
    if (state_.running && state_.rpm > 100) {
        if (diesel)
            burn_diesel(indicated_watts, atmospheric_air);
        else
            burn_petrol(indicated_watts, atmospheric_air);
    }
    const double filling = atmospheric_air > 0 ? state_.air_gram_s / atmospheric_air : 0;
    state_.absolute_load = swept_m3_s > 0 ? state_.air_gram_s / (swept_m3_s * 1184) * 100 : 0;
    state_.manifold_kpa = state_.barometer_kpa * (filling > 0 ? filling : 1);
    open_throttle(filling);
    state_.advance_degrees = std::clamp(9 + state_.rpm / 130 - state_.load / 5, 2.0, 42.0);
}

// Turbocharged and unthrottled: the boost follows the fuel, up to twice the air, and the smoke
// limit caps the fuel.
void drive_cycle::burn_diesel(double indicated_watts, double atmospheric_air) {
    const double most_fuel = 2 * atmospheric_air / DIESEL_STOICHIOMETRIC / 1.25;
    const double wanted = indicated_watts / 0.43 / DIESEL_JOULE_GRAM;
    state_.fuel_gram_s = state_.fuel_cut ? 0 : std::min(wanted, most_fuel);
    state_.load = state_.fuel_gram_s / most_fuel * 100;
    state_.air_gram_s = atmospheric_air * (1 + state_.load / 100);
    const double lambda =
        state_.fuel_cut ? LEANEST : state_.air_gram_s / state_.fuel_gram_s / DIESEL_STOICHIOMETRIC;
    state_.equivalence_ratio = std::min(LEANEST, lambda);
}

// Throttled to the air that the fuel needs, which makes combustion less efficient.
void drive_cycle::burn_petrol(double indicated_watts, double atmospheric_air) {
    constexpr double CLOSED_THROTTLE = 0.2; // share of the air that leaks past it
    if (state_.fuel_cut) {
        state_.equivalence_ratio = LEANEST;
        state_.air_gram_s = CLOSED_THROTTLE * atmospheric_air;
    } else {
        const double efficiency = 0.37 * (0.72 + 0.28 * std::min(1.0, last_load_ / 45));
        const double air_to_fuel = PETROL_STOICHIOMETRIC * (state_.coolant_celsius < 30 ? 0.93 : 1);
        const double wanted = indicated_watts / efficiency / PETROL_JOULE_GRAM;
        state_.equivalence_ratio = air_to_fuel / PETROL_STOICHIOMETRIC;
        state_.air_gram_s = std::min(wanted * air_to_fuel, atmospheric_air);
        state_.fuel_gram_s = state_.air_gram_s / air_to_fuel;
    }
    state_.load = state_.air_gram_s / atmospheric_air * 100;
    last_load_ = state_.load;
}

// The throttle plate opens with the air flow, wider as the pressure drop across it falls. A
// diesel's is always open.
void drive_cycle::open_throttle(double filling) {
    const double full_flow = filling * state_.rpm / 6000;
    const double opening = std::pow(std::min(1.0, full_flow * (1 + filling * filling)), 0.7) * 100;
    const bool released = state_.fuel_cut || state_.speed_kmh <= 0;
    const bool diesel = engine_.fuel == fuel_kind::diesel;
    state_.pedal = released ? 0 : diesel ? state_.load : opening;
    state_.throttle = diesel ? 88 : IDLE_THROTTLE + 0.72 * opening;
}

void drive_cycle::warm_up() {
    constexpr double HEAT_CAPACITY = 26000; // J/K: block and coolant
    const double metre_s = state_.speed_kmh / 3.6;
    const double heat = state_.fuel_gram_s * PETROL_JOULE_GRAM * 0.26;
    const double loss = (state_.coolant_celsius - state_.ambient_celsius) * (6 + 0.3 * metre_s);
    const double radiator =
        std::max(0.0, state_.coolant_celsius - 86) * 2600; // the thermostat opens
    state_.coolant_celsius += (heat - loss - radiator) * STEP / HEAT_CAPACITY;
    follow(state_.oil_celsius, state_.coolant_celsius + state_.load * 0.12, 180);
    follow(state_.intake_celsius, state_.ambient_celsius + 3 + 16 / (1 + metre_s / 6), 60);
    const double exhaust =
        state_.fuel_gram_s > 0 ? 330 + 420 * std::min(1.0, state_.fuel_gram_s / 2) : 0;
    follow(state_.catalyst_celsius, std::max(state_.ambient_celsius, exhaust),
           exhaust > 0 ? 45 : 150);
    follow(state_.battery_volts, state_.running || engine_.fuel == fuel_kind::hybrid ? 14.1 : 12.3,
           2);
}

void drive_cycle::trim_fuel() {
    const bool diesel = engine_.fuel == fuel_kind::diesel;
    state_.closed_loop = !diesel && state_.running && !state_.fuel_cut && state_.run_seconds > 25 &&
                         state_.coolant_celsius > std::min(engine_.start_coolant_celsius + 3, 40.0);
    if (!state_.closed_loop) {
        state_.short_trim = 0;
        follow(state_.oxygen_volts,
               state_.fuel_cut || !state_.running ? 0.03
               : diesel                           ? 0.1
                                                  : 0.82,
               0.3);
        follow(state_.downstream_oxygen_volts, state_.fuel_cut || !state_.running ? 0.06 : 0.7, 2);
        return;
    }
    // The mixture oscillates about the ideal one, faster with more exhaust.
    oxygen_phase_ += STEP * (0.6 + state_.rpm / 3500);
    oxygen_phase_ -= std::floor(oxygen_phase_);
    const bool rich = oxygen_phase_ < 0.5;
    follow(state_.oxygen_volts, rich ? 0.8 : 0.12, 0.12);
    follow(state_.downstream_oxygen_volts, 0.66 + random_.between(-0.04, 0.04), 4);
    follow(state_.short_trim, (rich ? -2.4 : 2.4) + random_.between(-1, 1), 0.5);
    follow(state_.long_trim, engine_.fuel_trim_percent + state_.load * 0.01, 60);
}
