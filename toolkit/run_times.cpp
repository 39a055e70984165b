#include "run_times.h"

#include <charconv>
#include <string_view>

namespace {

constexpr std::size_t LONGEST_LINE = 24; // anything longer is not a time

std::string two_digits(std::uint64_t number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

} // namespace

run_times::run_times(const std::string& log)
    : path_(times_of_log(log)), file_(path_, std::ios::binary) {}

std::optional<std::uint64_t> run_times::next() {
    ++lines_;
    char line[LONGEST_LINE];
    if (!file_.getline(line, sizeof line) || file_.eof()) // a line without line end is truncated
        return std::nullopt;
    const std::string_view text(line);
    std::uint64_t time = 0;
    const auto [end, bad] = std::from_chars(text.data(), text.data() + text.size(), time);
    if (bad != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    ++timed_;
    return time;
}

std::string run_times::complaint() const {
    if (timed_ == lines_)
        return {};
    if (!file_.is_open())
        return path_ + ": not there, so no round has its time";
    return path_ + ": times of " + std::to_string(timed_) + " of " + std::to_string(lines_) +
           " rounds";
}

std::string length_text(std::uint64_t milliseconds) {
    const std::uint64_t seconds = milliseconds / 1000, minutes = seconds / 60;
    const std::string end = ":" + two_digits(seconds % 60);
    return minutes < 60 ? std::to_string(minutes) + end
                        : std::to_string(minutes / 60) + ":" + two_digits(minutes % 60) + end;
}
