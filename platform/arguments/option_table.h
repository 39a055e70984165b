// A program's options as rows of one table, used to read its command line and to write its help.
// Qt's QCommandLineParser does the parsing.
#pragma once

#include <charconv>
#include <iomanip>
#include <span>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Why a command line is invalid, as a sentence without its end.
struct usage_error : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct option_text {
    std::string_view name; // "--pids", "-o"
    std::string_view
        value{}; // empty: a switch; "[=CAR]": may be left out; "log|fuel": one of these
    std::string_view effect{}; // for the help, which indents its further lines
    // Words separated by blanks: what it belongs to (empty: everything), and the options that it
    // excludes.
    std::string_view belongs{};
    std::string_view excludes{};
};

// A row of the table, and its effect on the request.
template <typename REQUEST>
struct option_row {
    option_text text;
    void (*take)(REQUEST&, const std::string& name, const std::string& value);
};

struct words_read {
    std::vector<std::pair<std::size_t, std::string>> options; // rows and values, in the order given
    std::vector<std::string> others;                          // what is not an option
};

// Throws usage_error.
words_read read_words(std::span<const option_text> table, std::span<const std::string> arguments);

// Throws usage_error if a given option does not belong to any of `subjects`; `what` names them.
void check_belonging(std::span<const option_text> table, const words_read& words,
                     std::span<const std::string_view> subjects, std::string_view what);

bool goes_with(const option_text& option, std::string_view subject);

// The lines of help of the rows.
std::string option_lines(std::span<const option_text> rows);
// "  NAME  effect" with the effect in its column, or below a name that is too long for it.
std::string help_line(std::string_view name, std::string_view effect);

std::vector<std::string_view> words_of(std::string_view text);

template <typename REQUEST>
std::vector<option_text> texts_of(std::span<const option_row<REQUEST>> table) {
    std::vector<option_text> texts;
    for (const option_row<REQUEST>& row : table)
        texts.push_back(row.text);
    return texts;
}

// The whole text as a number in [lowest, highest]; throws usage_error.
template <typename NUMBER>
NUMBER read_number(const std::string& option, std::string_view text, NUMBER lowest,
                   NUMBER highest) {
    NUMBER value{};
    const auto [end, bad] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (bad == std::errc() && end == text.data() + text.size() && value >= lowest &&
        value <= highest)
        return value;
    std::ostringstream bounds;
    bounds << std::setprecision(15) << lowest << " to " << highest;
    throw usage_error(option + " is a number from " + bounds.str() + ", not '" + std::string(text) +
                      "'");
}
