// A drive that repeats forever: cold start, idle, town, motorway, coasting, town again. A seed
// determines the drive. It advances in steps of a tenth of a second, so that values do not depend
// on when they are read.
#pragma once

#include "car.h"
#include "seeded_random.h"

// A car's sensor values at one moment. Units as the names say; shares in percent.
struct engine_state {
    double seconds = 0; // since the ignition was switched on
    bool running = true;
    bool fuel_cut = false; // coasting in gear with closed throttle
    bool closed_loop = false;
    double speed_kmh = 0;
    double rpm = 0;
    double fuel_gram_s = 0;
    double air_gram_s = 0;
    double manifold_kpa = 101;
    double barometer_kpa = 101;
    double load = 0;          // share of the maximum air at this engine speed
    double absolute_load = 0; // air mass per stroke against displacement at 1.184 g/l
    double throttle = 0;
    double pedal = 0;
    double advance_degrees = 10;
    double equivalence_ratio = 1; // commanded
    double coolant_celsius = 15, intake_celsius = 15, oil_celsius = 15, catalyst_celsius = 15,
           ambient_celsius = 15;
    double short_trim = 0, long_trim = 0;
    double oxygen_volts = 0.45;           // before the catalyst
    double downstream_oxygen_volts = 0.6; // after it
    double battery_volts = 12.4;
    double fuel_level = 70;
    double run_seconds = 0;
    double distance_km = 0;
};

class drive_cycle {
  public:
    drive_cycle(const engine_data& engine, std::uint64_t seed);

    // The state at that time. Time does not go back: an earlier time gives the latest state.
    const engine_state& at(double seconds);

  private:
    struct leg {
        double target_kmh;
        double seconds;
        bool coast;
    };

    leg next_leg();
    void step();
    void choose_gear();
    double accelerate();
    void run_engine(double wheel_watts);
    void breathe(double indicated_watts);
    void burn_diesel(double indicated_watts, double atmospheric_air);
    void burn_petrol(double indicated_watts, double atmospheric_air);
    void open_throttle(double filling);
    void warm_up();
    void trim_fuel();

    engine_data engine_;
    seeded_random random_;
    engine_state state_;
    long steps_ = 0;
    leg leg_{};
    double leg_left_ = 0;
    double phase_left_ = 0;
    int phase_ = 0;
    bool standing_ = true;
    int gear_ = 0;
    double last_load_ = 20;
    double oxygen_phase_ = 0;
};
