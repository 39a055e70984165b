// One session: the program is started, a user presses whatever there is while faults happen, then
// the faults stop, the way back is taken, and a healthy car has to be read.
#pragma once

#include <cstdint>
#include <deque>
#include <string>

struct session_result {
    std::string promise, how; // the promise that was broken; empty: none
    std::uint64_t hash = 0;   // of all that happened
    std::deque<std::string> last_lines;
    bool ok() const { return promise.empty(); }
};

// `folder` is the session's own and is emptied.
session_result run_session(std::uint64_t seed, const std::string& folder, bool print);
