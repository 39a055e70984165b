// Conversations with user and adapter as data: every file of data/ is one test, or each of its
// headings "[NAME]". What stands above the first heading begins each of them.
#include "test_paths.h"
#include "transcript.h"

#include <algorithm>
#include <fstream>

std::vector<std::string> split(const std::string& text, std::size_t words) {
    std::vector<std::string> all;
    std::size_t at = 0;
    for (std::size_t end = 0; all.size() + 1 < words; at = end + 1) {
        end = std::min(text.find(' ', at), text.size());
        all.push_back(text.substr(std::min(at, text.size()), end - at));
    }
    all.push_back(at < text.size() ? text.substr(at) : "");
    return all;
}

std::vector<std::string> parts(const std::string& text) {
    std::vector<std::string> all;
    for (std::size_t at = 0, end = 0; end != std::string::npos; at = end + 3) {
        end = text.find(" / ", at);
        all.push_back(text.substr(at, end - at));
    }
    return all;
}

std::string transcript::told(const std::string& text) const {
    return text.starts_with('@') ? app->resources.localized(text.substr(1)) : unescaped(text);
}

void transcript::start(const std::function<void(user_defaults&)>& prepare) {
    app.reset();
    app.emplace(prepare);
    alerts_seen = statuses_seen = 0;
    beeps_heard = 0;
}

void transcript::expect_nothing_left() {
    EXPECT_EQ(app->sent(), "") << "left over at the end";
    EXPECT_EQ(app->messages.shown.size(), alerts_seen) << "alerts nobody expected";
    EXPECT_EQ(app->messages.beeps, beeps_heard) << "beeps nobody expected";
}

void transcript::run_line(const std::string& line) {
    const auto words = split(line, 2);
    for (const transcript_verbs* verbs : {&LINK_VERBS, &SCREEN_VERBS})
        if (const auto known = verbs->find(words[0]); known != verbs->end())
            return known->second(*this, words[1]);
    FAIL() << "unknown verb " << words[0];
}

void transcript::run_file(const std::string& name, const std::string& heading,
                          const std::string& last_line) {
    std::ifstream file(test_data(name + ".txt"));
    ASSERT_TRUE(file);
    std::string line, part = heading;
    for (int number = 1; std::getline(file, line); ++number) {
        if (line.starts_with('['))
            part = line.substr(1, line.size() - 2);
        else if (part != heading || line.empty() || line.front() == '#')
            continue;
        else {
            SCOPED_TRACE(name + ":" + std::to_string(number) + ": " + line);
            run_line(line);
            if (testing::Test::HasFatalFailure() || line == last_line)
                return;
        }
    }
    EXPECT_EQ(last_line, "") << "not in " << name;
}

namespace {

using conversation = std::pair<std::string, std::string>; // a file and a heading in it, or ""

class conversations : public testing::TestWithParam<conversation> {};

TEST_P(conversations, are_followed) {
    transcript told;
    told.start(app_harness::use_wifi);
    told.run_file(GetParam().first, GetParam().second, "");
    told.expect_nothing_left();
}

std::vector<conversation> all_conversations() {
    std::vector<conversation> all;
    for (const std::string& name : files_in(test_data(""), ".txt")) {
        const std::size_t before = all.size();
        std::ifstream file(test_data(name + ".txt"));
        for (std::string line; std::getline(file, line);)
            if (line.starts_with('['))
                all.emplace_back(name, line.substr(1, line.size() - 2));
        if (all.size() == before)
            all.emplace_back(name, "");
    }
    std::sort(all.begin(), all.end());
    return all;
}

std::string name_of(const testing::TestParamInfo<conversation>& told) {
    const auto& [file, heading] = told.param;
    return heading.empty() ? file : file + "_" + heading;
}

INSTANTIATE_TEST_SUITE_P(screens, conversations, testing::ValuesIn(all_conversations()), name_of);

} // namespace
