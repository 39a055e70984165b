// The fast sampler against every car and every fault: it does what was proven, and files nothing
// that the car did not say to the request.
#include "rows.h"
#include "sampled_car.h"
#include "test_paths.h"
#include "text.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

using std::chrono::minutes;
using std::chrono::seconds;
using strings = std::vector<std::string>;

const strings ONE{"0C"};
const strings FOUR{"0D", "11", "0C", "05"};
const strings TWELVE{"04", "05", "06", "07", "0B", "0C", "0D", "0E", "0F", "10", "11", "1F"};

using F = const strings&;

strings words_of(const std::string& text) {
    strings words;
    for (const std::string_view word : split(text, ","))
        words.emplace_back(word);
    return text.empty() ? strings() : words;
}

// The level that is in use after a minute, and whether that was asked then.
std::string proven(F f, int) {
    sampled_car car({f[0], words_of(f[1]), FOUR});
    car.run(minutes(1));
    EXPECT_EQ(car.sampler().finished(), car.sampler().level() == 0);
    EXPECT_EQ(car.false_, 0) << car.first_false_;
    EXPECT_TRUE(f[2].empty() || car.asked_.contains(f[2]));
    EXPECT_GT(car.true_, 2);
    return std::to_string(car.sampler().level());
}

// What comes of a fault that a run in full speed meets.
std::string worsened(F f, int) {
    sampled_car car({"can11", {}, FOUR});
    car.run(seconds(10));
    car.meet(f[0]);
    car.run(seconds(60));
    EXPECT_EQ(car.sampler().finished(), car.news_.ends_with("x"));
    EXPECT_LE(car.sampler().pause_afterwards(), std::chrono::milliseconds(60));
    return car.news_;
}

std::string filed_by(F f, int) {
    const std::string &question = f[1], &reply = f[2];
    fast_sampler sampler(words_of(f[0]), true, 0);
    const std::map<std::string, std::string> car{
        {"ATDPN", "A6"}, {"010C", "7E804410C0BB8"}, {"010D", "7E803410D10"}};
    std::string filed;
    for (int left = 100; left > 0; --left) {
        const std::string asked = sampler.next({}).command;
        const bool last = left < 90 && asked == question; // not that of the setting up
        const auto answer = car.find(asked);
        const auto out = sampler.take((last                  ? reply
                                       : answer == car.end() ? "OK"
                                                             : answer->second) +
                                          "\r\r>",
                                      {});
        if (last)
            return out.samples.empty() ? "nothing" : out.samples.back().reply;
    }
    return "never asked";
}

TEST(fast_sampler_test, does_what_the_rows_say) {
    const row_operations<int> operations{
        {"level", proven}, {"filed", filed_by}, {"levels_down", worsened}};
    for (const table_row& row : read_rows(test_data("fast_sampler.rows"))) {
        SCOPED_TRACE(row.place);
        expect_row(operations, row, 0);
    }
}

std::string with_value(const fault_row& row) {
    return std::string(row.name) + (row.value_name.empty() || row.value ? "" : "=7");
}

// Every fault of the virtual adapter, on every kind of bus, with runs of every size: whatever is
// filed, the car said it then, and said it of that parameter.
TEST(fast_sampler_test, files_nothing_that_the_car_did_not_say_to_the_request) {
    for (const fault_row& row : fault_rows())
        for (const char* name : {"can11", "three_units", "kwp_slow", "vpw"})
            for (const strings& pids : {ONE, FOUR, TWELVE}) {
                sampled_car car({name, {with_value(row)}, pids});
                car.run(seconds(20));
                EXPECT_EQ(car.false_, 0) << row.name << " on " << name << " with " << pids.size()
                                         << ": " << car.first_false_;
            }
}

// So too when the fault comes once a level is in use.
TEST(fast_sampler_test, no_fault_makes_a_level_that_is_in_use_file_anything_else) {
    const std::vector<strings> with_level{{}, {"first_pid_only"}, {"digit_unknown"}, {}};
    for (const fault_row& row : fault_rows())
        for (const int level : {1, 2, 3})
            for (const char* name : {"can11", "three_units"})
                for (const strings& pids : {FOUR, TWELVE}) {
                    // With rests between the requests something may come in them.
                    const int most_a_second = pids == FOUR ? 40 : 0;
                    sampled_car car(
                        {name, with_level[std::size_t(level)], pids, {}, 0, most_a_second});
                    car.run(seconds(10));
                    const std::string scene = std::string(row.name) + " on " + name + " at level " +
                                              std::to_string(level) + " with " +
                                              std::to_string(pids.size());
                    ASSERT_EQ(car.sampler().level(), level) << scene;
                    car.meet(with_value(row));
                    car.run(seconds(6));
                    EXPECT_EQ(car.false_, 0) << scene << ": " << car.first_false_;
                }
}

// A slow parameter must be among several what it is alone.
TEST(fast_sampler_test, several_at_once_are_given_up_where_their_values_differ) {
    for (const auto& [together, level] : {std::pair{"50", 2}, {"51", 0}, {"4F", 0}}) {
        fast_sampler sampler({"0C", "05"}, true, 0);
        const std::map<std::string, std::string> car{
            {"ATDPN", "A6"},
            {"010C", "7E804410C0BB8"},
            {"0105", "7E803410550"},
            {"010C05", std::string("7E806410C0BB805") + together}};
        for (int i = 0; i < 100 && !sampler.finished(); ++i) {
            const auto answer = car.find(sampler.next({}).command);
            sampler.take((answer == car.end() ? "OK" : answer->second) + "\r\r>", {});
        }
        EXPECT_EQ(sampler.level(), level) << together;
    }
}

// Units that wake up or go to sleep change the number of frames.
TEST(fast_sampler_test, asks_plainly_now_and_then) {
    sampled_car car({"can11", {}, FOUR});
    car.run(seconds(10));
    car.asked_.clear();
    car.run(minutes(1));
    EXPECT_TRUE(car.asked_.contains("010D110C05"));
}

TEST(fast_sampler_test, two_banks_in_one_answer_are_its_length) {
    sampled_car car({"can11", {}, {"0C", "06", "0D", "05"}, {"06"}});
    car.run(seconds(20));
    EXPECT_EQ(car.sampler().level(), 3);
    EXPECT_EQ(car.void_, 0);
}

// A unit that answers 58 ms later than the first is learnt, and waited for.
TEST(fast_sampler_test, slow_second_unit_is_waited_for) {
    sampled_car car({"can11", {"unit_gap=58"}, FOUR});
    car.run(minutes(1));
    EXPECT_EQ(car.sampler().level(), 3);
}

// SAE J1850 before 2002.
TEST(fast_sampler_test, j1850_gets_its_rests_and_an_adapter_out_of_step_for_good_is_given_up) {
    for (const auto& [bus, rest] : {std::pair{"A1", 100}, {"A2", 100}, {"A3", 0}}) {
        fast_sampler sampler(FOUR, false, 0);
        std::chrono::milliseconds longest{0};
        for (int i = 0; i < 50 && !sampler.finished(); ++i) {
            const auto [asked, pause] = sampler.next(seconds(9));
            longest = std::max(longest, pause);
            sampler.take((i < 8 && asked == "ATDPN" ? bus : "OK") + std::string("\r\r>"),
                         seconds(9));
        }
        EXPECT_EQ(longest.count(), rest) << bus;
        EXPECT_TRUE(sampler.finished()) << bus;
    }
}

} // namespace
