// Recorded fast runs, each level against four cars: the sampler takes the same way again, and files
// what the run's log holds.
#include "fast_sampler.h"
#include "recorded_adapter.h"
#include "rows.h"
#include "test_paths.h"

#include <fstream>
#include <gtest/gtest.h>

namespace {

using std::chrono::milliseconds;

const std::vector<std::string> FOUR{"0D", "11", "0C", "05"};

class recorded_run : public testing::TestWithParam<std::string> {
  protected:
    // Whole cycles as a log has them, until that many; the level that was used then.
    std::vector<std::string> sample(std::size_t cycles) {
        recorded_adapter adapter(load_recording(file(".jsonl")));
        fast_sampler sampler(FOUR, true, 100);
        adapter.connection_opened(now_);
        std::map<std::string, std::string> filed;
        std::vector<std::string> lines;
        while (lines.size() < cycles && !sampler.finished()) {
            const fast_sampler::question asked = sampler.next(now_);
            now_ += asked.pause;
            sampler.sent(now_);
            adapter.receive(asked.command + "\r", now_);
            std::string reply;
            while (const auto due = adapter.next_output()) {
                now_ = std::max(now_, *due);
                reply += adapter.take_output(now_);
            }
            const auto out = sampler.take(reply, now_);
            for (const fast_sampler::sample& one : out.samples)
                filed[one.pid] = one.reply;
            if (out.ends_cycle)
                lines.push_back(filed["0D"] + "," + filed["11"] + "," + filed["0C"] + "," +
                                filed["05"]);
            level_ = std::max(level_, sampler.level());
        }
        return lines;
    }
    static std::string file(const char* ending) { return test_data(GetParam() + ending); }

    milliseconds now_{0};
    int level_ = 0;
};

TEST_P(recorded_run, goes_the_same_way_again) {
    std::vector<std::string> logged;
    std::ifstream log(file(".gol"));
    for (std::string line; std::getline(log, line);)
        logged.push_back(line);
    const std::vector<std::string> sampled = sample(logged.size());
    EXPECT_EQ(std::to_string(level_), GetParam().substr(6, 1));
    ASSERT_GE(sampled.size(), level_ == 0 ? 3u : logged.size());
    logged.resize(sampled.size()); // what follows was sampled plainly
    EXPECT_EQ(sampled, logged);
}

INSTANTIATE_TEST_SUITE_P(each, recorded_run, testing::ValuesIn(files_in(test_data(""), ".jsonl")),
                         [](const auto& name) { return name.param; });

} // namespace
