// Codes, freeze frames, readiness, tests, counters, and what is missing.
#include "bundle.h"
#include "sheet_parts.h"
#include "text.h"

#include <algorithm>
#include <map>
#include <set>

namespace {

constexpr char TICK[] = "✓";

std::string word(const bundle& texts, std::string_view key) {
    return texts.localized(key);
}

sheet_table codes_of(const unit_report& unit, const bundle& texts) {
    sheet_table table{{word(texts, "report_col_code"), word(texts, "report_col_meaning"),
                       word(texts, "report_col_stored"), word(texts, "report_col_pending"),
                       word(texts, "report_col_permanent"), word(texts, "report_col_frame")},
                      {3, 14, 4, 4, 4, 3},
                      {}};
    for (const reported_code& one : unit.codes) {
        std::vector<std::string> row{
            one.code, one.meaning.empty() ? word(texts, "report_unknown_code") : one.meaning};
        // A tick; empty if the list does not contain it; "?" without a list.
        for (std::size_t kind = 0; kind < CODE_KINDS.size(); ++kind)
            row.push_back(one.kinds[kind] ? TICK
                          : unit.of(CODE_KINDS[kind]).reported() &&
                                  unit.of(CODE_KINDS[kind]).unread.empty()
                              ? ""
                              : "?");
        row.push_back(one.kept_frame ? TICK : unit.of(part::frame).reported() ? "" : "?");
        table.rows.push_back(std::move(row));
    }
    return table;
}

// Lists without codes: "none", or the reason.
std::string empty_lists(const unit_report& unit, const bundle& texts) {
    std::string text;
    for (std::size_t kind = 0; kind < CODE_KINDS.size(); ++kind) {
        const finding& found = unit.of(CODE_KINDS[kind]);
        const bool any = std::ranges::any_of(
            unit.codes, [&](const reported_code& one) { return one.kinds[kind]; });
        if (any && found.unread.empty())
            continue;
        text += (text.empty() ? "" : "; ") +
                word(texts, "report_part_" + std::string(part_name(CODE_KINDS[kind]))) + ": ";
        text += !found.reported()       ? instead(found, texts)
                : !found.unread.empty() ? word(texts, "report_partly")
                                        : word(texts, "report_none");
    }
    return text;
}

std::string state_of(bool complete, const bundle& texts) {
    return word(texts, complete ? "report_complete" : "report_not_complete");
}

void add_missing(sheet_section& to, const car_report& report, part one, const bundle& texts) {
    for (const unit_report& unit : report.units)
        if (!unit.of(one).reported())
            to.line(unit_label(unit) + ": " + instead(unit.of(one), texts));
}

} // namespace

void codes_section(sheet_section& to, const car_report& report, const bundle& texts) {
    for (const unit_report& unit : report.units) {
        to.heading(unit_label(unit));
        to.table(codes_of(unit, texts));
        if (std::string rest = empty_lists(unit, texts); !rest.empty())
            to.line(std::move(rest));
        if (unit.of(part::status).reported() && unit.of(part::stored).reported() &&
            static_cast<std::size_t>(unit.announced_codes) != unit.stored_received)
            to.line(say(texts, "report_mismatch",
                        {unit_label(unit), std::to_string(unit.announced_codes),
                         std::to_string(unit.stored_received)}));
    }
    to.line(report.units.empty() ? word(texts, "report_not_told") : word(texts, "report_legend"));
}

void frames_section(sheet_section& to, const car_report& report, const bundle& texts) {
    for (const unit_report& unit : report.units) {
        if (unit.frame_code.empty())
            continue;
        to.heading(unit_label(unit) + ": " + unit.frame_code);
        sheet_table table{{}, {2, 3}, {}};
        for (const reported_value& one : unit.frame_values)
            table.rows.push_back({one.name, one.text});
        to.table(std::move(table));
    }
    std::string none;
    for (const unit_report& unit : report.units)
        if (unit.of(part::frame).reported() && unit.frame_code.empty())
            none += (none.empty() ? "" : ", ") + unit_label(unit);
    if (!none.empty())
        to.line(none + ": " + word(texts, "report_none"));
    add_missing(to, report, part::frame, texts);
}

void readiness_section(sheet_section& to, const car_report& report, const bundle& texts) {
    for (const unit_report& unit : report.units) {
        if (unit.monitors.empty())
            continue;
        to.heading(unit_label(unit) + ", " +
                   word(texts, unit.compression ? "report_compression" : "report_spark"));
        const bool has_drive = unit.of(part::this_drive).reported();
        sheet_table table{
            {word(texts, "report_col_monitor"), word(texts, "report_col_state")}, {4, 3}, {}};
        if (has_drive) {
            table.heads.push_back(word(texts, "report_col_drive"));
            table.weights.push_back(3);
        }
        std::string missing;
        for (const reported_monitor& one : unit.monitors) {
            if (!one.supported) {
                missing += (missing.empty() ? "" : ", ") + named(texts, one.name);
                continue;
            }
            table.rows.push_back({named(texts, one.name), state_of(one.complete, texts)});
            if (has_drive)
                table.rows.back().push_back(
                    one.complete_this_drive ? state_of(*one.complete_this_drive, texts) : "–");
        }
        to.table(std::move(table));
        if (!missing.empty())
            to.line(say(texts, "report_not_supported", {missing}));
    }
    add_missing(to, report, part::status, texts);
    if (report.units.empty())
        to.line(word(texts, "report_not_told"));
}

void tests_section(sheet_section& to, const car_report& report, const bundle& texts) {
    constexpr const char* VERDICTS[] = {"report_failed", "report_passed", "report_no_result"};
    bool misfire = false;
    for (const unit_report& unit : report.units) {
        if (unit.tests.empty())
            continue;
        to.heading(unit_label(unit));
        sheet_table table{{word(texts, "report_col_test"), word(texts, "report_col_value"),
                           word(texts, "report_col_lowest"), word(texts, "report_col_highest"),
                           word(texts, "report_col_result"), word(texts, "report_col_near")},
                          {11, 4, 4, 4, 4, 7},
                          {}};
        for (const reported_test& one : unit.tests) {
            std::string name = one.monitor;
            if (!one.test.empty())
                name += (name.empty() ? "" : ": ") + one.test;
            name += (name.empty() ? "" : " ") + ("[" + one.id + "]");
            misfire = misfire || one.id.starts_with("A");
            table.rows.push_back({name, one.value, one.lowest, one.highest,
                                  word(texts, VERDICTS[static_cast<std::size_t>(one.result)]),
                                  one.nearness ? bar_of(*one.nearness) : ""});
        }
        to.table(std::move(table));
    }
    if (misfire)
        to.line(word(texts, "report_cylinders"));
    add_missing(to, report, part::tests, texts);
    if (!report.units.empty() && !report.transcript.on_can())
        to.line(word(texts, "report_no_o2_tests"));
}

void counters_section(sheet_section& to, const car_report& report, const bundle& texts) {
    for (const unit_report& unit : report.units) {
        if (unit.counters.empty())
            continue;
        to.heading(unit_label(unit));
        sheet_table table{{word(texts, "report_col_monitor"), word(texts, "report_col_done"),
                           word(texts, "report_col_conditions"), word(texts, "report_col_ratio")},
                          {6, 2, 3, 2},
                          {}};
        for (const reported_counter& one : unit.counters) {
            std::string ratio;
            if (one.conditions && *one.conditions > 0) {
                const unsigned long hundredths = (one.done * 1000UL / *one.conditions + 5) / 10;
                ratio = std::to_string(hundredths / 100) + "." +
                        (hundredths % 100 < 10 ? "0" : "") + std::to_string(hundredths % 100);
            }
            table.rows.push_back({named(texts, one.name), std::to_string(one.done),
                                  one.conditions ? std::to_string(*one.conditions) : "", ratio});
        }
        to.table(std::move(table));
    }
    add_missing(to, report, part::counters, texts);
}

// One row for the same gap in several units.
void unread_section(sheet_section& to, const car_report& report, const bundle& texts) {
    std::vector<std::vector<std::string>> rows; // what, outcome, reason, units
    const auto add = [&](const std::string& what, const finding& found, const unit_report& unit) {
        std::vector<std::string> row{what, instead(found, texts),
                                     found.result == outcome::refused ? "" : why_not(found, texts),
                                     unit_label(unit)};
        if (found.reported())
            row[1] = word(texts, "report_partly");
        const auto same = std::ranges::find_if(rows, [&](const auto& other) {
            return std::equal(row.begin(), row.end() - 1, other.begin());
        });
        if (same == rows.end())
            rows.push_back(std::move(row));
        else
            same->back() += ", " + row.back();
    };
    for (std::size_t i = 0; i < PARTS; ++i)
        for (const unit_report& unit : report.units)
            if (const finding& found = unit.findings[i]; !found.reported() || !found.unread.empty())
                add(word(texts, "report_part_" + std::string(part_name(static_cast<part>(i)))),
                    found, unit);
    for (const unit_report& unit : report.units)
        for (const finding& found : unit.gaps)
            add(say(texts, "report_request", {found.request}), found, unit);
    if (rows.empty()) {
        to.line(word(texts, report.units.empty() ? "report_not_told" : "report_nothing_unread"));
        return;
    }
    to.table({{word(texts, "report_col_what"), word(texts, "report_col_result"),
               word(texts, "report_col_why"), word(texts, "report_col_unit")},
              {4, 3, 5, 4},
              std::move(rows)});
}
