// Turns a run log into a table of translated values with a header of names and units. Owned by
// whoever asked for the export; it keeps no window waiting: one call of step() does a few
// milliseconds of work.
//
// A log holds a line for each cycle and in it one reply, as received, for each parameter, separated
// by ",". It may hold any bytes: what is no reply becomes "nan". A column is named by the first
// answer in it. The table has another name until it is whole.
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

// Nothing for a run log, one with damaged replies too; for a file that holds no reply of an adapter
// in its first 16 KiB why it is none, with its name and line. A file that cannot be read, or is
// empty, passes: who reads it tells that.
std::optional<std::string> why_no_run_log(const std::string& path);

// The parameter that a field of a log answers, two hex digits in capitals ("0C"); empty when it is
// no answer.
std::string pid_of_field(std::string_view field);

struct export_form {
    bool with_time = false; // seconds since the run's first request as the first column
    // As the named operation has it: only the first line names columns, and a field without text
    // has no place.
    bool to_the_letter = false;
};

enum class export_result {
    working,
    exported,
    output_exists, // an existing export is never overwritten
    unreadable,    // the log is not there, cannot be read or is no file
    empty,         // the log has no line
    unwritable,    // the export cannot be created or written
    given_up
};

class log_export {
  public:
    // The toolkit's resources and settings decide names, units and values; it outlives the export.
    explicit log_export(const mac_toolies& toolies) : toolies_(toolies) {}
    // An export that was not finished leaves no file.
    ~log_export();
    log_export(const log_export&) = delete;
    log_export& operator=(const log_export&) = delete;

    // What an export of that log is called: ".gol" becomes ".csv", for text ".txt"; a name without
    // ".gol" gets ".csv" or ".export.txt" behind it.
    static std::string output_name(std::string_view log_name, bool as_txt);

    // Opens both files.
    export_result start(const std::string& log, const std::string& output,
                        const export_form& form = {});
    // Goes on; call it as long as the result is `working`.
    export_result step();

    std::uint64_t rows() const { return rows_; }
    double done() const { return naming_ ? 0 : lines_.done(); } // 0 to 1
    // Why it failed, with the name of the file, and the line where there is one; empty otherwise.
    const std::string& error() const { return error_; }
    // What a whole table lacks: times. Empty when it lacks nothing.
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
    bool naming_ = false;                           // the log is read ahead for names of columns
    std::optional<std::vector<std::string>> names_; // PIDs of the columns; empty: none yet
    log_lines lines_;
    log_file written_;
    std::string table_; // lines still to be written
    std::uint64_t rows_ = 0;
    std::string error_;
};

// Both steps in one go. `progress` is told the part that is done, 0 to 1, now and then, and answers
// whether to go on.
struct export_outcome {
    export_result result = export_result::working;
    std::uint64_t rows = 0;
    std::string error, note;
};
export_outcome export_log(const mac_toolies& toolies, const std::string& log,
                          const std::string& output, const export_form& form = {},
                          const std::function<bool(double)>& progress = {});
