// Car files: those that come with the program, and what is said of broken ones.
#include "adapter_harness.h"
#include "car_library.h"
#include "car_truth.h"
#include "standard_values.h"

#include <gtest/gtest.h>
#include <set>

namespace {

constexpr char GOOD[] = R"({
  "title": "a car",
  "protocol": "can_11_500",
  "engine": { "fuel": "petrol" },
  "units": [
    {
      "name": "Engine",
      "address": "7E8",
      "pids": "0C 0D",
      "stored": ["P0301"]
    }
  ]
}
)";

std::string with(const std::string& from, const std::string& to) {
    std::string text = GOOD;
    const std::size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return text.replace(at, from.size(), to);
}

TEST(car_file_test, a_broken_file_is_named_with_line_and_reason) {
    struct row {
        const char* name;
        std::string text;
        int line;
        const char* reason; // part of it
    };
    const row rows[] = {
        {"empty", "", 1, "syntax error"},
        {"no comma", with("\"can_11_500\",", "\"can_11_500\""), 4, "syntax error"},
        {"cut off", std::string(GOOD).substr(0, 90), 5, "syntax error"},
        {"name twice", with("\"title\": \"a car\",", "\"title\": \"a car\",\n\"title\": \"b\","), 3,
         "\"title\" stands twice"},
        {"too deep", std::string(1000000, '['), 1, "nested too deeply"},
        {"no object", "[1]", 1, "must be of type object"},
        {"member missing", with("\"engine\": { \"fuel\": \"petrol\" },", ""), 1,
         "lacks \"engine\""},
        {"unknown member", with("\"stored\"", "\"sotred\""), 10,
         "units[0].sotred is not a known name"},
        {"wrong type", with("\"7E8\"", "2024"), 8,
         "units[0].address must be of type string, not number"},
        {"unknown protocol", with("can_11_500", "can_12"), 3, "not one of j1850_pwm"},
        {"no code", with("P0301", "P4301"), 10, "units[0].stored[0] is \"P4301\""},
        {"address of another bus", with("7E8", "10"), 8, "does not fit can_11_500"},
        {"PID without value", with("0C 0D", "0C FE"), 9, "PID FE has no value"},
        {"PID twice", with("0C 0D", "0D 0D"), 9, "PID 0D stands twice"},
        {"short value", with("\"stored\"", "\"fixed\": { \"0C\": \"01\" },\n\"stored\""), 10,
         "PID 0C has 2 bytes, not 1"},
        {"monitor of the other engine",
         with("\"stored\"", "\"readiness\": {\n\"complete\": "
                            "[\"misfire\",\n\"particulate_filter\"] }, \"stored\""),
         12, "a spark-ignition engine has no monitor \"particulate_filter\""},
        {"number out of range", with("\"petrol\"", "\"petrol\",\n\"mass_kg\": 20\n"), 5,
         "engine.mass_kg is 20, below"},
        {"VIN with a letter O",
         with("\"protocol\"", "\"vin\": \"WKEOT16A5B4112230\",\n\"protocol\""), 3, "vin is"},
        {"text behind the end", std::string(GOOD) + "x", 14, "syntax error"},
    };
    for (const row& r : rows) {
        try {
            read_car(r.text, "some/car.json");
            ADD_FAILURE() << r.name << ": accepted";
        } catch (const car_file_error& error) {
            EXPECT_EQ(error.line(), r.line) << r.name << ": " << error.what();
            EXPECT_EQ(
                std::string(error.what()).find("some/car.json:" + std::to_string(r.line) + ": "),
                0u)
                << r.name;
            EXPECT_NE(error.reason().find(r.reason), std::string::npos)
                << r.name << ": " << error.what();
        }
    }
    EXPECT_EQ(read_car(GOOD, "some/car.json").name, "car");
}

TEST(car_file_test, a_car_that_is_not_there_is_an_error_without_line) {
    for (const char* name :
         {"", "nobody", "/no/such/file.json", "car.schema", ".", "../cars/can11"}) {
        try {
            load_car(name);
            ADD_FAILURE() << name;
        } catch (const car_file_error& error) {
            EXPECT_EQ(error.line(), 0) << name;
        }
    }
}

// Every car of the shelf answers what its file says, over its own bus.
TEST(car_file_test, cars_of_the_shelf_answer_their_codes_and_supported_values) {
    const std::vector<std::string> names = car_names();
    EXPECT_GE(names.size(), 12u);
    std::set<int> buses;
    for (const std::string& name : names) {
        adapter_harness car({.car_name = name});
        buses.insert(car.the_car.protocol);
        car.say("AT E0");
        car.say("01 00");
        std::string announced;
        for (const control_unit& unit : car.the_car.units) {
            for (const int pid : unit.pids) {
                char request[16];
                std::snprintf(request, sizeof request, "01 %02X", unsigned(pid));
                EXPECT_EQ(whole_answer(car.say(request)).substr(0, 4),
                          std::string("41") + (request + 3))
                    << name;
            }
            if (unit.address == 0x7E8 || unit.address == 0x10)
                announced =
                    std::to_string(unsigned(announced_codes(unit)) | (unit.lamp ? 0x80u : 0u));
        }
        const std::string status = car.say("01 01");
        EXPECT_EQ(std::to_string(std::stoul(status.substr(6, 2), nullptr, 16)), announced) << name;
    }
    EXPECT_EQ(buses.size(), bus_protocols().size());
}

TEST(car_file_test, a_car_can_be_moved_to_any_bus) {
    for (const bus_protocol& bus : bus_protocols()) {
        adapter_harness car({.car_name = "three_units"});
        change_protocol(car.the_car, bus);
        car.say("AT E0");
        EXPECT_NE(
            car.say("01 01").find("41 01 82 07 65 05\r41 01 83 04 00 00\r41 01 01 04 00 00\r\r>"),
            std::string::npos)
            << bus.name;
        EXPECT_EQ(car.say("AT DP"), "AUTO, " + std::string(bus.description) + "\r\r>");
    }
}

} // namespace
