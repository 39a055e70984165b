// The log of a run: one line per cycle, and a companion file with their times.
#pragma once

#include "log_file.h"
#include "run_loop.h"

#include <functional>
#include <string>

class mac_toolies;
class sample_rows;

class run_logger {
  public:
    // `failed` is called with the reason when a run is not, or no longer, logged; the run
    // continues.
    explicit run_logger(std::function<void(const std::string& why)> failed);

    // Begins the log of a run of that task in the log folder; a `vehicle` above 0 is part of its
    // name.
    void begin(const mac_toolies& toolies, int task, int vehicle);
    // `since_first_request`: when the last reply of the cycle was filed.
    void write_cycle(const sample_rows& rows, std::size_t row,
                     run_loop::milliseconds since_first_request);
    // Without a complete cycle the file is removed.
    void close();
    // Of this run; empty when there is none.
    const std::string& path() const { return path_; }
    void forget() { path_.clear(); }

  private:
    std::function<void(const std::string&)> failed_;
    log_file lines_, times_;
    std::string path_;
};
