#include "log_export.h"

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
constexpr std::size_t PIECE_READ = std::size_t{16} * 1024;
constexpr std::size_t LONGEST_LINE = 999; // bytes; what is longer is taken as several lines
constexpr int DECIMALS = 6;
constexpr int TIME_DECIMALS = 3;

std::string in_words(int error) {
    return std::generic_category().message(error);
}

// As long as it is not whole. Another export at the same time has another.
std::string unfinished(const std::string& output) {
    return output + "." + std::to_string(::getpid()) + ".part";
}

// 0, or why not. Never over a file that is there.
int rename_to_new(const std::string& from, const std::string& to) {
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS) // what no disk of that kind can do
        return errno;
    return ::rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
}

// A field of a run log that no other file is likely to hold: an answer, if cut, or a notice.
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
    std::string text(PIECE_READ, '\0');
    std::ifstream file(path, std::ios::binary);
    file.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(file.gcount()));
    const std::string fields = replace_all(without(without(text, " "), "\r"), "\n", ",");
    if (text.empty() || std::ranges::any_of(split(fields, ","), is_reply))
        return std::nullopt;
    return path + ":1: not a run log: no reply of an adapter in it";
}

log_export::~log_export() {
    if (input_ >= 0)
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
    // A pipe must not keep us waiting for somebody to write to it.
    input_ = ::open(log.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (input_ < 0 || ::fstat(input_, &there) != 0)
        return refuse(export_result::unreadable, log + ": " + in_words(errno));
    if (!S_ISREG(there.st_mode))
        return refuse(export_result::unreadable, log + ": not a file");
    size_ = static_cast<std::uint64_t>(there.st_size);
    if (form.with_time)
        times_.emplace(log);
    if (const auto why = written_.create(unfinished(output), log_file::existing::refuse))
        return refuse(export_result::unwritable, output + ": " + *why);
    return export_result::working;
}

export_result log_export::step() {
    if (input_ < 0)
        return export_result::unreadable;
    const std::size_t kept = unread_.size();
    unread_.resize(kept + PIECE_READ);
    const ssize_t got = ::read(input_, unread_.data() + kept, PIECE_READ);
    const int error = errno;
    unread_.resize(kept + static_cast<std::size_t>(std::max<ssize_t>(got, 0)));
    if (got < 0 && error != EINTR)
        return refuse(export_result::unreadable,
                      log_ + ":" + std::to_string(rows_ + 1) + ": " + in_words(error));
    const bool naming = naming_;
    if (!naming)
        read_ += static_cast<std::uint64_t>(std::max<ssize_t>(got, 0));
    take_lines(got == 0);
    if (naming) {
        if (got == 0)
            end_naming();
        return export_result::working;
    }
    if (const export_result result = write_table(); result != export_result::working || got != 0)
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
    close_input();
    return export_result::exported;
}

double log_export::done() const {
    return size_ == 0 ? 1 : std::min(1.0, static_cast<double>(read_) / static_cast<double>(size_));
}

export_result log_export::refuse(export_result why, std::string error) {
    if (!written_.path().empty()) { // a file of this export's own
        written_.close();
        ::unlink(written_.path().c_str());
    }
    close_input();
    error_ = std::move(error);
    return why;
}

void log_export::close_input() {
    if (input_ >= 0)
        ::close(input_);
    input_ = -1;
}

export_result log_export::write_table() {
    const auto why = written_.append_line(table_);
    table_.clear();
    return why ? refuse(export_result::unwritable, output_ + ": " + *why) : export_result::working;
}

// At the end of the log `all` is taken, also a last line without an end.
void log_export::take_lines(bool all) {
    const bool was_naming = naming_;
    std::string_view rest = unread_;
    while (!rest.empty()) {
        const std::size_t end = rest.substr(0, LONGEST_LINE).find('\n');
        if (end == rest.npos && rest.size() < LONGEST_LINE && !all)
            break;
        const std::size_t size = std::min(end == rest.npos ? LONGEST_LINE : end + 1, rest.size());
        take_line(rest.substr(0, size));
        rest.remove_prefix(size);
        if (was_naming && !naming_)
            return; // from the start, for the rows
    }
    unread_.erase(0, unread_.size() - rest.size());
}

void log_export::take_line(std::string_view line) {
    const std::string spaceless = without(line, " ");
    const std::vector<std::string_view> pieces = split(spaceless, ",");
    const auto blank = static_cast<std::size_t>(std::ranges::count(pieces, ""));
    // To the letter there are as many fields as pieces with text in them.
    const std::span<const std::string_view> fields(
        pieces.data(), pieces.size() - (form_.to_the_letter ? blank : 0));
    if (!names_)
        names_.emplace(fields.size());
    if (naming_) {
        name_columns(fields);
        return;
    }
    if (rows_++ == 0) {
        if (form_.to_the_letter) // behind the "41" of a reply, whatever stands there
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
    unread_.clear();
    ::lseek(input_, 0, SEEK_SET);
}

void log_export::add_header() {
    table_ += form_.with_time ? "Time (s)" : "";
    for (std::size_t i = 0; i < names_->size(); ++i) {
        const std::string& pid = (*names_)[i];
        table_ += i == 0 && !form_.with_time ? "" : ",";
        table_ += pid.empty() ? "" : parameter_name(toolies_, pid);
        table_ += " (" + (pid.empty() ? "N/A" : parameter_units(toolies_, pid)) + ")";
    }
    table_ += '\n';
}

void log_export::add_row(std::span<const std::string_view> fields) {
    if (times_) {
        const auto time = times_->next();
        table_ += time ? fixed_decimals(static_cast<double>(*time) / 1000, TIME_DECIMALS) : "nan";
    }
    for (std::size_t i = 0; i < fields.size(); ++i) {
        table_ += i == 0 && !times_ ? "" : ",";
        add_value(fields[i]);
    }
    table_ += '\n';
}

void log_export::add_value(std::string_view field) {
    const std::string_view answer = answer_in(trimmed(field)); // the last has the line's end
    const double value = parameter_value(toolies_, answer.empty() ? "~" : answer).value;
    if (std::isnan(value)) {
        table_ += "nan"; // never "-nan"
        return;
    }
    char digits[FIXED_DECIMALS_ROOM];
    table_.append(digits, write_fixed_decimals(digits, value, DECIMALS));
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
            outcome.result = export_result::given_up; // `work` removes what there is
    }
    outcome.rows = work.rows();
    outcome.error = outcome.result == export_result::given_up ? "interrupted" : work.error();
    outcome.note = work.note();
    return outcome;
}
