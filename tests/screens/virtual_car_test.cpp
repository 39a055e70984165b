// The trouble-codes screen against every virtual car and every fault of the adapter, on a virtual
// clock. The truth is the car's own data.
#include "app_harness.h"
#include "car_library.h"
#include "car_truth.h"
#include "qt_warnings.h"
#include "readCodes.h"
#include "virtual_car_pair.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

using std::chrono::minutes;
using std::chrono::seconds;

class car_on_the_bench {
  public:
    explicit car_on_the_bench(const std::string& name, std::vector<fault> faults = {})
        : the_car(load_car(name)), adapter(the_car, options(std::move(faults))) {
        app.delegate->doors().make_streams = streams_to(app.loop, adapter);
        app.delegate->do_read_codes();
    }
    static adapter_options options(std::vector<fault> faults) {
        adapter_options chosen;
        if (!faults.empty()) // a slow bus with a fault on top would time out by itself
            chosen.latency = std::chrono::milliseconds(0);
        chosen.faults = fault_set(std::move(faults));
        return chosen;
    }
    readCodes& screen() { return static_cast<readCodes&>(*app.delegate->current_screen()); }

    // Presses the button and waits for the end of the task. False: it did not end well.
    bool read() {
        screen().readCodes_clicked();
        for (int i = 0;
             i < 600 && (app.delegate->anything_outstanding() || i < 2) && screen().task_running();
             ++i)
            app.loop.advance(seconds(1));
        return screen().succeeded();
    }
    void expect_truth() {
        const truth told = truth_of(the_car);
        const codes_report found = screen().report();
        EXPECT_EQ(found.lamp, told.lamp);
        EXPECT_EQ(found.count, told.count);
        EXPECT_EQ(found.ecus, static_cast<int>(the_car.units.size()));
        std::multiset<std::string> codes;
        for (const code_row& row : found.codes)
            codes.insert(row[0]);
        EXPECT_EQ(codes, told.codes);
        std::vector<std::string> states;
        for (const readiness_flag& flag : found.readiness)
            states.push_back(flag.state);
        EXPECT_EQ(states, told.states);
    }

    app_harness app;
    car the_car;
    virtual_adapter adapter;
};

class every_car : public testing::TestWithParam<std::string> {};

TEST_P(every_car, is_read_as_its_data_says_cleared_and_read_again) {
    car_on_the_bench bench(GetParam());
    ASSERT_TRUE(bench.read()) << bench.app.last_status();
    bench.expect_truth();
    bench.screen().clearCodes_clicked();
    bench.app.loop.advance(minutes(1));
    const bool refuses = std::ranges::any_of(bench.the_car.units, [](const control_unit& unit) {
        return silent(unit, 4) || unit.clears_with_engine_off_only;
    });
    if (!refuses) {
        EXPECT_TRUE(bench.screen().succeeded()) << bench.app.last_status();
        for (const control_unit& unit : bench.the_car.units)
            EXPECT_TRUE(unit.stored.empty());
    }
    ASSERT_TRUE(bench.read()) << bench.app.last_status();
    bench.expect_truth();
}

INSTANTIATE_TEST_SUITE_P(cars, every_car, testing::ValuesIn(car_names()), [](const auto& name) {
    std::string label = name.param;
    std::ranges::replace_if(
        label, [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
    return label;
});

// Faults that a correct client reads through: what it shows is the truth all the same.
TEST(adapter_faults, that_change_only_the_form_of_a_reply_change_nothing_on_the_screen) {
    for (const char* name : {"one_byte_chunks", "split_prompt", "merge_replies", "nagle",
                             "echo_stuck", "crlf", "padding", "latency", "clone"})
        for (const char* car : {"can11", "can29", "iso9141"}) {
            SCOPED_TRACE(std::string(name) + " on " + car);
            const auto& rows = fault_rows();
            const auto row = std::ranges::find(rows, name, &fault_row::name);
            ASSERT_NE(row, rows.end());
            const std::string text =
                row->value || row->value_name.empty() ? name : std::string(name) + "=50";
            car_on_the_bench bench(car, {parse_fault(text)});
            EXPECT_TRUE(bench.read()) << bench.app.last_status();
            bench.expect_truth();
        }
}

// Any fault: no code that the car does not have is ever shown, and the program goes on.
TEST(adapter_faults, never_show_a_code_that_the_car_does_not_have) {
    for (const fault_row& row : fault_rows())
        for (const char* name : {"can11", "iso9141"}) {
            SCOPED_TRACE(std::string(row.name) + " on " + name);
            expect_warning("");
            const std::string text = row.value || row.value_name.empty()
                                         ? std::string(row.name)
                                         : std::string(row.name) + "=7";
            car_on_the_bench bench(name, {parse_fault(text)});
            bench.read();
            bench.read(); // the button works again, whatever became of the first time
            const truth told = truth_of(bench.the_car);
            const bool may_invent =
                row.kind == fault_kind::garbage || row.kind == fault_kind::drop_bytes ||
                row.kind == fault_kind::data_error; // bytes changed on the way look like codes
            for (const code_row& code : bench.screen().report().codes)
                EXPECT_TRUE(may_invent || told.codes.contains(code[0])) << code[0];
        }
}

} // namespace
