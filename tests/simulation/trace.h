// The events of a session, in order: a hash of them all, and the last lines, to find out why a
// promise was broken. The first broken promise ends the session.
#pragma once

#include "run_loop.h"

#include <cstdint>
#include <cstdio>
#include <deque>
#include <string>
#include <string_view>
#include <utility>

class event_trace {
  public:
    // Leaves out the name of the session's folder, which differs from run to run.
    event_trace(bool print, std::string folder) : print_(print), folder_(std::move(folder)) {}

    void use_clock(const run_loop* clock) { clock_ = clock; }
    void note(std::string_view kind, std::string_view what) {
        std::string text(what);
        if (const std::size_t at = text.find(folder_); at != std::string::npos)
            text.replace(at, folder_.size(), "...");
        std::string line = std::to_string(clock_ ? clock_->now().count() : 0) + " ";
        line.append(kind).append(" ").append(visible(text));
        for (const char c : line)
            hash_ = (hash_ ^ static_cast<unsigned char>(c)) * 0x100000001B3u;
        if (print_)
            std::printf("%s\n", line.c_str());
        effects_ += kind == "status" || kind == "alert" || kind == "screen" || kind == "shown";
        if (failed() && kind != "BROKEN")
            return; // only the lines that led to it are kept
        last_.push_back(std::move(line));
        if (last_.size() > KEPT)
            last_.pop_front();
    }
    // Records a broken promise.
    void broken(std::string_view promise, std::string_view how) {
        if (!promise_.empty())
            return;
        promise_ = promise;
        how_ = visible(how);
        note("BROKEN", promise_ + ": " + how_);
    }
    void expect(bool holds, std::string_view promise, std::string_view how) {
        if (!holds)
            broken(promise, how);
    }

    bool failed() const { return !promise_.empty(); }
    const std::string& promise() const { return promise_; }
    const std::string& how() const { return how_; }
    const std::deque<std::string>& last_lines() const { return last_; }
    // Counts what the user has been shown so far.
    std::uint64_t effects() const { return effects_; }
    std::uint64_t hash() const { return hash_; }

  private:
    static constexpr std::size_t KEPT = 60;
    static constexpr std::size_t LONGEST = 200;

    static std::string visible(std::string_view text) {
        std::string shown;
        for (const char c : text.substr(0, LONGEST))
            shown += c == '\r' ? '|' : c >= ' ' && c < 0x7F ? c : c == '\n' ? '/' : '#';
        return text.size() > LONGEST ? shown + "... " + std::to_string(text.size()) : shown;
    }

    bool print_;
    std::string folder_;
    const run_loop* clock_ = nullptr;
    std::uint64_t hash_ = 0xCBF29CE484222325u;
    std::uint64_t effects_ = 0;
    std::deque<std::string> last_;
    std::string promise_, how_;
};
