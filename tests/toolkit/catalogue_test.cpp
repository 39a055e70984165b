#include "decode_fixture.h"
#include "fixed_decimals.h"

#include <cmath>
#include <cstdio>
#include <limits>
#include <random>

namespace {

class catalogue_test : public decode_test {};

struct span_of {
    double low;
    double high;
    bool operator==(const span_of&) const = default;
};

struct catalogue_case {
    std::string pid;
    std::string imperial_unit;
    span_of imperial;
    std::string metric_unit = imperial_unit;
    span_of metric = imperial;
};

const catalogue_case CASES[] = {
    {"03", "N/A", {0, 0}},
    {"04", "%", {0, 100}},
    {"05", "° F", {-40, 419}, "° C", {-40, 215}},
    {"06", "%", {-100, 92.22}},
    {"0A", "psi", {0, 1109.499637418419}, "KPa", {0, 765}},
    {"0B", "in.Hg", {0, 75.225}, "KPa", {0, 255}},
    {"0C", "RPM", {0, 16383.75}},
    {"c", "RPM", {0, 16383.75}},
    {"0D", "mph", {0, 159.4}, "kph", {0, 255}},
    {"0E", "deg", {-64, 63.5}},
    {"10", "lb/min", {0, 86.57199471598415}, "gm/s", {0, 655.35}},
    {"12", "N/A", {0, 0}},
    {"13", "N/A", {0, 0}},
    {"14", " V", {0, 1.275}},
    {"1B", " V", {0, 1.275}},
    {"1F", "N/A", {0, 0}},
    {"22", "psi", {0, 1527.29465}, "KPa", {0, 5177.27}},
    {"23", "psi", {0, 193328.25}, "KPa", {0, 655350}},
    {"2B", " V", {0, 7.999}},
    {"2D", "%", {-100, 100}},
    {"32", "N/A", {-32.8878, 32.8868}, "N/A", {-8192, 8191.75}},
    {"33", "in.Hg", {0, 75.225}, "KPa", {0, 255}},
    {"34", " mA", {-128, 127.99}},
    {"3F", "° F", {-40, 11756.3}, "° C", {-40, 6513.5}},
    {"42", " V", {0, 65535}},
    {"43", "%", {0, 25700}},
    {"44", "N/A", {0, 0}},
    {"46", "° F", {-40, 419}, "° C", {-40, 215}},
    {"54", "in.H2O", {0, 0}, "KPa", {0, 0}},
    {"E1", "mls", {0, 1}, "Kms", {0, 1}},
    {"E2", "HP", {0, 0}, "KW", {0, 0}},
    {"E3", "lb-ft", {0, 0}, "N-m", {0, 0}},
    {"E4", "mpg", {0, 0}, "km/litre", {0, 0}},
    {"E5", "psi", {0, 36.98332124728064}, "KPa", {0, 255}},
    {"E6", "N/A", {0, 0}},
    {"E8", "%", {-100, 92.22}},
    {"E9", "N/A", {0, 0}},
    {"10C", "N/A", {0, 0}},
    {"FFFFFFFFFF", "N/A", {0, 0}},
    {"", "N/A", {0, 0}},
    {"zz", "N/A", {0, 0}},
};

TEST_F(catalogue_test, units_and_ranges_follow_the_units_setting) {
    const auto range = [this](const std::string& pid) {
        return span_of{decoder.get_PID_min_max(pid, false), decoder.get_PID_min_max(pid, true)};
    };
    for (const catalogue_case& c : CASES) {
        use_metric(false);
        EXPECT_EQ(decoder.get_units(c.pid), c.imperial_unit) << c.pid;
        EXPECT_EQ(range(c.pid), c.imperial) << c.pid;
        use_metric(true);
        EXPECT_EQ(decoder.get_units(c.pid), c.metric_unit) << c.pid;
        EXPECT_EQ(range(c.pid), c.metric) << c.pid;
    }
}

TEST_F(catalogue_test, values_encode_as_reply_text) {
    constexpr double INFINITE = std::numeric_limits<double>::infinity();
    const struct {
        double value;
        std::string pid;
        std::string imperial;
        std::string metric;
    } cases[] = {
        {12.5, "10", "4110249f", "411004e2"},
        {700, "10", "41E4FFFF", "41E4FFFF"},
        {655.34, "10", "41E4FFFF", "4110fffe"},
        {0, "10", "41100000", "41100000"},
        {30, "E4", "41E404fb", "41E404fb"},
        {1e9, "E4", "41E4FFFF", "41E4FFFF"},
        {INFINITE, "10", "41E4FFFF", "41E4FFFF"},
        {std::nan(""), "e4", "41E40000", "41E40000"},
        {1, "0C", "", ""},
    };
    for (const auto& c : cases) {
        use_metric(false);
        EXPECT_EQ(decoder.encode_to_OBD(c.value, c.pid), c.imperial) << c.value;
        use_metric(true);
        EXPECT_EQ(decoder.encode_to_OBD(c.value, c.pid), c.metric) << c.value;
    }
}

TEST(fixed_decimals, numbers_round_as_printf_rounds_but_zero_has_no_sign) {
    const auto written = [](double value, int decimals) {
        char room[FIXED_DECIMALS_ROOM];
        return std::string(room, write_fixed_decimals(room, value, decimals));
    };
    const auto printed = [](double value, int decimals) {
        char room[FIXED_DECIMALS_ROOM];
        return std::string(room, static_cast<std::size_t>(
                                     std::snprintf(room, sizeof room, "%.*f", decimals, value)));
    };
    EXPECT_EQ(written(-0.0, 1), "0.0");
    EXPECT_EQ(written(-0.04, 1), "0.0");
    EXPECT_EQ(written(-0.5, 0), "0");
    EXPECT_EQ(written(-0.05, 1), "-0.1");
    EXPECT_EQ(written(2.5, 0), "2");
    EXPECT_EQ(written(0.125, 2), "0.12");
    EXPECT_EQ(written(std::numeric_limits<double>::lowest(), 6).size(), 317U);
    std::mt19937_64 random(5);
    for (int i = 0; i < 20000; ++i) {
        const double value = static_cast<double>(random() % 100000) / 800 + 1;
        EXPECT_EQ(written(-value, i % 4), printed(-value, i % 4));
    }
}

} // namespace
