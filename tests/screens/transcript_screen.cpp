// The verbs about screens and what they tell the user.
#include "actions.h"
#include "globalVars.h"
#include "stall_hint.h"
#include "transcript.h"

#include <QAbstractItemModel>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QTest>

#include <gmock/gmock.h>

namespace {

void open(transcript& t, const std::string& screen) {
    using shows = void (Ks_lite_delegate::*)();
    static const std::map<std::string, shows> SCREENS = {
        {"codes", &Ks_lite_delegate::do_read_codes},
        {"expert", &Ks_lite_delegate::do_expert},
        {"live", &Ks_lite_delegate::do_actions},
        {"help", &Ks_lite_delegate::do_help_button},
        {"prefs", &Ks_lite_delegate::do_prefs}};
    ((*t.app->delegate).*SCREENS.at(screen))();
    t.app->loop.settle();
}

// FILE [until LINE]: another file, as far as that line
void follow(transcript& t, const std::string& text) {
    const std::size_t until = text.find(" until ");
    t.run_file(text.substr(0, until), "", until == std::string::npos ? "" : text.substr(until + 7));
}

void press(transcript& t, const std::string& button) {
    t.app->press(button.c_str());
    t.app->loop.settle();
}

// On the console
void say(transcript& t, const std::string& text) {
    t.app->find<QLineEdit>("cmdTxt")->setText(QString::fromStdString(text));
    press(t, "sendBtn");
}

// The texts told last, in their order
void status(transcript& t, const std::string& text) {
    const auto expected = parts(text);
    const auto& told = t.app->statuses;
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_EQ(told.size() + i < expected.size() ? "" : told[told.size() - expected.size() + i],
                  t.told(expected[i]));
    t.statuses_seen = told.size();
}

const alert_request& next_alert(transcript& t) {
    static const alert_request none;
    EXPECT_LT(t.alerts_seen, t.app->messages.shown.size()) << "no alert";
    return t.alerts_seen < t.app->messages.shown.size() ? t.app->messages.shown[t.alerts_seen++]
                                                        : none;
}

// Of the live-data screen: "goes-on" or "ended"
void run(transcript& t, const std::string& text) {
    const bool runs = static_cast<actions*>(t.app->delegate->current_screen())->running();
    EXPECT_EQ(runs, text == "goes-on");
    EXPECT_EQ(t.app->find("waity")->isHidden(), !runs);
    EXPECT_EQ(t.app->find("startStopBtn")->accessibleName().toStdString(),
              t.app->resources.localized(runs ? "ui_live_stop" : "ui_live_start"));
}

// NAME TEXT
void label(transcript& t, const std::string& text) {
    const auto words = split(text, 2);
    const auto* label = t.app->find<QLabel>(words[0].c_str());
    // A text that brings its own label is spread over caption and value, and read out whole.
    EXPECT_THAT(words[1],
                testing::AnyOf(label->text().toStdString(), label->accessibleName().toStdString()));
}

QAbstractItemModel& table(transcript& t, const std::string& name) {
    return *t.app->find<QTableView>(name.c_str())->model();
}

// COMMAND: a run is started, and all is well until this command has been sent
void way(transcript& t, const std::string& text) {
    const std::string command = text + "\r";
    static const std::map<std::string, std::string> GOOD_ANSWERS = {
        {"AT Z\r", "ELM327 v1.5\r\r>"},
        {"AT I\r", "ELM327 v1.5\r\r>"},
        {"AT DP\r", "AUTO\r\r>"},
        {"01 00\r", "7E8 06 41 00 BE 1F A8 13 \r\r>"},
        {"01 20\r", "7E8 06 41 20 80 00 00 01 \r\r>"},
        {"01 40\r", "7E8 06 41 40 80 00 00 00 \r\r>"}};
    press(t, "startStopBtn");
    app_harness& app = *t.app;
    if (!connected_2_WIFI_interface)
        app.connect();
    else if (app.wire().written.empty()) // what the run before is owed
        app.loop.advance(std::chrono::seconds(3));
    for (std::string next; (next = app.sent()) != command;) {
        const auto answer = GOOD_ANSWERS.find(next);
        ASSERT_TRUE(next.starts_with("AT") || answer != GOOD_ANSWERS.end())
            << "the way does not lead there, but to " << next;
        app.receive(answer == GOOD_ANSWERS.end() ? "OK\r\r>" : answer->second);
    }
}

} // namespace

const transcript_verbs SCREEN_VERBS = {
    {"open", open},
    {"follow", follow},
    {"press", press},
    {"say", say},
    {"answer", // to the next alert: the index of the button
     [](transcript& t, const std::string& text) {
         t.app->messages.answers.push_back(std::stoi(text));
     }},
    {"leave", [](transcript& t, const std::string&) { t.app->delegate->wrap_leave(); }},
    {"quit",
     [](transcript& t, const std::string&) { t.app->delegate->applicationWillTerminate(); }},
    {"status", status},
    {"nostatus", // since the last one that was looked at
     [](transcript& t, const std::string&) {
         EXPECT_EQ(t.app->statuses.size(), t.statuses_seen) << t.app->last_status();
     }},
    {"alert", [](transcript& t,
                 const std::string& text) { EXPECT_EQ(next_alert(t).message, t.told(text)); }},
    {"alert-begins",
     [](transcript& t, const std::string& text) {
         EXPECT_THAT(next_alert(t).message, testing::StartsWith(text));
     }},
    {"alert-whole", // TITLE / MESSAGE / WHAT IS BELOW IT / BUTTON
     [](transcript& t, const std::string& text) {
         const auto expected = parts(text);
         const alert_request& shown = next_alert(t);
         EXPECT_EQ(shown.title, t.told(expected.at(0)));
         EXPECT_EQ(shown.message, t.told(expected.at(1)));
         EXPECT_EQ(shown.informative, t.told(expected.at(2)));
         EXPECT_THAT(shown.buttons, testing::ElementsAre(expected.at(3)));
     }},
    {"noalert", [](transcript& t,
                   const std::string&) { EXPECT_EQ(t.app->messages.shown.size(), t.alerts_seen); }},
    {"beep",
     [](transcript& t, const std::string&) { EXPECT_EQ(t.app->messages.beeps, ++t.beeps_heard); }},
    {"way", way},
    {"run", run},
    {"label", label},
    {"hidden", [](transcript& t,
                  const std::string& text) { EXPECT_TRUE(t.app->find(text.c_str())->isHidden()); }},
    {"shown", [](transcript& t,
                 const std::string& text) { EXPECT_FALSE(t.app->find(text.c_str())->isHidden()); }},
    {"looks", // the second has passed after which the hint looks at the clock
     [](transcript& t, const std::string&) {
         static_cast<stall_hint*>(t.app->find("stallHint"))->refresh();
     }},
    {"set", // NAME PROPERTY VALUE
     [](transcript& t, const std::string& text) {
         const auto words = split(text, 3);
         EXPECT_TRUE(t.app->find(words[0].c_str())
                         ->setProperty(words[1].c_str(), QString::fromStdString(words[2])));
     }},
    {"is", // NAME PROPERTY VALUE
     [](transcript& t, const std::string& text) {
         const auto words = split(text, 3);
         const QVariant value = t.app->find(words[0].c_str())->property(words[1].c_str());
         EXPECT_EQ(value.toString().toStdString(), t.told(words[2]));
     }},
    {"items", // NAME ITEM / ITEM ...
     [](transcript& t, const std::string& text) {
         const auto words = split(text, 2);
         const auto* box = t.app->find<QComboBox>(words[0].c_str());
         std::vector<std::string> items;
         for (int i = 0; i < box->count(); ++i)
             items.push_back(box->itemText(i).toStdString());
         EXPECT_EQ(items, parts(words[1]));
     }},
    {"key", // NAME KEY
     [](transcript& t, const std::string& text) {
         const auto words = split(text, 2);
         const auto key = QKeySequence::fromString(QString::fromStdString(words[1]))[0].key();
         QTest::keyClick(t.app->find(words[0].c_str()), key);
     }},
    {"click", // TABLE ROW COLUMN
     [](transcript& t, const std::string& text) {
         const auto words = split(text, 3);
         auto* view = t.app->find<QTableView>(words[0].c_str());
         Q_EMIT view->clicked(view->model()->index(std::stoi(words[1]), std::stoi(words[2])));
     }},
    {"rows", // TABLE COUNT
     [](transcript& t, const std::string& text) {
         const auto words = split(text, 2);
         EXPECT_EQ(table(t, words[0]).rowCount(), std::stoi(words[1]));
     }},
    {"row", // TABLE ROW COLUMN TEXT
     [](transcript& t, const std::string& text) {
         const auto words = split(text, 4);
         const auto cell = table(t, words[0]).index(std::stoi(words[1]), std::stoi(words[2]));
         EXPECT_EQ(cell.data().toString().toStdString(), words[3]);
     }},
};
