// The report as a readable sheet: three facts, then sections of lines and tables. Text, HTML, paper
// and screen are renderings of this.
#pragma once

#include "car_report.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

class bundle;

struct sheet_table {
    std::vector<std::string> heads; // empty: none are shown
    std::vector<int> weights;       // of the columns' widths
    std::vector<std::vector<std::string>> rows;
};

// A line, a heading within a section, or a table.
struct sheet_block {
    enum class kind { line, heading, table } what = kind::line;
    std::string text{};
    sheet_table table{};
};

struct sheet_section {
    std::string_view name; // of section_names()
    std::string title;
    std::vector<sheet_block> blocks;

    void line(std::string text) { blocks.push_back({sheet_block::kind::line, std::move(text)}); }
    void heading(std::string text) {
        blocks.push_back({sheet_block::kind::heading, std::move(text)});
    }
    // A table without rows is left out.
    void table(sheet_table rows) {
        if (!rows.rows.empty())
            blocks.push_back({sheet_block::kind::table, {}, std::move(rows)});
    }
};

struct sheet_fact {
    std::string label, value;
};

struct report_sheet {
    std::string title, vin, read_at;     // vin: empty if not reported
    std::vector<std::string> to_fill_in; // by hand, on paper
    std::string signature;
    std::vector<std::string> warnings;
    std::vector<sheet_fact> facts;
    std::vector<sheet_section> sections;
    std::string foot;
    std::string page; // "Page %1 of %2"

    // Keeps only these sections.
    void keep(std::span<const std::string> names);
};

std::span<const std::string_view> section_names();

report_sheet sheet_of(const car_report& report, const bundle& texts);
// What appeared and disappeared, where both reports have the data.
report_sheet comparison_of(const car_report& before, const car_report& after, const bundle& texts);

// Why a finding is empty, as a sentence.
std::string why_not(const finding& found, const bundle& texts);
// A bar of ten blocks for the nearness of a limit.
std::string bar_of(int percent);

std::string sheet_text(const report_sheet& sheet);
// One self-contained file without scripts or pictures.
std::string sheet_html(const report_sheet& sheet);
// The subset that Qt's rich text supports, for the screen.
std::string sheet_rich_text(const report_sheet& sheet);
