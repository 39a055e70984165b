// Conversations with the adapter as data: every file of data/ is one test. The verbs are the
// operations of the fixture; "\r" and "\n" stand for themselves behind a backslash, and "@key" for
// the text of the strings table.
#include "actions.h"
#include "app_harness.h"
#include "qt_warnings.h"
#include "stall_hint.h"
#include "test_paths.h"

#include <QAbstractItemModel>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>

namespace {

std::string unescaped(std::string text) {
    const std::pair<const char*, const char*> pairs[] = {{"\\r", "\r"}, {"\\n", "\n"}, {"\\0", ""}};
    for (const auto& [from, to] : pairs)
        for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; ++at)
            text.replace(at, 2, to);
    return text;
}

class transcript : public testing::TestWithParam<std::string> {
  protected:
    void run_file(const std::string& name, const std::string& last_line = "");
    void run_line(const std::string& verb, const std::string& text);

    void open(const std::string& screen);
    void follow(const std::string& text);
    void press(const std::string& button) {
        app.press(button.c_str());
        app.loop.settle();
    }
    // On the console
    void say(const std::string& text) {
        app.find<QLineEdit>("cmdTxt")->setText(QString::fromStdString(text));
        press("sendBtn");
    }
    // To the next alert: the index of the button
    void answer(const std::string& text) { app.messages.answers.push_back(std::stoi(text)); }
    void connected(const std::string&) { app.connect(); }
    void connection(const std::string& text);
    void advance(const std::string& text) {
        app.loop.advance(std::chrono::milliseconds(std::stol(text)));
    }
    void sent(const std::string& text) { EXPECT_EQ(app.sent(), unescaped(text)); }
    void received(const std::string& text) { app.receive(unescaped(text)); }
    void rounds(const std::string& text);
    // Nothing (more) was sent
    void quiet(const std::string&) { EXPECT_EQ(app.sent(), ""); }
    void status(const std::string& text) { EXPECT_EQ(app.last_status(), told(text)); }
    void alert(const std::string& text);
    void alert_begins(const std::string& text);
    void noalert(const std::string&) { EXPECT_EQ(app.messages.shown.size(), alerts_seen); }
    void beep(const std::string&) { EXPECT_EQ(app.messages.beeps, ++beeps_heard); }
    void way(const std::string& text);
    // As far as messages name it
    void transport(const std::string& text) {
        g_connect_with = text == "bluetooth" ? KS_USE_BT : KS_USE_WIFI;
    }
    void run(const std::string& text);
    void label(const std::string& text);
    void waity(const std::string& text) {
        EXPECT_EQ(app.find("waity")->isHidden(), text == "hidden");
    }
    void reconnect(const std::string& text) {
        EXPECT_EQ(app.find("reconnect")->isHidden(), text == "hidden");
    }
    // The second has passed after which the hint looks at the clock
    void looks(const std::string&) { static_cast<stall_hint*>(app.find("stallHint"))->refresh(); }
    void rows(const std::string& text);
    void row(const std::string& text);
    std::string told(const std::string& text) const {
        return text.starts_with('@') ? app.resources.localized(text.substr(1)) : unescaped(text);
    }

    static const std::map<std::string, void (transcript::*)(const std::string&)> VERBS;
    app_harness app;
    std::size_t alerts_seen = 0;
    int beeps_heard = 0;
};

const std::map<std::string, void (transcript::*)(const std::string&)> transcript::VERBS = {
    {"open", &transcript::open},
    {"follow", &transcript::follow},
    {"press", &transcript::press},
    {"say", &transcript::say},
    {"answer", &transcript::answer},
    {"connected", &transcript::connected},
    {"connection", &transcript::connection},
    {"advance", &transcript::advance},
    {"sent", &transcript::sent},
    {"received", &transcript::received},
    {"rounds", &transcript::rounds},
    {"quiet", &transcript::quiet},
    {"status", &transcript::status},
    {"alert", &transcript::alert},
    {"alert-begins", &transcript::alert_begins},
    {"noalert", &transcript::noalert},
    {"beep", &transcript::beep},
    {"way", &transcript::way},
    {"transport", &transcript::transport},
    {"run", &transcript::run},
    {"label", &transcript::label},
    {"waity", &transcript::waity},
    {"reconnect", &transcript::reconnect},
    {"looks", &transcript::looks},
    {"rows", &transcript::rows},
    {"row", &transcript::row},
};

void transcript::run_line(const std::string& verb, const std::string& text) {
    const auto known = VERBS.find(verb);
    ASSERT_NE(known, VERBS.end()) << "unknown verb " << verb;
    (this->*known->second)(text);
}

void transcript::open(const std::string& screen) {
    if (screen == "codes")
        app.delegate->do_read_codes();
    else if (screen == "expert")
        app.delegate->do_expert();
    else if (screen == "live")
        app.delegate->do_actions();
    else if (screen == "prefs")
        app.delegate->do_prefs();
    else
        FAIL() << "unknown screen " << screen;
    app.loop.settle();
}

// FILE [until LINE]: another file, as far as that line
void transcript::follow(const std::string& text) {
    const std::size_t until = text.find(" until ");
    run_file(text.substr(0, until), until == std::string::npos ? "" : text.substr(until + 7));
}

void transcript::alert(const std::string& text) {
    ASSERT_LT(alerts_seen, app.messages.shown.size()) << "no alert; expected: " << text;
    EXPECT_EQ(app.messages.shown[alerts_seen++].message, told(text));
}

void transcript::alert_begins(const std::string& text) {
    ASSERT_LT(alerts_seen, app.messages.shown.size()) << "no alert; expected: " << text;
    EXPECT_TRUE(app.messages.shown[alerts_seen++].message.starts_with(text));
}

// Of the live-data screen: "goes-on" or "ended"
void transcript::run(const std::string& text) {
    const bool runs = static_cast<actions*>(app.delegate->current_screen())->running();
    EXPECT_EQ(runs, text == "goes-on");
    EXPECT_EQ(app.find("waity")->isHidden(), !runs);
    EXPECT_EQ(app.find("startStopBtn")->accessibleName().toStdString(),
              app.resources.localized(runs ? "ui_live_stop" : "ui_live_start"));
}

// NAME TEXT
void transcript::label(const std::string& text) {
    const std::size_t blank = text.find(' ');
    const auto* label = app.find<QLabel>(text.substr(0, blank).c_str());
    // A text that brings its own label is spread over caption and value, and read out whole.
    EXPECT_THAT(text.substr(blank + 1),
                testing::AnyOf(label->text().toStdString(), label->accessibleName().toStdString()));
}

// TABLE COUNT
void transcript::rows(const std::string& text) {
    const std::size_t blank = text.find(' ');
    EXPECT_EQ(app.find<QTableView>(text.substr(0, blank).c_str())->model()->rowCount(),
              std::stoi(text.substr(blank + 1)));
}

// "lost" or the words of a failure
void transcript::connection(const std::string& text) {
    if (text != "lost") {
        expect_warning(text);
        return app.fail(text);
    }
    expect_warning("Disconected");
    scripted_stream_pair::raise(app.wire(), app.loop, STREAM_END);
    app.loop.settle();
}

// COUNT SENT / RECEIVED / SENT / RECEIVED ...: the same exchange so many times
void transcript::rounds(const std::string& text) {
    const std::size_t blank = text.find(' ');
    std::vector<std::string> turns;
    for (std::size_t start = blank + 1, end = 0; end != std::string::npos; start = end + 3) {
        end = text.find(" / ", start);
        turns.push_back(text.substr(start, end - start));
    }
    for (int round = std::stoi(text.substr(0, blank)); round > 0; --round)
        for (std::size_t turn = 0; turn < turns.size(); ++turn)
            turn % 2 == 0 ? sent(turns[turn]) : received(turns[turn]);
}

// TABLE ROW COLUMN TEXT
void transcript::row(const std::string& text) {
    std::istringstream words(text);
    std::string table, expected;
    int line = 0, column = 0;
    words >> table >> line >> column >> std::ws;
    std::getline(words, expected);
    const auto* model = app.find<QTableView>(table.c_str())->model();
    EXPECT_EQ(model->index(line, column).data().toString().toStdString(), expected);
}

// COMMAND: a run is started, and all is well until this command has been sent
void transcript::way(const std::string& text) {
    const std::string command = text + "\r";
    static const std::map<std::string, std::string> GOOD_ANSWERS = {
        {"AT Z\r", "ELM327 v1.5\r\r>"},
        {"AT I\r", "ELM327 v1.5\r\r>"},
        {"AT DP\r", "AUTO\r\r>"},
        {"01 00\r", "7E8 06 41 00 BE 1F A8 13 \r\r>"},
        {"01 20\r", "7E8 06 41 20 80 00 00 01 \r\r>"},
        {"01 40\r", "7E8 06 41 40 80 00 00 00 \r\r>"}};
    app.press("startStopBtn");
    app.loop.settle();
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

void transcript::run_file(const std::string& name, const std::string& last_line) {
    std::ifstream file(test_data(name + ".txt"));
    ASSERT_TRUE(file);
    std::string line;
    for (int number = 1; std::getline(file, line); ++number) {
        if (line.empty() || line.front() == '#')
            continue;
        SCOPED_TRACE(name + ":" + std::to_string(number) + ": " + line);
        const std::size_t blank = line.find(' ');
        run_line(line.substr(0, blank), blank == std::string::npos ? "" : line.substr(blank + 1));
        if (HasFatalFailure() || line == last_line)
            return;
    }
    EXPECT_EQ(last_line, "") << "not in " << name;
}

TEST_P(transcript, is_followed) {
    run_file(GetParam());
    EXPECT_EQ(app.sent(), "") << "left over at the end";
    EXPECT_EQ(app.messages.shown.size(), alerts_seen) << "alerts nobody expected";
    EXPECT_EQ(app.messages.beeps, beeps_heard) << "beeps nobody expected";
}

std::vector<std::string> transcript_files() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(test_data("")))
        names.push_back(entry.path().stem().string());
    std::sort(names.begin(), names.end());
    return names;
}

INSTANTIATE_TEST_SUITE_P(conversations, transcript, testing::ValuesIn(transcript_files()),
                         [](const auto& file) { return file.param; });

} // namespace
