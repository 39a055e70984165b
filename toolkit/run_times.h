// The times of a run's rounds: the companion of a run log, named like it with ".times" appended.
// For each line of the log it holds the milliseconds from the run's first request to the filing of
// the round's last reply. The log itself does not depend on it.
#pragma once

#include <cstdint>
#include <fstream>
#include <optional>
#include <string>

inline std::string times_of_log(const std::string& log) {
    return log + ".times";
}

// Reads a companion along with its log, line by line. If it is missing, short or damaged, rounds
// have no time.
class run_times {
  public:
    explicit run_times(const std::string& log);

    // The time of the log's next line.
    std::optional<std::uint64_t> next();
    // The rounds without a time so far, with the companion's name; empty if none.
    std::string complaint() const;

  private:
    std::string path_;
    std::ifstream file_;
    std::uint64_t lines_ = 0, timed_ = 0;
};

// "2:03", "1:02:03".
std::string length_text(std::uint64_t milliseconds);
