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

// Every fault of the virtual adapter, on every kind of bus, with runs of every size: whatever is
// filed, the car said it then, and said it of that parameter.
TEST(fast_sampler_test, files_nothing_that_the_car_did_not_say_to_the_request) {
    for (const fault_row& row : fault_rows())
        for (const char* name : {"can11", "three_units", "kwp_slow", "vpw"})
            for (const strings& pids : {ONE, FOUR, TWELVE}) {
                std::string fault(row.name);
                if (!row.value_name.empty() && !row.value)
                    fault += "=7";
                sampled_car car({name, {fault}, pids});
                car.run(seconds(20));
                EXPECT_EQ(car.false_, 0) << fault << " on " << name << " with " << pids.size()
                                         << ": " << car.first_false_;
            }
}

} // namespace
