// The live-data screen's runs against a virtual car, on a virtual clock: what they show, and what
// they file when the adapter misbehaves.
#include "actions.h"
#include "app_harness.h"
#include "car_library.h"
#include "hex_text.h"
#include "mac_toolies.h"
#include "qt_warnings.h"
#include "rows.h"
#include "sample_reply.h"
#include "test_paths.h"
#include "text.h"
#include "thumbnail_strip.h"
#include "virtual_car_pair.h"

#include <QScrollArea>

#include <algorithm>
#include <gtest/gtest.h>

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using list = std::vector<std::string>;

class car_on_the_road {
  public:
    // The engine's parameters and their data bytes, which never change.
    explicit car_on_the_road(const std::map<int, byte_string>& engine,
                             const std::vector<std::string>& faults = {}, bool metric = false)
        : app([metric](user_defaults& store) {
              app_harness::use_wifi(store);
              store.set_boolean(KS_METRIC_UNITS_KEY, metric);
          }),
          the_car(car_with(engine)), adapter(the_car, options(faults)) {
        app.delegate->doors().make_streams = streams_to(app.loop, adapter);
        app.delegate->do_actions();
        screen().cycle_completed = [this](const std::vector<translated>&) {
            const std::size_t row = screen().samples().rows() - 2;
            rows.emplace_back();
            for (std::size_t place = 0; place < screen().pids().size(); ++place)
                rows.back().emplace_back(screen().samples().text(row, place));
        };
    }
    static car car_with(const std::map<int, byte_string>& engine) {
        car made = load_car("can11");
        made.units.resize(1);
        made.units[0].pids.clear();
        for (const auto& [pid, bytes] : engine)
            made.units[0].pids.push_back(pid);
        made.units[0].fixed = engine;
        return made;
    }
    static adapter_options options(const std::vector<std::string>& faults) {
        adapter_options chosen;
        chosen.latency = milliseconds(10);
        std::vector<fault> parsed;
        for (const std::string& text : faults)
            parsed.push_back(parse_fault(text));
        chosen.faults = fault_set(parsed);
        return chosen;
    }
    actions& screen() { return static_cast<actions&>(*app.delegate->current_screen()); }
    // Starts the run; the last cycle of the next seconds as the user reads it.
    list run(int task, int for_seconds = 10) {
        screen().choose_run(task);
        screen().runLogs();
        app.loop.advance(seconds(for_seconds));
        list shown;
        if (!rows.empty())
            for (const std::string& reply : rows.back())
                shown.push_back(screen().toolies.translateResponse(reply));
        return shown;
    }

    app_harness app;
    car the_car;
    virtual_adapter adapter;
    std::vector<list> rows; // of complete cycles, as filed
};

// "0D=60,10=0C80": parameters and their data bytes.
std::map<int, byte_string> engine_of(const std::string& text) {
    std::map<int, byte_string> engine;
    for (const std::string_view one : split(text, ","))
        engine[int(hex_number(one.substr(0, 2)))] =
            mac_toolies::fromHexString(std::string(one.substr(3))).value();
    return engine;
}

TEST(live_runs, compute_what_a_calculation_by_hand_gives) {
    for (const table_row& row : read_rows(test_data("computed.rows"))) {
        SCOPED_TRACE(row.place);
        car_on_the_road bench(engine_of(row.fields[1]), {}, row.fields[0] == "metric");
        const list shown = bench.run(row.heading == "fuel" ? TASK_FUEL_ECONOMY : TASK_BOOST);
        EXPECT_EQ(shown, list(row.fields.begin() + 2, row.fields.end()));
        EXPECT_GT(bench.rows.size(), 100u); // every 10 ms an answer, after a second or so
    }
}

TEST(live_runs, oxygen_sensors_are_those_that_the_car_names) {
    const std::map<int, byte_string> volts{{0x14, {90, 0x90}}, {0x15, {20, 0xFF}}};
    const struct {
        const char* name;
        std::map<int, byte_string> engine;
        list sensors;
        bool swaps;
    } cases[] = {
        {"two banks", {{0x13, {0x33}}}, {"14", "15", "18", "19"}, false},
        {"four banks", {{0x1D, {0x0F}}}, {"14", "15", "16", "17"}, false},
        {"more than fit", {{0x13, {0xFF}}}, {"14", "15", "16", "17", "18", "19", "1A", "1B"}, true},
        {"none named by one, some by the other",
         {{0x13, {0}}, {0x1D, {0x81}}},
         {"14", "1B"},
         false},
        {"none", {{0x0D, {0}}}, {}, false},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        auto engine = one.engine;
        engine.insert(volts.begin(), volts.end());
        car_on_the_road bench(engine);
        const list shown = bench.run(TASK_O2_SAMPLING);
        EXPECT_EQ(bench.screen().running(), !one.sensors.empty());
        EXPECT_EQ(bench.app.find("o2SwapBtn")->isHidden(), !one.swaps);
        if (one.sensors.empty()) {
            EXPECT_EQ(bench.app.last_status(), bench.app.resources.localized("ui_live_no_sensors"));
            continue;
        }
        EXPECT_EQ(bench.screen().pids(), one.sensors);
        ASSERT_FALSE(shown.empty());
        EXPECT_TRUE(shown[0].starts_with("0.45")) << shown[0];
        const auto& strip = static_cast<thumbnail_strip&>(
            *bench.app.find<QScrollArea>("xtopActionCharts")->widget());
        for (const int first : {4, 0}) { // four fit, then round again
            if (one.swaps)
                bench.app.press("o2SwapBtn");
            EXPECT_EQ(strip.selected(), std::set<int>{one.swaps ? first : 0});
        }
        // The next run asks again; the list of another run is its own.
        bench.screen().runLogs();
        bench.run(TASK_FUEL_ECONOMY);
        EXPECT_EQ(bench.screen().pids(), (list{"E4", "0D", "10"}));
        EXPECT_TRUE(bench.app.find("o2SwapBtn")->isHidden());
    }
}

// Whatever the adapter does: nothing is filed under a name that it does not belong to, and most of
// what the car says is.
TEST(live_runs, no_fault_files_a_value_under_another_name) {
    const std::map<int, byte_string> engine{
        {0x0D, {0x0D}}, {0x11, {0x11}}, {0x0C, {0x0C, 0x0C}}, {0x05, {0x05}}};
    const std::pair<const char*, double> faults[] = {{"wrong_pid=1", 0},
                                                     {"wrong_pid=3", 0.6},
                                                     {"wrong_pid=2", 0.45},
                                                     {"duplicate_reply=1", 0.45},
                                                     {"duplicate_reply=2", 0.45},
                                                     {"duplicate_reply=3", 0.6},
                                                     {"late_reply=20", 0.9},
                                                     {"data_error=4", 0.7},
                                                     {"can_error=4", 0.7},
                                                     {"merge_replies", 1},
                                                     {"one_byte_chunks", 1},
                                                     {"split_prompt", 1},
                                                     {"crlf", 1},
                                                     {"padding", 1},
                                                     {"echo_stuck", 0},
                                                     {"buffer_full=14", 0.7},
                                                     {"nagle", 1},
                                                     {"latency=300", 1}};
    for (const auto& [fault, least] : faults) {
        SCOPED_TRACE(fault);
        expect_warning("");
        car_on_the_road bench(engine, {fault});
        bench.run(TASK_RUN_LOG, 20);
        EXPECT_TRUE(bench.screen().running()) << bench.app.last_status();
        ASSERT_GT(bench.rows.size(), 10u);
        std::size_t right = 0, all = 0;
        for (const list& row : bench.rows)
            for (std::size_t place = 0; place < row.size(); ++place, ++all) {
                const std::string& reply = row[place];
                const std::string& pid = bench.screen().pids()[place];
                if (reply.starts_with("41")) {
                    // What the adapter has to say about the line stays with it.
                    EXPECT_TRUE(reply.starts_with("41" + pid + pid)) << reply;
                    ++right;
                }
            }
        EXPECT_GE(static_cast<double>(right) / static_cast<double>(all), least);
    }
}

TEST(live_runs, end_when_the_link_does) {
    const std::map<int, byte_string> engine{{0x0D, {1}}, {0x11, {2}}, {0x0C, {3, 4}}, {0x05, {5}}};
    for (int commands = 1; commands < 16; ++commands) {
        SCOPED_TRACE(commands);
        expect_warning("Disconected");
        car_on_the_road bench(engine, {"close_after=" + std::to_string(commands)});
        bench.run(TASK_RUN_LOG);
        EXPECT_FALSE(bench.screen().running());
        EXPECT_EQ(bench.app.last_status(), "Disconnected");
        EXPECT_EQ(bench.rows.size(), static_cast<std::size_t>(std::max(commands - 7, 0)) / 4);
    }
}

// Connecting, on the way, sampling, waiting for an answer that is owed: stopped is stopped, and the
// next run is a good one.
TEST(live_runs, stop_at_any_moment_and_start_again) {
    const std::map<int, byte_string> engine{{0x0D, {1}}, {0x11, {2}}, {0x0C, {3, 4}}, {0x05, {5}}};
    for (const char* fault : {"crlf", "wrong_pid=2", "duplicate_reply=2", "late_reply=20"})
        for (int after :
             {0, 1, 500, 999, 1000, 1005, 1015, 1035, 1055, 1200, 1500, 3000, 4400, 9000}) {
            SCOPED_TRACE(std::string(fault) + " after " + std::to_string(after));
            car_on_the_road bench(engine, {fault});
            bench.screen().runLogs();
            bench.app.loop.advance(milliseconds(after));
            bench.screen().runLogs();
            EXPECT_FALSE(bench.screen().running());
            const std::size_t cycles = bench.rows.size();
            bench.app.loop.advance(milliseconds(after % 3 == 0 ? 0 : 20'000));
            EXPECT_EQ(bench.rows.size(), cycles);
            bench.screen().runLogs();
            bench.app.loop.advance(seconds(20));
            EXPECT_TRUE(bench.screen().running()) << bench.app.last_status();
            EXPECT_GT(bench.rows.size(), cycles + 1);
            for (const list& row : bench.rows)
                for (std::size_t place = 0; place < row.size(); ++place)
                    EXPECT_TRUE(!row[place].starts_with("41") ||
                                row[place].substr(2, 2) == bench.screen().pids()[place])
                        << row[place];
        }
}

} // namespace
