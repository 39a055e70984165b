// Conversations with the adapter as data: every file of data/ is one test. The verbs are those of
// run_line() below;
// "\r" and "\n" stand for themselves behind a backslash.
#include "app_harness.h"

#include <QAbstractItemModel>
#include <QLabel>
#include <QTableView>

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

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
    void run_line(const std::string& verb, const std::string& text);
    void expect_row(const std::string& text);

    app_harness app;
    std::size_t alerts_seen = 0;
};

void transcript::run_line(const std::string& verb, const std::string& text) {
    if (verb == "open") {
        if (text == "codes")
            app.delegate->do_read_codes();
        else if (text == "expert")
            app.delegate->do_expert();
        else
            app.delegate->do_prefs();
        app.loop.settle();
    } else if (verb == "press") {
        app.press(text.c_str());
        app.loop.settle();
    } else if (verb == "answer") { // to the next alert: the index of the button
        app.messages.answers.push_back(std::stoi(text));
    } else if (verb == "connected") {
        app.connect();
    } else if (verb == "advance") {
        app.loop.advance(std::chrono::milliseconds(std::stol(text)));
    } else if (verb == "sent") {
        EXPECT_EQ(app.sent(), unescaped(text));
    } else if (verb == "received") {
        app.receive(unescaped(text));
    } else if (verb == "quiet") { // nothing (more) was sent
        EXPECT_EQ(app.sent(), "");
    } else if (verb == "status") {
        EXPECT_EQ(app.last_status(), unescaped(text));
    } else if (verb == "alert") {
        ASSERT_LT(alerts_seen, app.messages.shown.size()) << "no alert; expected: " << text;
        EXPECT_EQ(app.messages.shown[alerts_seen++].message, unescaped(text));
    } else if (verb == "alert-begins") {
        ASSERT_LT(alerts_seen, app.messages.shown.size()) << "no alert; expected: " << text;
        EXPECT_TRUE(app.messages.shown[alerts_seen++].message.starts_with(text));
    } else if (verb == "noalert") {
        EXPECT_EQ(app.messages.shown.size(), alerts_seen);
    } else if (verb == "label") {
        const std::size_t blank = text.find(' ');
        EXPECT_EQ(app.find<QLabel>(text.substr(0, blank).c_str())->text().toStdString(),
                  text.substr(blank + 1));
    } else if (verb == "waity") {
        EXPECT_EQ(app.find("waity")->isHidden(), text == "hidden");
    } else if (verb == "rows") {
        const std::size_t blank = text.find(' ');
        EXPECT_EQ(app.find<QTableView>(text.substr(0, blank).c_str())->model()->rowCount(),
                  std::stoi(text.substr(blank + 1)));
    } else if (verb == "row") {
        expect_row(text);
    } else if (verb == "connection") { // "lost" or the words of a failure
        if (text == "lost") {
            scripted_stream_pair::raise(app.wire(), app.loop, STREAM_END);
            app.loop.settle();
        } else {
            app.fail(text);
        }
    } else {
        FAIL() << "unknown verb " << verb;
    }
}

// TABLE ROW COLUMN TEXT
void transcript::expect_row(const std::string& text) {
    std::istringstream words(text);
    std::string table, expected;
    int row = 0, column = 0;
    words >> table >> row >> column >> std::ws;
    std::getline(words, expected);
    const auto* model = app.find<QTableView>(table.c_str())->model();
    EXPECT_EQ(model->index(row, column).data().toString().toStdString(), expected);
}

TEST_P(transcript, is_followed) {
    std::ifstream file(KESTROM_TEST_DATA "/" + GetParam() + ".txt");
    ASSERT_TRUE(file);
    std::string line;
    for (int number = 1; std::getline(file, line); ++number) {
        if (line.empty() || line.front() == '#')
            continue;
        SCOPED_TRACE(GetParam() + ":" + std::to_string(number) + ": " + line);
        const std::size_t blank = line.find(' ');
        run_line(line.substr(0, blank), blank == std::string::npos ? "" : line.substr(blank + 1));
        if (HasFatalFailure())
            return;
    }
    EXPECT_EQ(app.sent(), "") << "left over at the end";
    EXPECT_EQ(app.messages.shown.size(), alerts_seen) << "alerts nobody expected";
}

std::vector<std::string> transcript_files() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(KESTROM_TEST_DATA))
        names.push_back(entry.path().stem().string());
    std::sort(names.begin(), names.end());
    return names;
}

INSTANTIATE_TEST_SUITE_P(conversations, transcript, testing::ValuesIn(transcript_files()),
                         [](const auto& file) { return file.param; });

} // namespace
