#include "log_export.h"

#include "csv_row.h"
#include "fixed_decimals.h"
#include "mac_toolies.h"
#include "notices.h"
#include "parameters.h"
#include "sample_reply.h"
#include "text.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace {

constexpr std::string_view LOG_EXTENSION = ".gol";
constexpr std::string_view CSV_EXTENSION = ".csv";
constexpr std::string_view TEXT_EXTENSION = ".txt";
constexpr int DECIMALS = 6;
constexpr int TIME_DECIMALS = 3;

std::string in_words(int error) {
    return std::generic_category().message(error);
}

// The name until the export is complete. Simultaneous exports have different ones.
std::string unfinished(const std::string& output) {
    return output + "." + std::to_string(::getpid()) + ".part";
}

// 0 or the error number. Never overwrites a file.
int rename_to_new(const std::string& from, const std::string& to) {
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS) // not supported by that file system
        return errno;
    return ::rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
}

// A field that only a run log is likely to hold: an answer, perhaps truncated, or a notice.
bool is_reply(std::string_view field) {
    if (!pid_of_field(field).empty() && is_hex(field))
        return true;
    const bool capitals = std::ranges::all_of(field, [](unsigned char c) {
        return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               std::string_view(".?<>:").find(static_cast<char>(c)) != std::string_view::npos;
    });
    return field == "~" || (capitals && holds_notice(field));
}

} // namespace

std::string pid_of_field(std::string_view field) {
    const std::string_view digits = slice(field, 2, 2);
    if (!field.starts_with("41") || digits.size() < 2 || !is_hex(digits))
        return {};
    std::string pid(digits);
    std::ranges::transform(pid, pid.begin(), [](unsigned char c) { return std::toupper(c); });
    return pid;
}

std::optional<std::string> why_no_run_log(const std::string& path) {
    std::error_code unknown;
    if (!std::filesystem::is_regular_file(path, unknown))
        return std::nullopt;
    std::string text(log_lines::PIECE, '\0');
    std::ifstream file(path, std::ios::binary);
    file.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(file.gcount()));
    const std::string fields = replace_all(without(without(text, " "), "\r"), "\n", ",");
    if (text.empty() || std::ranges::any_of(split(fields, ","), is_reply))
        return std::nullopt;
    return path + ":1: not a run log: no reply of an adapter in it";
}

log_export::~log_export() {
    if (lines_.is_open())
        refuse(export_result::unwritable, {});
}

std::string log_export::output_name(std::string_view log_name, bool as_txt) {
    if (!contains(log_name, LOG_EXTENSION))
        return std::string(log_name) + (as_txt ? ".export.txt" : ".csv");
    const std::string csv = replace_all(log_name, LOG_EXTENSION, CSV_EXTENSION);
    return as_txt ? replace_all(csv, CSV_EXTENSION, TEXT_EXTENSION) : csv;
}

export_result log_export::start(const std::string& log, const std::string& output,
                                const export_form& form) {
    log_ = log;
    output_ = output;
    form_ = form;
    naming_ = !form.to_the_letter;
    struct stat there {};
    if (::lstat(output.c_str(), &there) == 0)
        return refuse(export_result::output_exists,
                      "File (" + output + ")already exists.. Bailing out");
    if (const auto why = lines_.open(log))
        return refuse(export_result::unreadable, *why);
    if (form.with_time)
        times_.emplace(log);
    if (const auto why = written_.create(unfinished(output), log_file::existing::refuse))
        return refuse(export_result::unwritable, output + ": " + *why);
    return export_result::working;
}

export_result log_export::step() {
    if (!lines_.is_open())
        return export_result::unreadable;
    std::string error;
    const bool more = lines_.read_piece(error);
    if (!error.empty())
        return refuse(export_result::unreadable, error);
    const bool naming = naming_;
    while (const auto line = naming_ == naming ? lines_.next() : std::nullopt)
        take_line(*line);
    if (naming) {
        if (naming_ && !more)
            end_naming();
        return export_result::working;
    }
    if (const export_result result = write_table(); result != export_result::working || more)
        return result;
    if (rows_ == 0)
        return refuse(export_result::empty, log_ + ": no samples");
    return publish();
}

export_result log_export::publish() {
    if (const auto why = written_.close())
        return refuse(export_result::unwritable, output_ + ": " + *why);
    if (const int error = rename_to_new(written_.path(), output_))
        return refuse(export_result::unwritable, output_ + ": " + in_words(error));
    lines_.close();
    return export_result::exported;
}

export_result log_export::refuse(export_result why, std::string error) {
    if (!written_.path().empty()) { // a file made by this export
        written_.close();
        ::unlink(written_.path().c_str());
    }
    lines_.close();
    error_ = std::move(error);
    return why;
}

export_result log_export::write_table() {
    const auto why = written_.append_line(table_);
    table_.clear();
    return why ? refuse(export_result::unwritable, output_ + ": " + *why) : export_result::working;
}

void log_export::take_line(std::string_view line) {
    const std::string spaceless = without(line, " ");
    const std::vector<std::string_view> pieces = split(spaceless, ",");
    const auto blank = static_cast<std::size_t>(std::ranges::count(pieces, ""));
    // To the letter, only pieces with text count as fields.
    const std::span<const std::string_view> fields(
        pieces.data(), pieces.size() - (form_.to_the_letter ? blank : 0));
    if (!names_)
        names_.emplace(fields.size());
    if (naming_) {
        name_columns(fields);
        return;
    }
    if (rows_++ == 0) {
        if (form_.to_the_letter) // whatever follows the "41" of a reply
            for (std::size_t i = 0; i < fields.size(); ++i)
                (*names_)[i] = slice(trimmed(fields[i]), 2, 2);
        add_header();
    }
    add_row(fields.empty() ? std::span(pieces).first(1) : fields);
}

void log_export::name_columns(std::span<const std::string_view> fields) {
    std::size_t unnamed = 0;
    for (std::size_t i = 0; i < names_->size(); ++i) {
        std::string& name = (*names_)[i];
        if (name.empty() && i < fields.size())
            name = pid_of_field(trimmed(fields[i]));
        unnamed += name.empty() ? 1 : 0;
    }
    if (unnamed == 0)
        end_naming();
}

void log_export::end_naming() {
    naming_ = false;
    lines_.rewind(); // from the start, for the rows
}

void log_export::add_header() {
    csv_row header;
    if (form_.with_time)
        header.add("Time (s)");
    for (const std::string& pid : *names_)
        header.add((pid.empty() ? "" : parameter_name(toolies_, pid)) + " (" +
                   (pid.empty() ? "N/A" : parameter_units(toolies_, pid)) + ")");
    table_ += header.text() + '\n';
}

void log_export::add_row(std::span<const std::string_view> fields) {
    csv_row row;
    if (times_) {
        const auto time = times_->next();
        row.add(time ? fixed_decimals(static_cast<double>(*time) / 1000, TIME_DECIMALS) : "nan");
    }
    for (const std::string_view field : fields) {
        const std::string_view answer = answer_in(trimmed(field)); // the last includes the line end
        const double value = parameter_value(toolies_, answer.empty() ? "~" : answer).value;
        row.add(std::isnan(value) ? "nan" : fixed_decimals(value, DECIMALS)); // never "-nan"
    }
    table_ += row.text() + '\n';
}

export_outcome export_log(const mac_toolies& toolies, const std::string& log,
                          const std::string& output, const export_form& form,
                          const std::function<bool(double)>& progress) {
    log_export work(toolies);
    export_outcome outcome;
    outcome.result = work.start(log, output, form);
    while (outcome.result == export_result::working) {
        outcome.result = work.step();
        if (progress && !progress(work.done()) && outcome.result == export_result::working)
            outcome.result = export_result::given_up; // `work` removes the file
    }
    outcome.rows = work.rows();
    outcome.error = outcome.result == export_result::given_up ? "interrupted" : work.error();
    outcome.note = work.note();
    return outcome;
}
