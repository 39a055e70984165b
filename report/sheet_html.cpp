// The sheet as HTML. Whatever it holds is text: markup in it is shown, not followed.
#include "sheet.h"

namespace {

constexpr char STYLE[] = R"(
@page { margin: 15mm }
body { font: 11pt/1.4 "Liberation Sans", Helvetica, Arial, sans-serif; color: #000; background: #fff;
       max-width: 190mm; margin: 8mm auto; padding: 0 4mm }
h1 { font-size: 18pt; margin: 0 }
h2 { font-size: 13pt; margin: 7mm 0 2mm; border-bottom: 1px solid #000; break-after: avoid }
h3 { font-size: 11pt; margin: 4mm 0 1mm; break-after: avoid }
p { margin: 1mm 0 }
table { border-collapse: collapse; width: 100%; margin: 1mm 0 2mm }
th, td { text-align: left; vertical-align: top; padding: 1mm 2mm 1mm 0; border-bottom: 1px solid #bbb }
th { border-bottom-color: #000 }
tr { break-inside: avoid }
.facts td { border: 1px solid #000; padding: 2mm; width: 33% }
.facts b { display: block; font-size: 13pt }
.byhand td { border: 0; border-bottom: 1px solid #000; padding-top: 5mm }
.warning { border: 2px solid #000; padding: 2mm }
)";

// As much of it as Qt's rich text knows; colours are the desktop's.
constexpr char SCREEN_STYLE[] = R"(
.facts td { border: 1px solid gray; padding: 8px }
.facts b { font-size: x-large }
p.warning { font-weight: bold }
)";

std::string escaped(std::string_view text) {
    std::string html;
    for (const char c : text)
        switch (c) {
        case '&':
            html += "&amp;";
            break;
        case '<':
            html += "&lt;";
            break;
        case '>':
            html += "&gt;";
            break;
        case '"':
            html += "&quot;";
            break;
        case '\'':
            html += "&#39;";
            break;
        default:
            html += c;
        }
    return html;
}

std::string tagged(std::string_view tag, std::string_view text) {
    return "<" + std::string(tag) + ">" + escaped(text) + "</" +
           std::string(tag.substr(0, tag.find(' '))) + ">";
}

std::string table_html(const sheet_table& table, std::string_view attributes) {
    int all = 0;
    for (const int weight : table.weights)
        all += weight;
    const auto cell = [&](std::string_view tag, std::size_t column) {
        return std::string(tag) + " width=\"" + std::to_string(table.weights[column] * 100 / all) +
               "%\"";
    };
    std::string html = "<table" + std::string(attributes) + ">\n";
    if (!table.heads.empty()) {
        html += "<thead><tr>";
        for (std::size_t i = 0; i < table.heads.size(); ++i)
            html += tagged(cell("th", i), table.heads[i]);
        html += "</tr></thead>\n";
    }
    html += "<tbody>\n";
    for (const auto& row : table.rows) {
        html += "<tr>";
        for (std::size_t i = 0; i < row.size(); ++i)
            html += tagged(cell("td", i), row[i]);
        html += "</tr>\n";
    }
    return html + "</tbody></table>\n";
}

std::string body_of(const report_sheet& sheet, std::string_view attributes) {
    std::string html;
    for (const std::string& one : sheet.warnings)
        html += tagged("p class=\"warning\"", one) + "\n";
    html += "<table class=\"facts\" width=\"100%\"" + std::string(attributes) + "><tr>";
    for (const sheet_fact& one : sheet.facts)
        html += "<td>" + escaped(one.label) + "<br>" + tagged("b", one.value) + "</td>";
    html += "</tr></table>\n";
    for (const sheet_section& section : sheet.sections) {
        html += tagged("h2", section.title) + "\n";
        for (const sheet_block& block : section.blocks)
            html += block.what == sheet_block::kind::table
                        ? table_html(block.table, " width=\"100%\"" + std::string(attributes))
                    : block.what == sheet_block::kind::heading ? tagged("h3", block.text) + "\n"
                                                               : tagged("p", block.text) + "\n";
    }
    return html + tagged("p", sheet.foot) + "\n";
}

std::string head_of(const report_sheet& sheet) {
    return tagged("h1", sheet.title) + "\n" +
           tagged("p", sheet.vin + (sheet.vin.empty() ? "" : ", ") + sheet.read_at) + "\n";
}

} // namespace

std::string sheet_html(const report_sheet& sheet) {
    std::string html = "<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n" +
                       tagged("title", sheet.title + " " + sheet.vin) + "\n<style>" + STYLE +
                       "</style>\n</head>\n<body>\n" + head_of(sheet);
    if (!sheet.to_fill_in.empty()) {
        html += "<table class=\"byhand\"><tr>";
        for (const std::string& one : sheet.to_fill_in)
            html += tagged("td", one + ":");
        html += "</tr></table>\n";
    }
    html += body_of(sheet, "");
    if (!sheet.to_fill_in.empty())
        html += "<table class=\"byhand\"><tr>" + tagged("td", sheet.signature + ":") +
                "</tr></table>\n";
    return html + "</body>\n</html>\n";
}

std::string sheet_rich_text(const report_sheet& sheet) {
    return "<style>" + std::string(SCREEN_STYLE) + "</style>" + head_of(sheet) +
           body_of(sheet, " border=\"0\" cellspacing=\"0\" cellpadding=\"4\"");
}
