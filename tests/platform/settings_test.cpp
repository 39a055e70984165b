#include "bundle.h"
#include "notification_center.h"
#include "qt_warnings.h"
#include "saturate.h"
#include "user_defaults.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class settings_file : public testing::Test {
  protected:
    QTemporaryDir folder;
    std::string path = folder.filePath(QStringLiteral("sub/kestrom.conf")).toStdString();
};

TEST_F(settings_file, values_keep_type_and_text_over_a_restart) {
    const std::string odd = "a, b; \"c\" = ä\\n [x] %00";
    {
        user_defaults store(path);
        store.set_integer("number", 7);
        store.set_integer("number", -42);
        store.set_boolean("yes", true);
        store.set_boolean("no", false);
        store.set_integer("one", 1);
        store.set_string("text", odd);
        store.set_string("empty", "");
        store.set_string_array("list", {"0D", "11"});
        store.set_string_array("single", {"0C"});
        store.set_string_array("none", {});
        ASSERT_TRUE(store.synchronize());
    }
    const user_defaults store(path);
    EXPECT_EQ(store.integer("number"), -42);
    EXPECT_TRUE(store.boolean("yes"));
    EXPECT_TRUE(store.boolean("one"));
    EXPECT_FALSE(store.boolean("no"));
    EXPECT_TRUE(store.contains("no"));
    EXPECT_EQ(store.string("text"), odd);
    EXPECT_TRUE(store.contains("empty"));
    using list = std::vector<std::string>;
    EXPECT_EQ(store.string_array("list"), (list{"0D", "11"}));
    EXPECT_EQ(store.string_array("single"), list{"0C"});
    EXPECT_EQ(store.string_array("none"), list{}); // empty, not absent
    EXPECT_EQ(store.string_array("absent"), std::nullopt);
    EXPECT_EQ(store.integer("absent"), 0);
    EXPECT_FALSE(store.boolean("absent"));
}

TEST_F(settings_file, rubbish_in_the_file_reads_as_absent_values) {
    const std::string plain = folder.filePath(QStringLiteral("rubbish.conf")).toStdString();
    QFile file(QString::fromStdString(plain));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    // After a lone "[" the reader invents the key "/wifi_port".
    constexpr char RUBBISH[] = "\x00\xff\xfe[[[=\n==\nKS_interface=six\n[\nwifi_port=1\n[x]\n";
    file.write(RUBBISH, sizeof RUBBISH - 1);
    file.close();
    expect_warning("could not be read whole");
    user_defaults store(plain);
    EXPECT_EQ(store.integer("KS_interface"), 0);
    ASSERT_TRUE(store.synchronize());
    EXPECT_FALSE(user_defaults(plain).contains("wifi_port"));
}

TEST_F(settings_file, a_store_that_cannot_be_written_says_so_and_keeps_its_values) {
    expect_warning("could not be written");
    user_defaults store("/proc/kestrom/kestrom.conf");
    store.set_integer("number", 7);
    EXPECT_FALSE(store.synchronize());
    EXPECT_EQ(store.integer("number"), 7);
}

TEST(resources, missing_tables_and_keys_are_nothing_and_empty) {
    const bundle shipped(":/kestrom", "en_GB");
    EXPECT_EQ(shipped.resource_text("no_such_table", "txt"), std::nullopt);
    EXPECT_TRUE(shipped.resource_text("readinessLabels", "txt").has_value());
    EXPECT_EQ(shipped.localized("no_such_key"), "");
    EXPECT_FALSE(shipped.localized("KS_help").empty());
    // A language without a table of its own reads English.
    EXPECT_EQ(bundle(":/kestrom", "fi_FI").localized("KS_help"), shipped.localized("KS_help"));
}

TEST(notifications, observers_may_leave_while_one_is_told) {
    notification_center center;
    int told = 0;
    notification_center::observer_id second = 0;
    center.add_observer("a", [&](const std::string&) {
        ++told;
        center.remove_observer(second);
    });
    second = center.add_observer("a", [&](const std::string&) { told += 100; });
    center.post("a", "x");
    center.post("b", "x");
    EXPECT_EQ(told, 1);
}

TEST(saturating, doubles_outside_int_stop_at_its_ends) {
    const std::pair<double, int> cases[] = {{2.9, 2},
                                            {-2.9, -2},
                                            {1e300, INT_MAX},
                                            {-1e300, INT_MIN},
                                            {INFINITY, INT_MAX},
                                            {NAN, 0},
                                            {2147483647.0, INT_MAX}};
    for (const auto& [from, to] : cases)
        EXPECT_EQ(saturating_int(from), to) << from;
}

} // namespace
