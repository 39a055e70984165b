#include "decode_fixture.h"
#include "fuel_economy.h"
#include "run_times.h"

#include <QLocale>

#include <cmath>
#include <limits>

namespace {

class run_logs_test : public decode_test {
  protected:
    run_logs_test() {
        qputenv("TZ", "UTC0");
        tzset();
        QLocale::setDefault(QLocale(QStringLiteral("en_US")));
    }
    ~run_logs_test() override { QLocale::setDefault(QLocale::c()); }

    mac_toolies at(std::time_t now) {
        return mac_toolies({&resources, &settings, &boxes, &notifications, root() + "/data",
                            [now] { return now; }});
    }
};

constexpr std::time_t NOV_15_1454_33 = 1794754473; // 2026, in the afternoon
constexpr std::time_t HOUR = 3600;

TEST_F(run_logs_test, dates_have_a_twelve_hour_clock_and_the_units_order) {
    const struct {
        std::time_t now;
        bool metric;
        int flag;
        const char* locale;
        std::string expected;
    } cases[] = {
        {NOV_15_1454_33, false, 0, "en_US", "Nov_15_2026-0254_33"},
        {NOV_15_1454_33, true, 0, "en_US", "15_Nov_2026-0254_33"},
        {NOV_15_1454_33, false, 1, "en_US", "Nov 15 2026 02:54:33"},
        {NOV_15_1454_33, true, 1, "en_US", "15 Nov 2026 02:54:33"},
        {NOV_15_1454_33 - 14 * HOUR, false, 1, "en_US", "Nov 15 2026 12:54:33"}, // midnight
        {NOV_15_1454_33 - 2 * HOUR, false, 1, "en_US", "Nov 15 2026 12:54:33"},  // noon
        {NOV_15_1454_33 - 3 * HOUR, false, 1, "en_US", "Nov 15 2026 11:54:33"},
        {0, true, 0, "de_DE", "01_Jan._1970-1200_00"},
        {0, true, 0, "ar_EG", "01_يناير_1970-1200_00"}, // the digits stay
    };
    for (const auto& c : cases) {
        QLocale::setDefault(QLocale(QString::fromUtf8(c.locale)));
        use_metric(c.metric);
        EXPECT_EQ(at(c.now).get_todays_date(c.flag), c.expected) << c.locale;
    }
}

TEST_F(run_logs_test, names_begin_with_the_tasks_prefix_in_a_folder_made_for_them) {
    const mac_toolies logs = at(NOV_15_1454_33);
    EXPECT_FALSE(std::filesystem::exists(logs.log_folder()));
    const std::pair<int, std::string> cases[] = {{1, "dtc_"},   {3, "xprt_"},     {4, "log_"},
                                                 {5, "frz_"},   {6, "vinfo_"},    {7, "fuel_"},
                                                 {8, "mode6_"}, {11, "misfire_"}, {12, "boost_"},
                                                 {13, "o2_"},   {2, "other_"},    {-1, "other_"}};
    for (const auto& [task, prefix] : cases)
        EXPECT_EQ(logs.work_out_log_fname_for_mode(task),
                  root() + "/data/loggies/" + prefix + "Nov_15_2026-0254_33");
    EXPECT_TRUE(std::filesystem::is_directory(root() + "/data/loggies"));
}

TEST_F(run_logs_test, a_folder_that_cannot_be_made_is_logged_and_the_name_told) {
    std::ofstream(root() + "/data") << "in the way";
    expect_warning("Couldn't create loggies folder");
    EXPECT_EQ(at(0).work_out_log_fname_for_mode(4),
              root() + "/data/loggies/log_Jan_01_1970-1200_00");
}

TEST_F(run_logs_test, only_files_of_the_log_folder_are_deleted) {
    const mac_toolies logs = at(0);
    const std::string name = logs.work_out_log_fname_for_mode(4) + ".gol";
    std::ofstream(name) << "410C0FA0\n";
    std::ofstream(root() + "/data/kept") << "x";
    std::filesystem::create_directory(logs.log_folder() + "/full");
    std::ofstream(logs.log_folder() + "/full/kept") << "x";
    std::ofstream(times_of_log(name)) << "12\n";
    EXPECT_EQ(logs.list_logs().size(), 1U) << "a companion is no log";
    EXPECT_TRUE(logs.delete_a_log("log_Jan_01_1970-1200_00.gol"));
    EXPECT_FALSE(std::filesystem::exists(name));
    EXPECT_FALSE(std::filesystem::exists(times_of_log(name)));
    expect_warning("oops: ");
    for (const char* bad : {"log_Jan_01_1970-1200_00.gol", "", ".", "..", "../kept", "full"})
        EXPECT_FALSE(logs.delete_a_log(bad)) << bad;
    EXPECT_TRUE(std::filesystem::exists(root() + "/data/kept"));
    EXPECT_TRUE(std::filesystem::exists(logs.log_folder() + "/full/kept"));
}

// A petrol engine at 100 km/h that draws 15 g of air a second: 15 / 14.7 = 1.0204 g of petrol a
// second, 3673.5 g an hour, at 740 g a litre 4.9642 litres for 100 km: 20.144 km a litre, which is
// 47.38 miles a US gallon.
TEST_F(run_logs_test, fuel_economy_agrees_with_a_calculation_by_hand) {
    const double mph = 100 / 1.609344, pounds_a_minute = 15 * 60 / 453.59237;
    for (const fuel_economy& economy :
         {compute_MPG(false, 100, 15), compute_MPG(true, mph, pounds_a_minute)}) {
        EXPECT_NEAR(economy.kpl, 20.144, 0.002);
        EXPECT_NEAR(economy.mpg, 47.38, 0.01);
    }
    // The readings as they come, shown as they go: 64 hex is 100 km/h, 05DC hex 15.00 g/s.
    for (const bool metric : {true, false}) {
        use_metric(metric);
        const double speed = decoder.get_OBDVal("410D64"), maf = decoder.get_OBDVal("411005DC");
        const auto reply = fuel_economy_reply(decoder, compute_MPG(!metric, speed, maf));
        // In imperial units the displays round, and convert with 1.6 and 7.5.
        EXPECT_NEAR(decoder.get_OBDVal(reply), metric ? 20.14 : 47.27, 0.01);
    }
}

TEST_F(run_logs_test, fuel_economy_without_air_flow_shows_no_number) {
    constexpr double NONE = std::numeric_limits<double>::quiet_NaN();
    const struct {
        double speed, maf;
        std::string text;
    } cases[] = {{50, 0, "~"},    {0, 0, "~"},         {NONE, 10, "~"},
                 {50, NONE, "~"}, {0, 10, "0.00 kpl"}, {255, 0.01, "655.35 kpl"}};
    use_metric(true);
    for (const auto& c : cases)
        for (const bool flag : {false, true})
            EXPECT_EQ(decoder.translateResponse(
                          fuel_economy_reply(decoder, compute_MPG(flag, c.speed, c.maf))),
                      c.text)
                << c.speed << ' ' << c.maf;
    EXPECT_EQ(compute_MPG(false, 0, 10).kpl, 0);
}

} // namespace
