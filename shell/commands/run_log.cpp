#include "run_log.h"

#include "log_export.h"
#include "log_lines.h"
#include "parameters.h"
#include "run_times.h"
#include "text.h"

#include <cmath>
#include <filesystem>
#include <system_error>

namespace {

constexpr std::size_t MOST_PARAMETERS = 256; // there are no more PIDs

std::string why_no_row(const run_log& log, const std::vector<std::string_view>& fields) {
    if (fields.size() > MOST_PARAMETERS)
        return "more replies than there are parameters";
    if (fields.size() == log.pids.size())
        return {};
    return std::to_string(fields.size()) + " replies where line 1 has " +
           std::to_string(log.pids.size());
}

void add_row(run_log& log, const std::vector<std::string_view>& fields, run_times& times,
             const mac_toolies& toolies) {
    log.samples.append_fresh_row();
    const std::size_t row = log.samples.rows() - 1;
    for (std::size_t p = 0; p < fields.size(); ++p) {
        const std::string reply = without(trimmed(fields[p], "\r\n"), " ");
        if (log.pids[p].empty())
            log.pids[p] = pid_of_field(reply);
        log.last_values[p] = parameter_value(toolies, reply);
        log.samples.file(p, reply, log.last_values[p]);
        if (const double number = log.samples.value(row, p); !std::isnan(number))
            log.last_numbers[p] = number;
    }
    if (const auto time = times.next()) {
        log.from = log.from.value_or(*time);
        log.to = *time;
    }
}

} // namespace

std::string path_of_log(const std::string& log, const mac_toolies& toolies) {
    std::error_code unknown;
    if (contains(log, "/") || std::filesystem::exists(log, unknown))
        return log;
    const std::string logged = toolies.log_folder() + "/" + log;
    return std::filesystem::exists(logged, unknown) ? logged : log;
}

std::optional<run_log> read_run_log(const std::string& path, const mac_toolies& toolies,
                                    std::string& error) {
    log_lines lines;
    std::optional<run_log> log;
    run_times times(path);
    if (const auto why = lines.open(path))
        error = *why;
    else if (const auto no_log = why_no_run_log(path))
        error = *no_log;
    for (bool more = true; more && error.empty();) {
        more = lines.read_piece(error);
        while (const auto line = error.empty() ? lines.next() : std::nullopt) {
            const std::vector<std::string_view> fields = split(*line, ",");
            if (!log)
                log.emplace(fields.size());
            if (const std::string why = why_no_row(*log, fields); !why.empty())
                error = path + ":" + std::to_string(lines.lines()) + ": " + why;
            else
                add_row(*log, fields, times, toolies);
        }
    }
    if (error.empty() && !log)
        error = path + ": no samples";
    if (!error.empty())
        return std::nullopt;
    log->times_complaint = times.complaint();
    return log;
}
