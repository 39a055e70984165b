// What is compiled into the programs is found below ":/kestrom", without any call to bring it in.
#include "bundle.h"

#include <gtest/gtest.h>

TEST(resources, every_table_is_compiled_in) {
    const bundle shipped;
    for (const char* name : {"FIELD_PIDS_0", "FIELD_PIDS_1", "FIELD_PIDS_2", "OBD_MODES", "OBD_FUEL_TYPE",
                             "OBDMID_CAN", "TID_CAN", "readinessLabels"})
        EXPECT_TRUE(shipped.resource_text(name, "txt").has_value()) << name;
    EXPECT_FALSE(shipped.resource_text("no_such_table", "txt").has_value());
}

TEST(resources, texts_come_in_the_users_language_or_else_in_english) {
    struct row {
        const char* locale;
        const char* boost;
    };
    for (const row& each : {row{"en_GB", "Boost Pressure"}, row{"ja_JP", "Boost Pressure"}})
        EXPECT_EQ(bundle(":/kestrom", each.locale).localized("FIELD_ENGINE_BOOST"), each.boost) << each.locale;
    EXPECT_EQ(bundle(":/kestrom", "en_US").localized("no_such_key"), "");
}
