#include "rows.h"
#include "test_paths.h"
#include "virtual_car_options.h"

#include <gtest/gtest.h>

namespace {

TEST(virtual_car_options_test, every_option_reaches_its_place) {
    const std::vector<std::string> arguments = {
        "--port",    "0",         "--car=diesel", "--protocol",
        "j1850_vpw", "--latency", "12",           "--speed",
        "2.5",       "--timing",  "0.5",          "--seed",
        "99",        "--fault",   "crlf",         "--fault=close_after=4",
        "--stdio",   "--address", "::1"};
    const virtual_car_options o = read_options(arguments);
    EXPECT_EQ(o.port, 0);
    EXPECT_EQ(o.car, "diesel");
    EXPECT_EQ(o.protocol, "j1850_vpw");
    EXPECT_EQ(o.adapter.latency, std::chrono::milliseconds(12));
    EXPECT_EQ(o.adapter.speed, 2.5);
    EXPECT_EQ(o.adapter.timing, 0.5);
    EXPECT_EQ(o.adapter.seed, 99u);
    EXPECT_TRUE(o.adapter.faults.has(fault_kind::crlf));
    EXPECT_EQ(o.adapter.faults.value(fault_kind::close_after), 4);
    EXPECT_TRUE(o.stdio);
    EXPECT_EQ(o.address, "::1");
}

TEST(virtual_car_options_test, what_cannot_be_meant_is_refused) {
    for (const table_row& row : read_rows(test_data("refused_options.rows")))
        EXPECT_THROW(read_options(row.fields), usage_error) << row.place;
}

} // namespace
