// A run log file, read for charting.
#pragma once

#include "mac_toolies.h"
#include "sample_rows.h"

#include <optional>
#include <string>
#include <vector>

struct run_log {
    std::vector<std::string>
        pids; // of each column, as its first readable reply says; empty when none does
    sample_rows samples;
    std::vector<translated> last_values; // the latest reply of each column
};

// Nothing, with the file's name and line in `error`, when the file cannot be read, is empty, or a
// line has not as many replies as the first. Replies may be any bytes.
std::optional<run_log> read_run_log(const std::string& path, const mac_toolies& toolies,
                                    std::string& error);
