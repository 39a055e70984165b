// The sheet in its renderings: the same content in each, and foreign text as text.
#include "report_fixture.h"
#include "sheet.h"
#include "text.h"

#include <gtest/gtest.h>
#include <iostream>

namespace {

TEST(sheet, DISABLED_show) {
    const char* name = std::getenv("CAR");
    car_on_the_bench bench(name ? name : "can11");
    const bundle texts(":/kestrom", "en_US");
    std::cout << sheet_text(sheet_of(bench.read(), texts));
}

} // namespace
