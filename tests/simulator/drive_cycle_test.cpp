// The drive is a drive: values agree with each other, and the fuel burnt is what such a car burns.
#include "car_library.h"
#include "drive_cycle.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

constexpr double GAS_CONSTANT = 287.05;

TEST(drive_cycle_test, a_petrol_engines_values_agree_with_each_other) {
    engine_data engine;
    drive_cycle drive(engine, 1);
    bool idled = false, cruised = false, coasted = false;
    double last_speed = 0;
    for (int t = 5; t <= 1800; ++t) {
        const engine_state s = drive.at(t);
        // Air is the swept volume filled at manifold pressure, some of it lost on the way in.
        const double swept = engine.displacement_litres / 1000 * s.rpm / 120;
        const double ideal =
            swept * s.manifold_kpa * 1000 / (GAS_CONSTANT * (s.intake_celsius + 273.15)) * 1000;
        EXPECT_NEAR(s.air_gram_s / ideal, 0.88, 0.03) << t;
        EXPECT_LE(s.manifold_kpa, s.barometer_kpa + 0.5) << t;
        EXPECT_NEAR(s.load, s.manifold_kpa / s.barometer_kpa * 100, 1) << t;
        EXPECT_GE(s.load, 0);
        EXPECT_LE(s.load, 100);
        EXPECT_LE(std::abs(s.speed_kmh - last_speed), 9) << t; // km/h in a second
        const double burnt_air =
            s.fuel_cut ? s.air_gram_s : s.fuel_gram_s * 14.7 * s.equivalence_ratio;
        EXPECT_NEAR(s.air_gram_s, burnt_air, 0.01) << t;
        if (s.speed_kmh == 0 && s.coolant_celsius > 80) {
            idled = true;
            EXPECT_NEAR(s.rpm, 740, 60) << t;
            EXPECT_GT(s.air_gram_s, 1.5);
            EXPECT_LT(s.air_gram_s, 4);
        }
        if (s.speed_kmh > 100 && std::abs(s.speed_kmh - last_speed) < 0.2) {
            cruised = true;
            EXPECT_NEAR(s.rpm / s.speed_kmh, 27.5, 1) << t; // top gear
        }
        if (s.fuel_cut) {
            coasted = true;
            EXPECT_EQ(s.fuel_gram_s, 0) << t;
            EXPECT_FALSE(s.closed_loop) << t;
            EXPECT_LT(s.manifold_kpa, 35) << t;
        }
        last_speed = s.speed_kmh;
    }
    EXPECT_TRUE(idled && cruised && coasted);
    EXPECT_NEAR(drive.at(1800).coolant_celsius, 91, 8);
}

TEST(drive_cycle_test, fuel_economy_is_that_of_such_a_car) {
    struct row {
        const char* car;
        double least, most; // litres on 100 km over half an hour with a cold start
    };
    for (const row& r : {row{"clean", 4.5, 7.5}, row{"can11", 6.5, 9.5}, row{"pwm", 12, 20},
                         row{"diesel", 4.5, 8.5}, row{"hybrid", 3.5, 7}}) {
        drive_cycle drive(load_car(r.car).engine, 1);
        double fuel = 0;
        for (int t = 1; t <= 1800; ++t)
            fuel += drive.at(t).fuel_gram_s;
        const double litres = fuel / 745 / drive.at(1800).distance_km * 100;
        EXPECT_GT(litres, r.least) << r.car;
        EXPECT_LT(litres, r.most) << r.car;
    }
}

TEST(drive_cycle_test, an_engine_at_rest_breathes_nothing) {
    drive_cycle drive(load_car("hybrid").engine, 1);
    bool rested = false;
    for (int t = 0; t <= 1800; ++t) {
        const engine_state s = drive.at(t);
        if (s.running)
            continue;
        rested = true;
        EXPECT_EQ(s.air_gram_s, 0) << t;
        EXPECT_EQ(s.manifold_kpa, s.barometer_kpa) << t;
    }
    EXPECT_TRUE(rested);
}

TEST(drive_cycle_test, a_diesel_has_boost_and_spare_air) {
    drive_cycle drive(load_car("diesel").engine, 1);
    double highest = 0;
    for (int t = 5; t <= 1800; ++t) {
        const engine_state s = drive.at(t);
        highest = std::max(highest, s.manifold_kpa);
        EXPECT_GE(s.air_gram_s, s.fuel_gram_s * 14.5 * 1.1) << t;
    }
    EXPECT_GT(highest, 140);
}

TEST(drive_cycle_test, the_drive_depends_on_the_seed_and_not_on_when_it_is_looked_at) {
    drive_cycle often(engine_data{}, 5), once(engine_data{}, 5), other(engine_data{}, 6);
    for (double t = 0; t < 900; t += 0.37)
        often.at(t);
    EXPECT_EQ(often.at(900).rpm, once.at(900).rpm);
    EXPECT_EQ(often.at(900).distance_km, once.at(900).distance_km);
    EXPECT_NE(often.at(900).distance_km, other.at(900).distance_km);
    EXPECT_EQ(often.at(3).seconds, 900); // time does not run backwards
    EXPECT_EQ(often.at(std::nan("")).seconds, 900);
}

} // namespace
