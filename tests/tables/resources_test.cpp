// What is compiled into the programs is found below ":/kestrom", without any call to bring it in.
#include "bundle.h"
#include "test_paths.h"

#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <cctype>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <vector>

namespace {

using string_table = std::map<std::string, std::string>; // key to text

// The source of a language's strings table; a text still marked as unfinished counts as missing.
string_table read_strings(const std::string& language) {
    QFile file(
        QString::fromStdString(source_file("resources/strings/kestrom_") + language + ".ts"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << language;
    string_table result;
    std::string key;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("message")) {
            key = xml.attributes().value(QLatin1String("id")).toString().toStdString();
        } else if (xml.name() == QLatin1String("translation") &&
                   !xml.attributes().hasAttribute(QLatin1String("type"))) {
            EXPECT_TRUE(result.emplace(key, xml.readElementText().toStdString()).second)
                << key << " stands twice in " << language;
        }
    }
    EXPECT_FALSE(xml.hasError()) << language << ": " << xml.errorString().toStdString();
    return result;
}

// "%1", "%d", "%@" and the like in a text, sorted: translators may move them but neither drop nor
// change them.
std::multiset<std::string> placeholders(const std::string& text) {
    static const QRegularExpression form(QStringLiteral("%(L?[0-9]+|@|[-0-9.]*l*[a-zA-Z%])"));
    std::multiset<std::string> result;
    for (auto matches = form.globalMatch(QString::fromStdString(text)); matches.hasNext();)
        result.insert(matches.next().captured().toStdString());
    return result;
}

// The letter after "&" in lower case; NUL if none.
char mnemonic(const std::string& text) {
    const auto mark = text.find('&');
    if (mark == std::string::npos || mark + 1 == text.size())
        return '\0';
    return static_cast<char>(std::tolower(static_cast<unsigned char>(text[mark + 1])));
}

} // namespace

TEST(resources, every_table_is_compiled_in) {
    const bundle shipped;
    for (const char* name :
         {"P0_Codes", "FIELD_PIDS_0", "FIELD_PIDS_1", "FIELD_PIDS_2", "OBD_MODES", "OBD_FUEL_TYPE",
          "OBDMID_CAN", "TID_CAN", "readinessLabels"}) {
        QFile source(
            QString::fromStdString(source_file("resources/tables/") + std::string(name) + ".txt"));
        ASSERT_TRUE(source.open(QIODevice::ReadOnly)) << name;
        EXPECT_EQ(shipped.resource_text(name, "txt"), source.readAll().toStdString()) << name;
    }
    EXPECT_FALSE(shipped.resource_text("no_such_table", "txt").has_value());
}

TEST(resources, texts_come_in_the_users_language_or_else_in_english) {
    struct row {
        const char* locale;
        const char* boost;
    };
    for (const row& each :
         {row{"en_GB", "Boost Pressure"}, row{"de_AT", "Ladedruck"},
          row{"fr_CA", "Pression de suralimentation"}, row{"es", "Presión de sobrealimentación"},
          row{"ja_JP", "Boost Pressure"}, row{"C", "Boost Pressure"}})
        EXPECT_EQ(bundle(":/kestrom", each.locale).localized("FIELD_ENGINE_BOOST"), each.boost)
            << each.locale;
    EXPECT_EQ(bundle(":/kestrom", "de_DE").localized("no_such_key"), "");
}

TEST(resources, every_language_has_every_text_with_its_placeholders) {
    const string_table english = read_strings("en");
    for (const char* key : {"KS_help", "no_reply_from_car_MSG", "no_reply_from_car_MSG_BT",
                            "no_reply_from_car_MSG_TCP", "init_OBD_error_MSG", "blank_input_MSG",
                            "FIELD_ENGINE_MPG", "FIELD_ENGINE_BOOST"})
        EXPECT_TRUE(english.contains(key)) << key;
    for (const char* language : {"en", "de", "fr", "es"}) {
        const string_table texts = read_strings(language);
        const bundle compiled(":/kestrom", language);
        for (const auto& [key, text] : english) {
            const auto found = texts.find(key);
            if (found == texts.end() || found->second.empty()) {
                ADD_FAILURE() << key << " is missing in " << language;
                continue;
            }
            EXPECT_EQ(placeholders(found->second), placeholders(text)) << key << " in " << language;
            EXPECT_EQ(compiled.localized(key), found->second) << key << " in " << language;
        }
        for (const auto& [key, text] : texts)
            EXPECT_TRUE(english.contains(key)) << key << " stands only in " << language;
    }
}

TEST(resources, mnemonics_are_there_in_every_language_and_differ_on_each_screen) {
    constexpr char DIALOG[] = "";
    const std::vector<std::string> rail{"ui_rail_codes",  "ui_rail_live",  "ui_rail_logs",
                                        "ui_rail_expert", "ui_rail_prefs", "ui_rail_help",
                                        "ui_menu_file"};
    const std::vector<std::vector<std::string>> screens{
        {"ui_read_codes", "ui_clear_codes", "ui_reconnect"},
        {"ui_command_label", "ui_send", "ui_reconnect"},
        {"ui_live_run", "ui_live_zoom", "ui_live_next_sensors", "ui_reconnect"},
        {"ui_bluetooth", "ui_wifi", "ui_address", "ui_port", "ui_metric", "ui_log_runs",
         "ui_defaults", "ui_last_bt", "ui_language"},
        {DIALOG, "bt_search_again", "bt_cancel", "bt_connect"}};
    for (const char* language : {"en", "de", "fr", "es"}) {
        string_table texts = read_strings(language);
        for (std::vector<std::string> keys : screens) {
            if (keys.front() == DIALOG) // covers the rail
                keys.erase(keys.begin());
            else
                keys.insert(keys.end(), rail.begin(), rail.end());
            std::map<char, std::string> taken;
            for (const std::string& key : keys) {
                const char letter = mnemonic(texts[key]);
                EXPECT_TRUE(letter >= 'a' && letter <= 'z') << key << " in " << language;
                const auto [other, free] = taken.emplace(letter, key);
                EXPECT_TRUE(free) << key << " and " << other->second << " in " << language;
            }
        }
    }
}
