// A run log file, read for charting.
#pragma once

#include "mac_toolies.h"
#include "sample_rows.h"

#include <limits>
#include <optional>
#include <string>
#include <vector>

struct run_log {
    explicit run_log(std::size_t parameters)
        : pids(parameters), samples(parameters), last_values(parameters),
          last_numbers(parameters, std::numeric_limits<double>::quiet_NaN()) {}

    std::vector<std::string> pids; // of each column, from its first readable reply; empty if none
    sample_rows samples;
    std::vector<translated> last_values; // the latest reply of each column
    std::vector<double> last_numbers;    // the latest usable one of each; NaN if none
    // From the first round to the last, in milliseconds since the first request, and any problem
    // with the rounds' times.
    std::optional<std::uint64_t> from{}, to{};
    std::string times_complaint{};
};

// The log that a user named: an existing file by its path, or a plain name in the log folder.
std::string path_of_log(const std::string& log, const mac_toolies& toolies);

// Nothing, with the file's name and line in `error`, if the file cannot be read, is empty, is not a
// run log, or a line has another number of replies than the first. Replies may be any bytes.
std::optional<run_log> read_run_log(const std::string& path, const mac_toolies& toolies,
                                    std::string& error);
