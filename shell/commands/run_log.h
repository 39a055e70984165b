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

    std::vector<std::string>
        pids; // of each column, as its first readable reply says; empty when none does
    sample_rows samples;
    std::vector<translated> last_values; // the latest reply of each column
    std::vector<double> last_numbers;    // the latest usable one of each; NaN when none was
    // From the first round to the last, in milliseconds since the first request, and what is wrong
    // with the rounds' times.
    std::optional<std::uint64_t> from{}, to{};
    std::string times_complaint{};
};

// The log that a user named: a file that is there by its path; a plain name that is no file here
// may be that of a log in the log folder.
std::string path_of_log(const std::string& log, const mac_toolies& toolies);

// Nothing, with the file's name and line in `error`, when the file cannot be read, is empty, is no
// run log, or a line has not as many replies as the first. Replies may be any bytes.
std::optional<run_log> read_run_log(const std::string& path, const mac_toolies& toolies,
                                    std::string& error);
