// When each round of a run was: the companion of a run log, named like it with ".times" behind. For
// each line of the log it has one with the milliseconds from the run's first request to the filing
// of the round's last reply. The log itself is the same with and without it.
#pragma once

#include <cstdint>
#include <fstream>
#include <optional>
#include <string>

inline std::string times_of_log(const std::string& log) {
    return log + ".times";
}

// Reads a companion beside its log, line for line. One that is missing, short or damaged leaves
// rounds without a time.
class run_times {
  public:
    explicit run_times(const std::string& log);

    // The time of the log's next line.
    std::optional<std::uint64_t> next();
    // Which rounds have had no time, with the companion's name; empty when all have had theirs.
    std::string complaint() const;

  private:
    std::string path_;
    std::ifstream file_;
    std::uint64_t lines_ = 0, timed_ = 0;
};

// "2:03", "1:02:03".
std::string length_text(std::uint64_t milliseconds);
