// The fast sampler against every car and every fault: it does what was proven, and files nothing
// that the car did not say to the request.
#include "sampled_car.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

using std::chrono::minutes;
using std::chrono::seconds;
using strings = std::vector<std::string>;

const strings ONE{"0C"};
const strings FOUR{"0D", "11", "0C", "05"};
const strings TWELVE{"04", "05", "06", "07", "0B", "0C", "0D", "0E", "0F", "10", "11", "1F"};

// The level that is proven on each car and adapter, and kept.
TEST(fast_sampler_test, uses_what_was_proven_and_nothing_else) {
    struct row {
        const char* car;
        strings faults;
        int level;
        const char* asked; // once in use; "" for nothing in particular
    };
    for (const row& r : {
             row{"can29", {}, 3, "010D110C052"},
             row{"can11", {}, 3, "010D110C053"},
             row{"three_units", {}, 3, "010D110C055"},
             row{"can11", {"digit_unknown"}, 2, "010D110C05"},
             row{"can11", {"digit_no_data"}, 2, "010D110C05"},
             row{"can11", {"digit_ignored"}, 2, "010D110C05"},
             row{"can11", {"digit_counts_messages"}, 2, "010D110C05"}, // it waits all the same
             row{"can11", {"first_pid_only"}, 1, "01111"},
             row{"can11", {"two_bytes"}, 1, "010C2"},
             row{"can11", {"zero_bytes"}, 1, ""},
             row{"can11", {"several_refused"}, 1, ""},
             row{"can11", {"wrong_length"}, 1, ""},
             row{"can11", {"pids_reordered"}, 3, ""},
             row{"can11", {"clone"}, 3, ""},
             row{"can11", {"padding", "crlf", "echo_stuck"}, 3, ""},
             row{"can11", {"first_pid_only", "digit_unknown"}, 0, ""},
             row{"can11", {"pending=4"}, 0, ""},
             row{"iso9141", {}, 0, ""}, // the rest after a message takes as long
             row{"kwp_slow", {}, 0, ""},
             row{"vpw", {}, 0, "010D2"},
             row{"pwm", {}, 0, "010D1"},
         }) {
        sampled_car car({r.car, r.faults, FOUR});
        car.run(minutes(1));
        const std::string scene =
            std::string(r.car) + " " + (r.faults.empty() ? "" : r.faults.front());
        EXPECT_EQ(car.sampler().level(), r.level) << scene;
        EXPECT_EQ(car.sampler().finished(), r.level == 0) << scene;
        EXPECT_EQ(car.false_, 0) << scene << ": " << car.first_false_;
        EXPECT_TRUE(*r.asked == '\0' || car.asked_.contains(r.asked)) << scene;
        EXPECT_GT(car.true_, 2) << scene;
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

// The last reply before that question, as it is filed when the question is answered so.
std::string filed_by(const strings& pids, const std::string& question, const std::string& reply) {
    fast_sampler sampler(pids, true, 0);
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

// Where an older reply has passed for it, the car's answer follows, or the adapter is interrupted.
TEST(fast_sampler_test, files_a_reply_once_the_next_one_shows_it_to_be_in_step) {
    const strings TWO{"0C", "0D"};
    const struct {
        strings pids;
        const char *question, *reply, *filed;
    } rows[] = {
        {ONE, "ATDPN", "A6", "410C0BB8"},
        {ONE, "ATDPN", "7E804410C0C00", "~"},
        {ONE, "ATDPN", "CAN ERROR", "~"},
        {TWO, "010D", "7E803410D10", "410C0BB8"},
        {TWO, "010D", "CAN ERROR", "410C0BB8"},
        {TWO, "010D", "7E804410C0C00", "~"},
        {TWO, "010D", "STOPPED", "~"},
        {TWO, "010D", "7E904410C0C00\r7E803410D10", "410C0BB8"}, // of a unit that is not used
        {TWO, "010C0D", "7E803410D11", "~"},
        {TWO, "010C0D", "NO DATA", "410D10"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(filed_by(row.pids, row.question, row.reply), row.filed)
            << row.question << " " << row.reply;
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

// Two void replies to twenty requests are one too many; one now and then is not.
TEST(fast_sampler_test, goes_down_a_level_as_soon_as_two_in_twenty_requests_are_void) {
    struct row {
        const char* fault;
        const char* news; // a level down each, given up
    };
    for (const row& r : {
             row{"data_error=90", ""}, // three frames to a request, one when nothing else goes
             row{"data_error=45", "vv"},
             row{"duplicate_reply=15", "vvx"}, // in time for "AT DPN", which alone tells
             row{"can_error=9", "x"},
             row{"pending=500", "x"},
             row{"first_pid_only", "vv"},
             row{"digit_unknown", "v"},
             row{"wrong_length", "vv"},
         }) {
        sampled_car car({"can11", {}, FOUR});
        car.run(seconds(10));
        car.meet(r.fault);
        car.run(seconds(60));
        EXPECT_EQ(car.news_, r.news) << r.fault;
        EXPECT_EQ(car.sampler().finished(), std::string(r.news).ends_with("x")) << r.fault;
        EXPECT_LE(car.sampler().pause_afterwards(), std::chrono::milliseconds(60)) << r.fault;
    }
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
