// Car files: those that come with the program, and what is said of broken ones.
#include "adapter_harness.h"
#include "car_library.h"
#include "car_truth.h"
#include "rows.h"
#include "standard_values.h"
#include "test_paths.h"

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

void expect_refused(const std::string& text, int line, const std::string& reason) {
    try {
        read_car(text, "some/car.json");
        ADD_FAILURE() << "accepted";
    } catch (const car_file_error& error) {
        EXPECT_EQ(error.line(), line) << error.what();
        EXPECT_EQ(std::string(error.what()).find("some/car.json:" + std::to_string(line) + ": "),
                  0u);
        EXPECT_NE(error.reason().find(reason), std::string::npos) << error.what();
    }
}

TEST(car_file_test, a_broken_file_is_named_with_line_and_reason) {
    const std::string good = GOOD;
    expect_refused("", 1, "syntax error");
    expect_refused(good.substr(0, 90), 5, "syntax error");
    expect_refused(std::string(1000000, '['), 1, "nested too deeply");
    expect_refused("[1]", 1, "must be of type object");
    expect_refused(good + "x", 14, "syntax error");
    for (const table_row& row : read_rows(test_data("broken_cars.rows"))) {
        SCOPED_TRACE(row.place);
        std::string text = good;
        ASSERT_NE(text.find(row.fields[0]), std::string::npos);
        text.replace(text.find(row.fields[0]), row.fields[0].size(), row.fields[1]);
        expect_refused(text, std::stoi(row.fields[2]), row.fields[3]);
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
