// One session: the program is started, a user presses whatever there is while faults happen, then
// the faults stop, the user recovers, and a healthy car must be read.
#pragma once

#include <cstdint>
#include <deque>
#include <string>

struct session_result {
    std::string promise, how; // the broken promise; empty: none
    std::uint64_t hash = 0;   // of all that happened
    std::deque<std::string> last_lines;
    bool ok() const { return promise.empty(); }
};

// `folder` belongs to the session and is emptied.
session_result run_session(std::uint64_t seed, const std::string& folder, bool print);
