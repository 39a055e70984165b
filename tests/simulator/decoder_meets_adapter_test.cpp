// What the toolkit reads out of the virtual adapter's replies is what stands in the cars' files.
#include "adapter_harness.h"
#include "globalVars.h"
#include "mac_toolies.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::UnorderedElementsAreArray;

std::string spaceless(std::string text) {
    std::erase(text, ' ');
    return text;
}

class decoder_meets_adapter_test : public testing::TestWithParam<std::string> {
  protected:
    decoder_meets_adapter_test() {
        car.say("AT E0");
        car.say("01 00");
        g_cur_protocol = std::string_view(car.say("AT DP"));
    }
    ~decoder_meets_adapter_test() override { g_cur_protocol.clear(); }

    adapter_harness car{GetParam()};
};

TEST_P(decoder_meets_adapter_test, codes_are_those_of_the_file) {
    std::vector<std::string> truth;
    bool silent = true;
    for (const control_unit& unit : car.the_car.units) {
        truth.insert(truth.end(), unit.stored.begin(), unit.stored.end());
        silent = silent && !unit.silent_services.empty();
        // Before CAN a unit without codes fills a line with zeros, which is read as one code.
        if (unit.stored.empty() && !silent && !protocol_numbered(car.the_car.protocol)->is_can())
            truth.push_back("P0000");
    }
    EXPECT_THAT(mac_toolies::work_reply_to_error_codes_pid("03", spaceless(car.say("03"))),
                UnorderedElementsAreArray(truth));
}

TEST_P(decoder_meets_adapter_test, supported_values_are_those_of_the_engine) {
    car.say("AT H1");
    std::string reply = spaceless(car.say("01 00"));
    std::erase(reply, '>');
    mac_toolies::handle_00_replies(reply, 0);
    for (int pid = 2; pid <= 0x1F; ++pid) {
        char text[4];
        std::snprintf(text, sizeof text, "%02X", unsigned(pid));
        const std::vector<int>& known = car.the_car.units.front().pids;
        EXPECT_EQ(mac_toolies::is_this_code_available(g_Supported_obd_mask_0, text, 0),
                  std::find(known.begin(), known.end(), pid) != known.end())
            << text;
    }
}

TEST_P(decoder_meets_adapter_test, vehicle_number_is_that_of_the_file) {
    if (car.the_car.vin.empty())
        GTEST_SKIP() << "this car does not tell";
    for (const control_unit& unit : car.the_car.units)
        if (unit.answers.contains("0902"))
            GTEST_SKIP() << "two units tell one, in frames between each other's";
    EXPECT_EQ(mac_toolies::work_out_vin(car.say("09 02")), car.the_car.vin);
}

INSTANTIATE_TEST_SUITE_P(all, decoder_meets_adapter_test, testing::ValuesIn(car_names()),
                         [](const auto& name) { return name.param; });

} // namespace
