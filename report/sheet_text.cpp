// The sheet as plain text, for terminals and the clipboard.
#include "sheet.h"

#include <algorithm>

namespace {

// Characters, not bytes.
std::size_t width_of(std::string_view text) {
    return static_cast<std::size_t>(std::ranges::count_if(
        text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

std::string table_text(const sheet_table& table) {
    std::vector<std::vector<std::string>> rows = table.rows;
    if (!table.heads.empty())
        rows.insert(rows.begin(), table.heads);
    std::vector<std::size_t> widths;
    for (const auto& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], width_of(row[i]));
    }
    std::string text;
    for (const auto& row : rows) {
        std::string line = "  ";
        for (std::size_t i = 0; i < row.size(); ++i)
            line += row[i] + std::string(widths[i] - width_of(row[i]) + 2, ' ');
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + "\n";
    }
    return text;
}

} // namespace

std::string sheet_text(const report_sheet& sheet) {
    std::string text =
        sheet.title + (sheet.vin.empty() ? "" : " " + sheet.vin) + "\n" + sheet.read_at + "\n\n";
    for (const std::string& one : sheet.warnings)
        text += one + "\n\n";
    sheet_table facts;
    for (const sheet_fact& one : sheet.facts)
        facts.rows.push_back({one.label, one.value});
    text += table_text(facts);
    for (const sheet_section& section : sheet.sections) {
        text += "\n" + section.title + "\n";
        for (const sheet_block& block : section.blocks)
            text += block.what == sheet_block::kind::table ? table_text(block.table)
                                                           : "  " + block.text + "\n";
    }
    return text + "\n" + sheet.foot + "\n";
}
