#include "option_table.h"

#include "text.h"

#include <QCommandLineParser>

#include <algorithm>
#include <cctype>

namespace {

constexpr std::size_t EFFECT_COLUMN = 24;

bool optional_value(const option_text& option) {
    return option.value.starts_with("[");
}

// The allowed values; empty if any is allowed.
std::vector<std::string_view> choices(const option_text& option) {
    const bool listed =
        contains(option.value, "|") &&
        std::ranges::none_of(option.value, [](unsigned char c) { return std::isupper(c); });
    return listed ? split(option.value, "|") : std::vector<std::string_view>();
}

QString plain_name(const option_text& option) {
    const std::string_view name = trimmed(option.name, "-");
    return QLatin1String(name.data(), static_cast<qsizetype>(name.size()));
}

// Qt has no options with an optional value: here a missing value is passed as an empty one. Each
// character is one byte, so that file names of any bytes pass.
QStringList words_for_qt(std::span<const option_text> table,
                         std::span<const std::string> arguments) {
    QStringList words{QString()}; // the program
    bool options_end = false;
    for (const std::string& word : arguments) {
        options_end = options_end || word == "--";
        const auto row = std::ranges::find(table, word, &option_text::name);
        const bool bare = !options_end && row != table.end() && optional_value(*row);
        words.append(QString::fromLatin1(QByteArray::fromStdString(bare ? word + "=" : word)));
    }
    return words;
}

std::string complaint(const QCommandLineParser& parser) {
    if (const QStringList unknown = parser.unknownOptionNames(); !unknown.isEmpty())
        return "unknown option " + std::string(unknown[0].size() == 1 ? "-" : "--") +
               unknown[0].toLatin1().toStdString();
    std::string help =
        parser.errorText().toLatin1().toStdString(); // "Missing value after '--port'."
    help[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(help[0])));
    return std::string(trimmed(help, "."));
}

void check_value(const option_text& option, const std::string& value) {
    const auto known = choices(option);
    if (known.empty() || std::ranges::find(known, value) != known.end())
        return;
    throw usage_error(std::string(option.name) + " is one of " +
                      replace_all(option.value, "|", ", ") + ", not '" + value + "'");
}

void check_exclusions(std::span<const option_text> table, const words_read& words) {
    for (const auto& [row, value] : words.options)
        for (const std::string_view other : words_of(table[row].excludes))
            for (const auto& given : words.options)
                if (table[given.first].name == other)
                    throw usage_error(std::string(table[row].name) + " and " + std::string(other) +
                                      " exclude each other");
}

} // namespace

std::vector<std::string_view> words_of(std::string_view text) {
    return text.empty() ? std::vector<std::string_view>() : split(text, " ");
}

words_read read_words(std::span<const option_text> table, std::span<const std::string> arguments) {
    QCommandLineParser parser;
    for (const option_text& option : table)
        parser.addOption(
            {plain_name(option), {}, option.value.empty() ? QString() : QStringLiteral("value")});
    if (!parser.parse(words_for_qt(table, arguments)))
        throw usage_error(complaint(parser));
    words_read words;
    QHash<QString, qsizetype> seen;
    for (const QString& name : parser.optionNames()) {
        const auto row = std::ranges::find(table, name, plain_name);
        const std::string value = row->value.empty()
                                      ? std::string()
                                      : parser.values(name)[seen[name]++].toLatin1().toStdString();
        check_value(*row, value);
        words.options.emplace_back(row - table.begin(), value);
    }
    check_exclusions(table, words);
    for (const QString& word : parser.positionalArguments())
        words.others.push_back(word.toLatin1().toStdString());
    return words;
}

bool goes_with(const option_text& option, std::string_view subject) {
    const auto words = words_of(option.belongs);
    return words.empty() || std::ranges::find(words, subject) != words.end();
}

void check_belonging(std::span<const option_text> table, const words_read& words,
                     std::span<const std::string_view> subjects, std::string_view what) {
    for (const auto& [row, value] : words.options) {
        const option_text& option = table[row];
        if (std::ranges::none_of(subjects, [&](auto one) { return goes_with(option, one); }))
            throw usage_error(std::string(option.name) + " does not go with " + std::string(what));
    }
}

std::string help_line(std::string_view name, std::string_view effect) {
    const std::string indent = "\n" + std::string(EFFECT_COLUMN, ' ');
    std::string line = "  " + std::string(name);
    if (line.size() + 2 > EFFECT_COLUMN)
        line += indent;
    line.resize(std::max(line.size(), EFFECT_COLUMN), ' ');
    return line + replace_all(effect, "\n", indent) + "\n";
}

std::string option_lines(std::span<const option_text> rows) {
    std::string lines;
    for (const option_text& row : rows)
        lines += help_line(std::string(row.name) +
                               (row.value.empty() || optional_value(row) ? "" : " ") +
                               std::string(row.value),
                           row.effect);
    return lines;
}
