// Turns a run log into a table of translated values with a header of names and units. Owned by its
// caller. It does not block a window: one call of step() does a few milliseconds of work.
//
// A log has a line for each cycle, with one reply for each parameter, as received, separated by
// ",". It may hold any bytes: what is not a reply becomes "nan". The first answer in a column names
// it. The table has a temporary name until it is complete.
#pragma once

#include "log_file.h"
#include "log_lines.h"
#include "run_times.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

class mac_toolies;

// Nothing for a run log, even with damaged replies; for a file without any adapter reply in its
// first 16 KiB, why it is not a log, with its name and line. An unreadable or empty file passes:
// its reader reports that.
std::optional<std::string> why_no_run_log(const std::string& path);

// The parameter that a field of a log answers, two hex digits in capitals ("0C"); empty when it is
// no answer.
std::string pid_of_field(std::string_view field);

struct export_form {
    bool with_time = false; // seconds since the run's first request as the first column
    // As the named operation does it: only the first line names columns, and fields without text
    // are dropped.
    bool to_the_letter = false;
};

enum class export_result {
    working,
    exported,
    output_exists, // an existing export is never overwritten
    unreadable,    // the log does not exist, cannot be read or is not a file
    empty,         // the log has no line
    unwritable,    // the export cannot be created or written
    given_up
};

class log_export {
  public:
    // The toolkit's resources and settings determine names, units and values; it must outlive the
    // export.
    explicit log_export(const mac_toolies& toolies) : toolies_(toolies) {}
    // An unfinished export leaves no file.
    ~log_export();
    log_export(const log_export&) = delete;
    log_export& operator=(const log_export&) = delete;

    // The name of that log's export: ".gol" becomes ".csv", or ".txt" for text; to a name without
    // ".gol", ".csv" or ".export.txt" is appended.
    static std::string output_name(std::string_view log_name, bool as_txt);

    // Opens both files.
    export_result start(const std::string& log, const std::string& output,
                        const export_form& form = {});
    // Continues; to be called while the result is `working`.
    export_result step();

    std::uint64_t rows() const { return rows_; }
    double done() const { return naming_ ? 0 : lines_.done(); } // 0 to 1
    // Why it failed, with the file name and the line, if any; empty otherwise.
    const std::string& error() const { return error_; }
    // What a complete table lacks (times); empty when nothing.
    std::string note() const { return times_ ? times_->complaint() : std::string(); }

  private:
    export_result refuse(export_result why, std::string error);
    export_result write_table();
    export_result publish();
    void take_line(std::string_view line);
    void name_columns(std::span<const std::string_view> fields);
    void end_naming();
    void add_header();
    void add_row(std::span<const std::string_view> fields);

    const mac_toolies& toolies_;
    std::string log_, output_;
    export_form form_;
    std::optional<run_times> times_;
    bool naming_ = false;                           // reading ahead for column names
    std::optional<std::vector<std::string>> names_; // PIDs of the columns; empty: none yet
    log_lines lines_;
    log_file written_;
    std::string table_; // lines not written yet
    std::uint64_t rows_ = 0;
    std::string error_;
};

// The whole export. `progress` is called now and then with the fraction done, 0 to 1, and returns
// whether to go on.
struct export_outcome {
    export_result result = export_result::working;
    std::uint64_t rows = 0;
    std::string error, note;
};
export_outcome export_log(const mac_toolies& toolies, const std::string& log,
                          const std::string& output, const export_form& form = {},
                          const std::function<bool(double)>& progress = {});
