// Time and interruption in the dialogue with the adapter.
#include "adapter_harness.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

// Milliseconds from the command to the prompt.
long duration(adapter_harness& car, const std::string& command) {
    const long start = car.now.count();
    const auto chunks = car.chunks(command + "\r");
    return chunks.back().at - start;
}

TEST(dialogue_test, without_latency_everything_is_due_at_once_in_one_piece) {
    adapter_harness car("iso9141");
    const auto chunks = car.chunks("01 00\r");
    ASSERT_EQ(chunks.size(), 1u);
    EXPECT_EQ(chunks[0],
              (timed_chunk{0, "01 00\rSEARCHING...\rBUS INIT: ...OK\r41 00 BE 1F B8 11\r\r>"}));
}

TEST(dialogue_test, a_genuine_search_and_slow_initiation_take_seconds_and_show_their_progress) {
    adapter_harness car("iso9141", {}, std::nullopt);
    car.say("AT E0");
    const auto chunks = car.chunks("01 00\r");
    ASSERT_GT(chunks.size(), 5u);
    EXPECT_EQ(chunks.front().text, "SEARCHING...");
    EXPECT_GT(chunks.back().at, 3000);
    EXPECT_LT(chunks.back().at, 8000);
}

TEST(dialogue_test, timing_follows_bus_settings_and_expected_replies) {
    adapter_harness can("can11", {}, std::nullopt);
    can.say("01 00");
    const long adaptive = duration(can, "01 0C");
    const long counted = duration(can, "01 0C 2");
    can.say("AT AT0");
    const long waiting = duration(can, "01 0C");
    EXPECT_LT(counted, adaptive);
    EXPECT_LT(adaptive, waiting);
    EXPECT_GE(waiting, 200); // the default of AT ST
    can.say("AT ST FF");
    EXPECT_GE(duration(can, "01 0C"), 1020);

    adapter_harness k_line("iso9141", {}, std::nullopt);
    k_line.say("01 00");
    EXPECT_GT(duration(k_line, "01 0C"), adaptive);

    adapter_harness fixed("can11", {}, 250);
    fixed.say("01 00");
    EXPECT_EQ(duration(fixed, "01 0C"), 250);
}

TEST(dialogue_test, a_character_while_the_car_is_asked_stops_that) {
    adapter_harness car("can11", {}, std::nullopt);
    car.say("AT E0");
    car.say("01 00");
    car.adapter.receive("01 0C\r", car.now);
    car.now += 3ms;
    EXPECT_EQ(adapter_harness::joined(car.chunks("0")), "\rSTOPPED\r\r>");
    EXPECT_EQ(car.say("AT I"), "ELM327 v1.5\r\r>");
    EXPECT_EQ(car.say("01 51"), "41 51 01\r\r>");
}

TEST(dialogue_test, a_search_that_was_stopped_has_found_nothing) {
    adapter_harness car("diesel", {}, std::nullopt);
    car.say("AT E0");
    car.adapter.receive("01 00\r", car.now);
    car.now += 100ms;
    EXPECT_EQ(adapter_harness::joined(car.chunks("0")), "\rSTOPPED\r\r>");
    EXPECT_EQ(car.say("AT DPN"), "A0\r\r>");
    EXPECT_EQ(car.say("01 00"), "SEARCHING...\rBUS INIT: OK\r41 00 98 3B 00 11\r\r>");
    EXPECT_EQ(car.say("AT DPN"), "A5\r\r>");
}

TEST(dialogue_test, single_bytes_of_a_stopped_reply_delay_nothing_after_it) {
    adapter_harness car("diesel", {"one_byte_chunks"}, std::nullopt);
    car.say("AT E0");
    car.adapter.receive("01 00\r", car.now);
    car.now += 3ms;
    const long stopped = car.now.count();
    const auto chunks = car.chunks("0");
    EXPECT_EQ(adapter_harness::joined(chunks), "\rSTOPPED\r\r>");
    EXPECT_LT(chunks.back().at, stopped + 50);
}

TEST(dialogue_test, a_command_never_finished_is_given_up) {
    adapter_harness car;
    car.say("AT E0");
    const auto chunks = car.chunks("01 0");
    ASSERT_EQ(chunks.size(), 1u);
    EXPECT_EQ(chunks[0], (timed_chunk{20000, "\r?\r\r>"}));
    EXPECT_EQ(car.say("AT I"), "ELM327 v1.5\r\r>");
}

TEST(dialogue_test, line_feeds_join_carriage_returns_everywhere) {
    adapter_harness car;
    EXPECT_EQ(car.say("AT L1"), "AT L1\rOK\r\n\r\n>");
    EXPECT_EQ(car.say("AT I"), "AT I\r\nELM327 v1.5\r\n\r\n>");
    EXPECT_EQ(car.say("AT Z"), "AT Z\r\n\r\n\r\nELM327 v1.5\r\r>");
}

TEST(dialogue_test, commands_in_one_write_are_answered_in_order_and_noise_is_passed_over) {
    adapter_harness car;
    car.say("AT E0");
    EXPECT_EQ(adapter_harness::joined(car.chunks(std::string("AT I\r\n\0AT DPN\r", 14))),
              "ELM327 v1.5\r\r>A0\r\r>");
    EXPECT_EQ(car.say("AT QX\b\bI"), "ELM327 v1.5\r\r>");
    EXPECT_EQ(car.say(std::string(5000, 'A')), "?\r\r>");
    for (int byte = 0; byte < 256; ++byte)
        car.chunks(std::string(3, char(byte)) + "\r");
    EXPECT_EQ(car.say("AT I").substr(0, 11), "ELM327 v1.5");
}

TEST(dialogue_test, settings_and_cleared_codes_outlive_a_connection) {
    adapter_harness car;
    car.say("AT E0");
    car.say("04");
    car.adapter.receive("01 0", car.now);
    car.adapter.connection_opened(car.now);
    EXPECT_EQ(car.say("03"), "43 00\r43 00\r\r>");
}

TEST(dialogue_test, same_seed_bytes_and_times_give_the_same_output) {
    const std::vector<std::string> faults = {"garbage=50", "drop_bytes=5", "one_byte_chunks",
                                             "duplicate_reply"};
    const auto talk = [&faults](std::uint64_t seed) {
        adapter_harness car("can11", faults, std::nullopt, seed);
        std::vector<timed_chunk> all;
        for (const char* command :
             {"AT Z", "AT E0", "01 00", "01 0C", "03", "01 05", "09 02", "01 0C"})
            for (const timed_chunk& chunk : car.chunks(std::string(command) + "\r"))
                all.push_back(chunk);
        return all;
    };
    EXPECT_EQ(talk(7), talk(7));
    EXPECT_NE(talk(7), talk(8));
}

// Whatever is typed, each line gets one prompt and the adapter stays usable.
TEST(dialogue_test, any_mixture_of_commands_gets_one_prompt_each) {
    const std::vector<std::string> parts = {"AT", "SP ", "SH ", "CRA", "CF ", "CAF",  "H",   "S",
                                            "D",  "PP",  "0",   "1",   "2",   "7E0",  "18",  "DA",
                                            "F1", "01",  "03",  "09",  "02",  "00",   "20",  "FF",
                                            "A",  "SV ", "ON",  "TP",  "PC",  "ST ",  "BD",  "KW",
                                            "@3", "6",   "3",   "E",   "L",   "7DF ", "CP ", "CM "};
    seeded_random random(3);
    for (const std::string& name : car_names()) {
        adapter_harness car(name);
        for (int i = 0; i < 400; ++i) {
            std::string command = random.happens(60) ? "AT" : "";
            for (auto left = int(random.between(1, 5)); left > 0; --left)
                command += parts[std::size_t(random.between(0, double(parts.size())))];
            const std::string reply = car.say(command);
            EXPECT_EQ(std::count(reply.begin(), reply.end(), '>'), 1) << name << ": " << command;
        }
        car.say("AT Z");
        EXPECT_NE(car.say("AT I").find("ELM327 v1.5"), std::string::npos) << name;
    }
}

} // namespace
