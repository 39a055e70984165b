// Replies during a run: what the sampling loop files, shows and logs. The first byte picks
// the kind of run, the rest are the replies, each up to its prompt.
#include "actions.h"
#include "fuzz_app.h"
#include "fuzz_one.h"
#include "sample_reply.h"
#include "text.h"

#include <cmath>
#include <filesystem>
#include <fstream>

namespace {

constexpr int RUNS[] = {TASK_RUN_LOG, TASK_FUEL_ECONOMY, TASK_O2_SAMPLING, TASK_BOOST};
constexpr std::size_t MOST_REPLIES = 64;

void use_log(user_defaults& store) {
    app_harness::use_wifi(store);
    store.set_boolean(LOG_RUNS_KEY, true);
}

// From other answers.
bool computed(const std::string& pid) {
    return pid.starts_with("E");
}

void samples_are_answers(actions& screen) {
    sample_rows& rows = screen.samples();
    for (std::size_t row = 0; row < rows.rows(); ++row)
        for (std::size_t place = 0; place < screen.pids().size(); ++place) {
            const std::string& pid = screen.pids()[place];
            const std::string_view text = rows.text(row, place);
            REQUIRE(!rows.filled(row, place) || std::isnan(rows.value(row, place)) ||
                    computed(pid) || (!answer_in(text).empty() && answers_parameter(text, pid)));
        }
}

void log_is_whole(const std::string& path, std::size_t fields, std::uint64_t cycles) {
    std::ifstream log(path, std::ios::binary);
    std::string line;
    std::uint64_t lines = 0;
    for (; std::getline(log, line); ++lines) {
        REQUIRE(!log.eof()); // its end is there
        std::size_t found = 0;
        for (const std::string_view field : split(line, ",")) {
            REQUIRE(!field.empty());
            for (const char c : field)
                REQUIRE(c >= ' ' && c <= '~');
            ++found;
        }
        REQUIRE(found == fields);
    }
    REQUIRE(lines == cycles);
}

} // namespace

int fuzz_one(std::span<const std::uint8_t> bytes) {
    static fuzz_app fuzzed(use_log);
    app_harness& app = fuzzed.app;
    if (!app.delegate->current_screen())
        app.delegate->do_actions();
    auto& screen = static_cast<actions&>(*app.delegate->current_screen());
    screen.choose_run(RUNS[bytes.empty() ? 0 : bytes[0] % 4]);
    fuzzed.begin();
    fuzzed.press("startStopBtn");
    REQUIRE(screen.running());
    const std::string path = screen.log_path();

    const std::string text(as_text(bytes).substr(bytes.empty() ? 0 : 1));
    std::size_t replies = 0;
    for (const std::string_view reply : split(text, ">")) {
        if (!screen.running() || ++replies > MOST_REPLIES)
            break;
        app.messages.shown.clear();
        app.receive(std::string(reply) + ">");
        REQUIRE(app.messages.shown.size() <= 1);
        REQUIRE(!screen.running() || cur_cmd.str().ends_with('\r'));
        if (screen.running() && app.sent().empty()) // an answer is owed
            app.loop.advance(std::chrono::seconds(5));
    }
    samples_are_answers(screen);
    const std::size_t fields = screen.pids().size();
    const std::uint64_t cycles = screen.cycles();
    if (screen.running())
        app.press("startStopBtn");
    log_is_whole(path, fields, cycles);
    std::filesystem::remove(path);
    return 0;
}
