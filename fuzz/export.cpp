// Run log files, exported as tables.
#include "fuzz_one.h"
#include "fuzz_toolkit.h"
#include "log_export.h"
#include "pieces_of_log.h"
#include "scratch_folder.h"
#include "text.h"

#include <fstream>
#include <iterator>

namespace {

std::string content(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::size_t fields_in(const std::string& line, const export_form& form) {
    std::size_t fields = form.with_time ? 1 : 0;
    const std::string spaceless = without(line, " ");
    for (const std::string_view piece : split(spaceless, ","))
        fields += !form.to_the_letter || !piece.empty();
    return std::max<std::size_t>(fields, 1);
}

// "nan", or a number with six decimals; a time has three.
bool is_value(std::string_view text, std::size_t decimals) {
    if (text == "nan")
        return true;
    if (text.starts_with('-'))
        text.remove_prefix(1);
    const std::size_t point = text.find('.');
    return point != text.npos && point > 0 && text.size() == point + 1 + decimals &&
           text.find_first_not_of("0123456789.") == text.npos;
}

// The log also serves as its companion, thoroughly damaged.
void export_in(const export_form& form, const scratch_folder& folder, const std::string& log) {
    static const fuzz_toolkit toolkit(false);
    const std::string source = folder.write("run.gol", log), output = folder.path("run.csv");
    folder.write("run.gol.times", log);
    const export_outcome outcome = export_log(toolkit.decoder, source, output, form);
    REQUIRE(content(source) == log);
    REQUIRE(std::filesystem::exists(output) == (outcome.result == export_result::exported));
    REQUIRE(outcome.error.empty() == (outcome.result == export_result::exported));
    REQUIRE(outcome.result == (log.empty() ? export_result::empty : export_result::exported));
    if (log.empty())
        return;

    const std::string table = content(output);
    const std::vector<std::string> lines = lines_of(log);
    const std::vector<std::string_view> rows = split(table, "\n");
    REQUIRE(outcome.rows == lines.size());
    REQUIRE(rows.size() == lines.size() + 2 && rows.back().empty()); // a header, and an end to each
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::vector<std::string_view> values = split(rows[i + 1], ",");
        REQUIRE(values.size() == fields_in(lines[i], form));
        for (std::size_t n = 0; n < values.size(); ++n)
            REQUIRE(is_value(values[n], form.with_time && n == 0 ? 3 : 6));
    }
    REQUIRE(export_log(toolkit.decoder, source, output).result == export_result::output_exists);
    REQUIRE(content(output) == table);
    std::filesystem::remove(output);
}

} // namespace

int fuzz_one(std::span<const std::uint8_t> bytes) {
    static const scratch_folder folder;
    const std::string log(as_text(bytes));
    for (const export_form& form :
         {export_form{}, export_form{.with_time = true}, export_form{.to_the_letter = true}})
        export_in(form, folder, log);
    return 0;
}
