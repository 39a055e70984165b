// Run log files, as they become tables.
#include "log_export.h"

#include "fuzz_one.h"
#include "fuzz_toolkit.h"
#include "scratch_folder.h"
#include "text.h"

#include <fstream>
#include <iterator>

namespace {

std::string content(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// The pieces that count as lines, one after the other.
std::vector<std::string> lines_of(std::string_view log) {
    std::vector<std::string> lines(1);
    for (const char c : log) {
        lines.back() += c;
        if (c == '\n' || lines.back().size() == 999)
            lines.emplace_back();
    }
    if (lines.back().empty())
        lines.pop_back();
    return lines;
}

std::size_t fields_in(const std::string& line) {
    std::size_t fields = 0;
    const std::string spaceless = without(line, " ");
    for (const std::string_view piece : split(spaceless, ","))
        fields += !piece.empty();
    return std::max<std::size_t>(fields, 1);
}

// "nan", or a number with six decimals.
bool is_value(std::string_view text) {
    if (text == "nan")
        return true;
    if (text.starts_with('-'))
        text.remove_prefix(1);
    const std::size_t point = text.find('.');
    return point != text.npos && point > 0 && text.size() == point + 7 &&
           text.find_first_not_of("0123456789.") == text.npos;
}

} // namespace

int fuzz_one(std::span<const std::uint8_t> bytes) {
    static const scratch_folder folder;
    static const fuzz_toolkit toolkit(false);
    const std::string log(as_text(bytes));
    const std::string source = folder.write("run.gol", log), output = folder.path("run.csv");
    const export_outcome outcome = export_log(toolkit.decoder, source, output);
    REQUIRE(content(source) == log);
    REQUIRE(std::filesystem::exists(output) == (outcome.result == export_result::exported));
    REQUIRE(outcome.error.empty() == (outcome.result == export_result::exported));
    REQUIRE(outcome.result == (log.empty() ? export_result::empty : export_result::exported));
    if (log.empty())
        return 0;

    const std::string table = content(output);
    const std::vector<std::string> lines = lines_of(log);
    const std::vector<std::string_view> rows = split(table, "\n");
    REQUIRE(outcome.rows == lines.size());
    REQUIRE(rows.size() == lines.size() + 2 && rows.back().empty()); // a header, and an end to each
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::vector<std::string_view> values = split(rows[i + 1], ",");
        REQUIRE(values.size() == fields_in(lines[i]));
        for (const std::string_view value : values)
            REQUIRE(is_value(value));
    }
    REQUIRE(export_log(toolkit.decoder, source, output).result == export_result::output_exists);
    REQUIRE(content(output) == table);
    std::filesystem::remove(output);
    return 0;
}
