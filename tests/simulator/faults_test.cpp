// Each fault does what its name says, and nothing without it.
#include "adapter_harness.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::HasSubstr;
using testing::Not;

TEST(faults_test, names_and_values_are_read_or_refused_with_a_reason) {
    struct row {
        const char* text;
        fault_kind kind;
        long value;
    };
    for (const row& r :
         {row{"refuse", fault_kind::refuse, 0}, row{"close_after=3", fault_kind::close_after, 3},
          row{"split_prompt", fault_kind::split_prompt, 50},
          row{"ignition_off_at=0", fault_kind::ignition_off_at, 0}}) {
        EXPECT_EQ(parse_fault(r.text).kind, r.kind) << r.text;
        EXPECT_EQ(parse_fault(r.text).value, r.value) << r.text;
    }
    for (const char* text : {"", "=", "refuses", "refuse=1", "close_after", "close_after=",
                             "close_after=-1", "close_after=3x", "latency=99999999999999999999"})
        EXPECT_THROW(parse_fault(text), std::invalid_argument) << text;
}

TEST(faults_test, connection_faults_count_the_commands_of_one_connection) {
    adapter_harness closing("can11", {"close_after=2"});
    EXPECT_THAT(closing.say("AT I"), HasSubstr(">"));
    EXPECT_THAT(closing.say("AT I"), HasSubstr(">"));
    EXPECT_FALSE(closing.adapter.wants_close(closing.now));
    EXPECT_EQ(closing.say("AT I"), "");
    EXPECT_TRUE(closing.adapter.wants_close(closing.now));
    closing.adapter.connection_opened(closing.now);
    EXPECT_THAT(closing.say("AT I"), HasSubstr(">"));

    adapter_harness stalling("can11", {"stall_after=1"});
    EXPECT_THAT(stalling.say("AT I"), HasSubstr(">"));
    EXPECT_TRUE(stalling.chunks("AT").empty());
    EXPECT_EQ(stalling.say(" I"), "");
    EXPECT_FALSE(stalling.adapter.wants_close(stalling.now));
}

// What one reply looks like under faults of form, echo off before.
TEST(faults_test, faults_of_form_change_just_that) {
    struct row {
        const char* fault;
        const char* command;
        const char* reply;
    };
    for (const row& r : {
             row{"echo_stuck", "AT I", "AT I\rELM327 v1.5\r\r>"},
             row{"text_after_prompt", "AT DPN", "A0\r\r>\r\nREADY\r\n"},
             row{"crlf", "AT I", "ELM327 v1.5\r\n\r\n>"},
             row{"clone", "AT I", "ELM327 v2.1\r\r>"},
             row{"clone", "AT PPS", "?\r\r>"},
             row{"buffer_full=5", "AT I", "ELM32BUFFER FULL\r\r>"},
             row{"no_bus", "01 00", "SEARCHING...\rUNABLE TO CONNECT\r\r>"},
             row{"ignition_off_at=0", "01 00", "SEARCHING...\rUNABLE TO CONNECT\r\r>"},
             row{"data_error=2", "01 01",
                 "SEARCHING...\r41 01 83 07 65 05\r41 01 00 04 00 00 <DATA ERROR\r\r>"},
             row{"can_error=1", "01 01", "SEARCHING...\rCAN ERROR\r\r>"},
             row{"wrong_pid=1", "01 51", "SEARCHING...\r41 50 01\r\r>"},
             row{"duplicate_reply=2", "AT I", "ELM327 v1.5\r\r>ELM327 v1.5\r\r>"},
         }) {
        adapter_harness car("can11", {r.fault});
        car.say("AT E0");
        std::string reply = car.say(r.command);
        if (std::string(r.fault) == "clone") {
            EXPECT_EQ(reply.substr(0, 2), std::string(2, '\0'));
            reply.erase(0, 2);
        }
        EXPECT_EQ(reply, r.reply) << r.fault;
    }
}

TEST(faults_test, padding_shows_fill_bytes_only_with_headers) {
    adapter_harness car("clean", {"padding"});
    car.say("AT E0");
    EXPECT_EQ(car.say("01 51"), "SEARCHING...\r41 51 01\r\r>");
    car.say("AT H1");
    EXPECT_EQ(car.say("01 51"), "7E8 03 41 51 01 AA AA AA AA\r\r>");
}

TEST(faults_test, faults_of_delivery_cut_hold_and_delay) {
    const auto reply = [](const char* fault) {
        adapter_harness car("can11", {fault}, 0);
        car.say("AT E0");
        car.now = std::chrono::milliseconds(1000);
        return car.chunks("AT I\r");
    };
    const std::string whole = "ELM327 v1.5\r\r>";
    EXPECT_EQ(reply("latency=70"), (std::vector<timed_chunk>{{1070, whole}}));
    EXPECT_EQ(reply("late_reply=2"), (std::vector<timed_chunk>{{5000, whole}}));
    EXPECT_EQ(reply("merge_replies=30"), (std::vector<timed_chunk>{{1030, whole}}));
    EXPECT_EQ(reply("split_prompt"),
              (std::vector<timed_chunk>{{1000, "ELM327 v1.5\r\r"}, {1050, ">"}}));
    const auto bytes = reply("one_byte_chunks");
    ASSERT_EQ(bytes.size(), whole.size());
    EXPECT_TRUE(std::all_of(bytes.begin(), bytes.end(),
                            [](const timed_chunk& c) { return c.text.size() == 1; }));
    EXPECT_EQ(adapter_harness::joined(bytes), whole);

    adapter_harness lines("can11", {"nagle"});
    EXPECT_FALSE(lines.adapter.sends_without_delay());
    lines.say("AT E0");
    lines.say("01 00");
    EXPECT_GT(lines.chunks("01 00\r").size(), 1u);
}

TEST(faults_test, merged_replies_come_in_one_piece) {
    adapter_harness car("can11", {"merge_replies"});
    car.say("AT E0");
    car.adapter.receive("AT I\r", car.now);
    car.now += std::chrono::milliseconds(20);
    const auto chunks = car.chunks("AT DPN\r");
    ASSERT_EQ(chunks.size(), 1u);
    EXPECT_EQ(chunks[0].text, "ELM327 v1.5\r\r>A0\r\r>");
}

TEST(faults_test, damaging_faults_damage_some_replies_and_spare_others) {
    for (const char* fault : {"garbage", "drop_bytes"}) {
        adapter_harness car("can11", {fault});
        car.say("AT E0");
        int damaged = 0;
        for (int i = 0; i < 200; ++i)
            damaged += car.say("AT I") != "ELM327 v1.5\r\r>";
        EXPECT_GT(damaged, 10) << fault;
        EXPECT_LT(damaged, 120) << fault;
    }
}

TEST(faults_test, ignition_going_off_silences_the_car_and_shows_in_the_voltage) {
    adapter_harness car("iso9141", {"ignition_off_at=60"});
    car.say("AT E0");
    car.say("01 00");
    car.now = std::chrono::seconds(59);
    EXPECT_THAT(car.say("01 0C"), HasSubstr("41 0C"));
    EXPECT_EQ(car.say("AT RV"), "14.1V\r\r>");
    car.now = std::chrono::seconds(61);
    EXPECT_EQ(car.say("01 0C"), "NO DATA\r\r>");
    EXPECT_EQ(car.say("AT RV"), "12.2V\r\r>");
    EXPECT_EQ(car.say("AT IGN"), "OFF\r\r>");
    car.say("AT PC");
    EXPECT_THAT(car.say("01 00"), HasSubstr("UNABLE TO CONNECT"));
}

TEST(faults_test, faults_combine) {
    adapter_harness car("can11", {"crlf", "echo_stuck", "split_prompt=5", "latency=10"});
    car.say("AT E0");
    const long start = car.now.count();
    EXPECT_EQ(car.chunks("AT I\r"),
              (std::vector<timed_chunk>{
                  {start, "AT I\r\n"}, {start + 10, "ELM327 v1.5\r\n\r\n"}, {start + 15, ">"}}));

    adapter_harness full("can11", {"crlf", "buffer_full=2"});
    full.say("AT E0");
    EXPECT_EQ(full.say("AT I"), "ELBUFFER FULL\r\n\r\n>");

    adapter_harness split("can11", {"split_prompt=5", "text_after_prompt", "duplicate_reply=2"});
    split.say("AT E0");
    const long asked = split.now.count();
    EXPECT_EQ(split.chunks("AT DPN\r"),
              (std::vector<timed_chunk>{{asked, "A0\r\r"},
                                        {asked + 5, ">\r\nREADY\r\nA0\r\r"},
                                        {asked + 10, ">\r\nREADY\r\n"}}));
}

// Asked with headers on and blanks off, after a first request.
TEST(faults_test, digit_and_several_parameters_meet_adapters_and_cars_of_every_kind) {
    const std::string three = "7E8100941044F053D0B\r7E8211F1129AAAAAAAA\r\r>";
    struct row {
        const char* fault;
        const char* command;
        std::string reply;
    };
    for (const row& r : {
             row{"latency=0", "0104050B11", three},
             row{"latency=0", "0104050B112", three},
             row{"latency=0", "0104050B111", "7E8100941044F053D0B\r\r>"},
             row{"digit_counts_messages", "0104050B111", three},
             row{"digit_ignored", "0104050B111", three},
             row{"digit_unknown", "01041", "?\r\r>"},
             row{"digit_no_data", "01041", "NO DATA\r\r>"},
             row{"two_bytes", "0104050B11", "7E80341044F\r\r>"},
             row{"zero_bytes", "010405", "7E8100841044F00BE3F\r7E821B813AAAAAAAAAA\r\r>"},
             row{"first_pid_only", "0104050B11", "7E80341044F\r\r>"},
             row{"pids_reordered", "010405", "7E80541053D044F\r\r>"},
             row{"several_refused", "010405", "7E8037F0112\r\r>"},
             row{"several_refused", "0104", "7E80341044F\r\r>"},
             row{"wrong_length", "010405", "7E80641044F053D00\r\r>"},
             row{"pending=1", "0104", "7E8037F0178\r7E80341044F\r\r>"},
         }) {
        adapter_harness car("clean", {r.fault});
        for (const char* command : {"AT E0", "AT H1", "AT S0", "01 00"})
            car.say(command);
        EXPECT_EQ(car.say(r.command), r.reply) << r.fault;
    }
}

// What a reply was ended before meets the next request, on each bus in its own way.
TEST(faults_test,
     frames_behind_an_early_end_are_late_on_can_repeated_on_j1850_and_collide_on_k_lines) {
    struct row {
        const char* car;
        const char* fault;
        const char* first;
        const char* next;
        const char* reply;
    };
    for (const row& r : {
             row{"can11", "latency=0", "01 01 1", "01 51", "7E906410100040000\r7E803415101\r\r>"},
             row{"can11", "late_frames_lost", "01 01 1", "01 51", "7E803415101\r\r>"},
             row{"vpw", "latency=0", "01 01 1", "01 1C",
                 "486B1841010004000048\r486B10411C012F\r486B18411C01B3\r\r>"},
             row{"kwp_slow", "unit_gap=150", "AT DP", "01 1C", "FB ERROR\r\r>"},
         }) {
        adapter_harness car(r.car, {r.fault}, std::nullopt);
        for (const char* command : {"AT E0", "AT H1", "AT S0", "01 00", r.first})
            car.say(command);
        EXPECT_EQ(car.say(r.next), r.reply) << r.car;
    }
}

// The chip stops listening when AT ST says so, and with AT AT2 when the last reply was shorter.
TEST(faults_test, a_short_time_out_loses_answers) {
    const auto lines = [](adapter_harness& car, const char* command) {
        car.now += std::chrono::seconds(1); // nothing is late any more
        const std::string reply = car.say(command);
        return std::count(reply.begin(), reply.end(), '\r') - 1;
    };
    adapter_harness slow("can11", {"unit_gap"}, std::nullopt);
    slow.say("AT E0");
    slow.say("AT AT0");
    EXPECT_EQ(slow.say("AT ST 01"), "OK\r\r>");
    slow.say("01 00");
    EXPECT_EQ(slow.say("01 0C"), "NO DATA\r\r>");
    slow.say("AT ST 00");
    EXPECT_EQ(lines(slow, "01 0C"), 2);
    slow.say("AT AT1");
    slow.say("01 04"); // one unit
    EXPECT_EQ(lines(slow, "01 0C"), 2);
    slow.say("AT AT2");
    slow.say("01 04");
    EXPECT_EQ(lines(slow, "01 0C"), 1);
}

TEST(faults_test, pauses_serial_line_and_radio_take_their_time) {
    const auto exchange = [](const char* car_name, int baud, int round_trip) {
        adapter_harness car(car_name, {}, std::nullopt);
        adapter_options options;
        options.baud = baud;
        options.round_trip = std::chrono::milliseconds(round_trip);
        virtual_adapter adapter(car.the_car, options);
        long took = 0, now = 0;
        for (const char* command :
             {"AT E0\r", "AT H1\r", "AT S0\r", "01001\r", "01041\r", "01041\r"}) {
            const long began = now;
            adapter.receive(command, std::chrono::milliseconds(now));
            while (const auto due = adapter.next_output()) {
                now = due->count();
                adapter.take_output(*due);
            }
            took = now - began;
        }
        return took;
    };
    EXPECT_EQ(exchange("clean", 0, 0), 9);
    EXPECT_EQ(exchange("clean", 38400, 0), 15); // 20 characters
    EXPECT_EQ(exchange("clean", 115200, 0), 11);
    EXPECT_EQ(exchange("clean", 0, 31), 40);
    EXPECT_EQ(exchange("iso9141", 0, 0), 144); // as fast as ISO 9141-2 allows
    EXPECT_EQ(exchange("pwm", 0, 0), 135);
}

} // namespace
