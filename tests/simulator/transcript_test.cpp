// Conversations with the adapter, as the chip's data sheet has them, one file per bus and subject:
//   car NAME                     begins a scene; what follows sets it
//   protocol NAME, fault NAME[=V], timing genuine, timing MS, baud N, round_trip MS
//   > COMMAND                    what is typed, a carriage return behind it; below it a line each
//   that
//                                comes back (blank lines and NUL bytes are left out), or
//   = TEXT                       all of it to the letter, with "\r" and the like, or
//   @MS TEXT                     its pieces, each at its time, or
//   lines N, takes MS[..MS]      how many lines, how long until the last piece
//   ! COMMAND                    typed, whatever comes back
//   type BYTES, wait MS          typed without looking, and time that passes; "clock MS" sets the
//   time reconnect, closed            the connection begins anew; the adapter wants it closed
#include "adapter_harness.h"
#include "rows.h"
#include "test_paths.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>

namespace {

using std::chrono::milliseconds;

std::string visible_lines(const std::string& text) {
    EXPECT_TRUE(text.ends_with("\r>")) << text;
    std::string lines;
    for (const char c : text.substr(0, text.size() - 2))
        if (c != '\0' && (c != '\r' || (!lines.empty() && lines.back() != '\n')))
            lines += c == '\r' ? '\n' : c;
    return lines;
}

class transcript_test : public testing::TestWithParam<std::string> {
  protected:
    void take(const std::string& line) {
        const std::size_t blank = std::min(line.find(' '), line.size());
        const std::string word = line.substr(0, blank);
        const std::string rest = line.substr(std::min(blank + 1, line.size()));
        if (!prepare(word, rest) && !act(word, rest) && !expect(word, rest))
            lines_ += line + "\n";
    }
    // Looks at the reply so far.
    void finish() {
        if (!lines_.empty() || unseen_) {
            EXPECT_EQ(visible_lines(adapter_harness::joined(came_)), lines_);
        }
        if (!pieces_.empty()) {
            EXPECT_EQ(came_, pieces_);
        }
        lines_.clear();
        pieces_.clear();
        unseen_ = false;
    }

  private:
    bool prepare(const std::string& word, const std::string& rest) {
        if (word == "car") {
            harness_.reset();
            scene_ = {};
            scene_.car_name = rest;
            scene_.latency = 0;
        } else if (word == "protocol") {
            scene_.protocol = rest;
        } else if (word == "fault") {
            scene_.faults.push_back(rest);
        } else if (word == "timing") {
            scene_.latency = rest == "genuine" ? std::nullopt : std::optional(std::stol(rest));
        } else if (word == "baud") {
            scene_.baud = std::stoi(rest);
        } else if (word == "round_trip") {
            scene_.round_trip = std::stoi(rest);
        } else {
            return false;
        }
        return true;
    }
    bool act(const std::string& word, const std::string& rest) {
        if (word == ">" || word == "!") {
            finish();
            began_ = adapter().now.count();
            came_ = adapter().chunks(plain_field(rest) + "\r");
            unseen_ = word == ">";
        } else if (word == "read") {
            finish();
            came_ = adapter().run_until(milliseconds(1'000'000'000));
        } else if (word == "type") {
            adapter().adapter.receive(plain_field(rest), adapter().now);
        } else if (word == "wait") {
            adapter().now += milliseconds(std::stol(rest));
        } else if (word == "clock") {
            adapter().now = milliseconds(std::stol(rest));
        } else if (word == "reconnect") {
            adapter().adapter.connection_opened(adapter().now);
        } else {
            return false;
        }
        return true;
    }
    bool expect(const std::string& word, const std::string& rest) {
        const bool known = word == "=" || word == "lines" || word == "takes" || word == "closed";
        if (word == "=") {
            EXPECT_EQ(adapter_harness::joined(came_), plain_field(rest));
        } else if (word == "lines") {
            EXPECT_EQ(std::ranges::count(visible_lines(adapter_harness::joined(came_)), '\n'),
                      std::stol(rest));
        } else if (word == "takes") {
            const long took = came_.empty() ? 0 : came_.back().at - began_;
            const std::size_t dots = rest.find("..");
            EXPECT_GE(took, std::stol(rest));
            EXPECT_LE(took, std::stol(dots == rest.npos ? rest : rest.substr(dots + 2)));
        } else if (word == "closed") {
            EXPECT_TRUE(adapter().adapter.wants_close(adapter().now));
        } else if (word.starts_with("@")) {
            pieces_.push_back({std::stol(word.substr(1)), plain_field(rest)});
        }
        unseen_ = unseen_ && !known && !word.starts_with("@");
        return known || word.starts_with("@");
    }
    adapter_harness& adapter() {
        if (!harness_)
            harness_ = std::make_unique<adapter_harness>(scene_);
        return *harness_;
    }

    adapter_scene scene_;
    std::unique_ptr<adapter_harness> harness_;
    std::vector<timed_chunk> came_, pieces_;
    std::string lines_;
    long began_ = 0;
    bool unseen_ = false; // a reply that nothing has been said about
};

TEST_P(transcript_test, adapter_answers_as_written) {
    std::ifstream file(test_data(GetParam() + ".txt"));
    ASSERT_TRUE(file);
    std::string line;
    take("car can11");
    for (int number = 1; std::getline(file, line); ++number) {
        SCOPED_TRACE(GetParam() + ".txt:" + std::to_string(number));
        if (!line.empty() && line[0] != '#')
            take(line);
    }
    finish();
}

INSTANTIATE_TEST_SUITE_P(all, transcript_test, testing::ValuesIn(files_in(test_data(""), ".txt")),
                         [](const auto& name) { return name.param; });

} // namespace
