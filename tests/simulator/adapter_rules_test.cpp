// What no single conversation can show.
#include "adapter_harness.h"
#include "text.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

TEST(adapter_rules, names_and_values_of_faults_are_read_or_refused) {
    const std::pair<const char*, fault> good[] = {
        {"refuse", {fault_kind::refuse, 0}},
        {"close_after=3", {fault_kind::close_after, 3}},
        {"split_prompt", {fault_kind::split_prompt, 50}},
        {"ignition_off_at=0", {fault_kind::ignition_off_at, 0}}};
    for (const auto& [text, expected] : good) {
        EXPECT_EQ(parse_fault(text).kind, expected.kind) << text;
        EXPECT_EQ(parse_fault(text).value, expected.value) << text;
    }
    for (const char* text : {"", "=", "refuses", "refuse=1", "close_after", "close_after=",
                             "close_after=-1", "close_after=3x", "latency=99999999999999999999"})
        EXPECT_THROW(parse_fault(text), std::invalid_argument) << text;
}

TEST(adapter_rules, damaging_faults_damage_some_replies_and_spare_others) {
    for (const char* fault : {"garbage", "drop_bytes"}) {
        adapter_harness car({.faults = {fault}});
        car.say("AT E0");
        int damaged = 0;
        for (int i = 0; i < 2000; ++i)
            if (const std::string reply = car.say("AT I"); reply != "ELM327 v1.5\r\r>") {
                ++damaged;
                EXPECT_LE(std::ranges::count(reply, '>'), 1) << "rubbish ends no reply";
            }
        EXPECT_GT(damaged, 100) << fault;
        EXPECT_LT(damaged, 1200) << fault;
    }
}

TEST(adapter_rules, the_number_of_a_frame_begins_again_at_0) {
    adapter_harness car;
    car.the_car.units[0].stored.assign(60, "P0101");
    car.say("AT E0");
    car.say("AT H1");
    EXPECT_NE(car.say("03").find("\r7E8 20 01 01 "), std::string::npos);
}

TEST(adapter_rules, one_seed_gives_one_conversation) {
    const auto talk = [](std::uint64_t seed) {
        adapter_harness car(
            {.faults = {"garbage=50", "drop_bytes=5", "one_byte_chunks", "duplicate_reply"},
             .latency = std::nullopt,
             .seed = seed});
        std::vector<timed_chunk> all;
        for (const char* command : {"AT Z", "AT E0", "01 00", "01 0C", "03", "01 05", "01 0C"})
            for (const timed_chunk& chunk : car.chunks(std::string(command) + "\r"))
                all.push_back(chunk);
        return all;
    };
    EXPECT_EQ(talk(7), talk(7));
    EXPECT_NE(talk(7), talk(8));
}

// Whatever is typed, each line gets one prompt and the adapter stays usable.
TEST(adapter_rules, any_mixture_of_commands_gets_one_prompt_each) {
    auto parts =
        split("AT|SP |SH |CRA|CF |CAF|H|S|D|PP|0|1|2|7E0|18|DA|F1|01|03|09|02|00|20|FF|A|SV |ON|TP|"
              "PC|ST |BD|KW|@3|6|3|E|L|7DF|CP |CM ",
              "|");
    const std::string long_one(300, 'A');
    parts.push_back(long_one);
    seeded_random random(3);
    for (const std::string& name : car_names()) {
        adapter_harness car({.car_name = name});
        for (int i = 0; i < 400; ++i) {
            std::string command = random.happens(60) ? "AT" : "";
            for (auto left = int(random.between(1, 5)); left > 0; --left)
                command += parts[std::size_t(random.between(0, double(parts.size())))];
            const std::string reply = car.say(command);
            EXPECT_EQ(std::count(reply.begin(), reply.end(), '>'), 1) << name << ": " << command;
        }
        for (int byte = 0; byte < 256; ++byte)
            car.chunks(std::string(3, char(byte)) + "\r");
        car.say("AT Z");
        EXPECT_NE(car.say("AT I").find("ELM327 v1.5"), std::string::npos) << name;
    }
}

} // namespace
