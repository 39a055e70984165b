#include "run_log.h"

#include "log_export.h"
#include "parameters.h"
#include "text.h"

#include <QFile>

#include <cmath>
#include <filesystem>
#include <limits>
#include <system_error>

namespace {

constexpr std::size_t MOST_PARAMETERS = 256; // there are no more PIDs

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
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::ReadOnly)) {
        error = path + ": " + file.errorString().toStdString();
        return std::nullopt;
    }
    const std::string text = file.readAll().toStdString();
    std::vector<std::string_view> lines = split(text, "\n");
    if (lines.back().empty())
        lines.pop_back();
    if (lines.empty()) {
        error = path + ": no samples";
        return std::nullopt;
    }
    if (const auto why = why_no_run_log(path)) {
        error = *why;
        return std::nullopt;
    }
    const std::size_t parameters = split(lines[0], ",").size();
    if (parameters > MOST_PARAMETERS) {
        error = path + ":1: more replies than there are parameters";
        return std::nullopt;
    }
    run_log log{std::vector<std::string>(parameters), sample_rows(parameters),
                std::vector<translated>(parameters),
                std::vector<double>(parameters, std::numeric_limits<double>::quiet_NaN())};
    run_times times(path);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::vector<std::string_view> replies = split(lines[i], ",");
        if (replies.size() != parameters) {
            error = path + ":" + std::to_string(i + 1) + ": " + std::to_string(replies.size()) +
                    " replies where line 1 has " + std::to_string(parameters);
            return std::nullopt;
        }
        log.samples.append_fresh_row();
        for (std::size_t p = 0; p < parameters; ++p) {
            std::string_view field = replies[p];
            if (field.ends_with('\r')) // the line's end, as other systems write it
                field.remove_suffix(1);
            const std::string reply = without(field, " ");
            if (log.pids[p].empty())
                log.pids[p] = pid_of_field(reply);
            log.last_values[p] = parameter_value(toolies, reply);
            log.samples.file(p, reply, log.last_values[p]);
            if (const double number = log.samples.value(i, p); !std::isnan(number))
                log.last_numbers[p] = number;
        }
        if (const auto time = times.next()) {
            log.from = log.from.value_or(*time);
            log.to = *time;
        }
    }
    log.times_complaint = times.complaint();
    return log;
}
