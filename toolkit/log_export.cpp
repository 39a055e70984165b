#include "log_export.h"

#include "fixed_decimals.h"
#include "mac_toolies.h"
#include "notices.h"
#include "parameters.h"
#include "sample_reply.h"
#include "text.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
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

std::string in_words(int error) {
    return std::generic_category().message(error);
}

// A field of a run log that no other file is likely to hold: an answer, if cut, or a notice.
bool is_reply(std::string_view field) {
    if (field.starts_with("41") && field.size() >= 4 && is_hex(field))
        return true;
    const bool capitals = std::ranges::all_of(field, [](unsigned char c) {
        return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               std::string_view(".?<>:").find(static_cast<char>(c)) != std::string_view::npos;
    });
    return field == "~" || (capitals && holds_notice(field));
}

} // namespace

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

export_result log_export::start(const std::string& log, const std::string& output) {
    log_ = log;
    output_ = output;
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
    if (const auto why = written_.create(output, log_file::existing::refuse))
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
    read_ += static_cast<std::uint64_t>(std::max<ssize_t>(got, 0));
    take_lines(got == 0);
    if (const export_result result = write_table(); result != export_result::working || got != 0)
        return result;
    if (rows_ == 0)
        return refuse(export_result::empty, log_ + ": no samples");
    if (const auto why = written_.close())
        return refuse(export_result::unwritable, output_ + ": " + *why);
    close_input();
    return export_result::exported;
}

double log_export::done() const {
    return size_ == 0 ? 1 : std::min(1.0, static_cast<double>(read_) / static_cast<double>(size_));
}

export_result log_export::refuse(export_result why, std::string error) {
    // Only a file of this export's own is open for writing.
    if (written_.path() == output_ && !output_.empty()) {
        written_.close();
        ::unlink(output_.c_str());
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
    std::string_view rest = unread_;
    while (!rest.empty()) {
        const std::size_t end = rest.substr(0, LONGEST_LINE).find('\n');
        if (end == rest.npos && rest.size() < LONGEST_LINE && !all)
            break;
        const std::size_t size = std::min(end == rest.npos ? LONGEST_LINE : end + 1, rest.size());
        add_line(rest.substr(0, size));
        rest.remove_prefix(size);
    }
    unread_.erase(0, unread_.size() - rest.size());
}

void log_export::add_line(std::string_view line) {
    const std::string spaceless = without(line, " ");
    const std::vector<std::string_view> pieces = split(spaceless, ",");
    // As many fields as there are pieces with text in them.
    const auto count = pieces.size() - static_cast<std::size_t>(std::ranges::count(pieces, ""));
    const std::span<const std::string_view> fields(pieces.data(), count);
    if (rows_++ == 0)
        add_header(fields);
    add_value(pieces[0]);
    for (std::size_t i = 1; i < fields.size(); ++i) {
        table_ += ',';
        add_value(fields[i]);
    }
    table_ += '\n';
}

void log_export::add_header(std::span<const std::string_view> fields) {
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const std::string pid(slice(trimmed(fields[i]), 2, 2)); // behind the "41" of the reply
        table_ += i == 0 ? "" : ",";
        table_ += pid.empty() ? "" : parameter_name(toolies_, pid);
        table_ += " (" + (pid.empty() ? "N/A" : parameter_units(toolies_, pid)) + ")";
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
                          const std::string& output, const std::function<void(double)>& progress) {
    log_export work(toolies);
    export_outcome outcome;
    outcome.result = work.start(log, output);
    while (outcome.result == export_result::working) {
        outcome.result = work.step();
        if (progress)
            progress(work.done());
    }
    outcome.rows = work.rows();
    outcome.error = work.error();
    return outcome;
}
