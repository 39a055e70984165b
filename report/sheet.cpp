#include "sheet.h"

#include "bundle.h"
#include "sheet_parts.h"
#include "text.h"
#include "unread_text.h"

#include <algorithm>
#include <set>
#include <utility>

namespace {

using cells = std::vector<std::string>;

bool since_cleared(unsigned pid) {
    return pid == 0x21 || pid == 0x30 || pid == 0x31 || pid == 0x4D || pid == 0x4E;
}
constexpr unsigned OBD_STANDARD = 0x1C, FUEL = 0x51, ODOMETER = 0xA6, ENGINE_SPEED = 0x0C;

// "2026-11-22T18:04:07+01:00" in a readable form.
std::string moment(const std::string& read_at) {
    return replace_all(replace_all(replace_all(read_at, "T", " "), "+", " +"), "Z", " UTC");
}

// Equal values of several units appear once.
void add_readings(sheet_table& to, const car_report& report, bool (*wanted)(unsigned pid)) {
    for (const unit_report& unit : report.units)
        for (const reported_value& one : unit.readings) {
            if (!wanted(one.pid))
                continue;
            const bool alike = std::ranges::none_of(report.units, [&](const unit_report& other) {
                return std::ranges::any_of(other.readings, [&](const reported_value& same) {
                    return same.pid == one.pid && same.text != one.text;
                });
            });
            const cells row{alike ? one.name : one.name + ", " + unit_label(unit), one.text};
            if (std::ranges::find(to.rows, row) == to.rows.end())
                to.rows.push_back(row);
        }
}

sheet_table pairs() {
    return {{}, {2, 3}, {}};
}

void vehicle_section(sheet_section& to, const car_report& report, const bundle& texts) {
    sheet_table table = pairs();
    std::set<std::string> different;
    std::string vin = instead(report, part::vin, texts);
    for (const unit_report& unit : report.units)
        if (unit.of(part::vin).reported() && different.insert(unit.vin).second &&
            different.size() == 1)
            vin = unit.vin_is_standard
                      ? unit.vin
                      : say(texts, "report_vin_odd", {unit.vin, unit.of(part::vin).raw});
    table.rows.push_back({texts.localized("report_vin"), vin});
    add_readings(table, report, [](unsigned pid) {
        return pid == OBD_STANDARD || pid == FUEL || pid == ODOMETER;
    });
    to.table(std::move(table));
    if (different.size() < 2)
        return;
    std::string all;
    for (const std::string& one : different)
        all += (all.empty() ? "" : ", ") + one;
    to.line(say(texts, "report_vins_differ", {all}));
}

void readings_section(sheet_section& to, const car_report& report, const bundle& texts) {
    sheet_table table = pairs();
    table.rows.push_back({texts.localized("report_read_at"), moment(report.transcript.read_at)});
    table.rows.push_back({texts.localized("report_volts"), report.adapter_volts.empty()
                                                               ? texts.localized("report_not_told")
                                                               : report.adapter_volts});
    for (const unit_report& unit : report.units)
        if (const auto speed = std::ranges::find(unit.readings, ENGINE_SPEED, &reported_value::pid);
            speed != unit.readings.end()) {
            const bool running = !speed->found.raw.ends_with("0000");
            table.rows.push_back({texts.localized("report_engine_running"),
                                  texts.localized(running ? "report_yes" : "report_no")});
            break;
        }
    add_readings(table, report, [](unsigned pid) {
        return !since_cleared(pid) && pid != OBD_STANDARD && pid != FUEL && pid != ODOMETER;
    });
    to.table(std::move(table));
}

void cleared_section(sheet_section& to, const car_report& report, const bundle& texts) {
    sheet_table table = pairs();
    add_readings(table, report, since_cleared);
    if (table.rows.empty()) {
        const bool lost = std::ranges::any_of(report.units, [](const unit_report& unit) {
            return std::ranges::any_of(unit.gaps, [](const finding& gap) {
                return gap.request.starts_with("01") && gap.result == outcome::unread;
            });
        });
        to.line(texts.localized(lost ? "report_unread" : "report_not_told"));
    }
    to.table(std::move(table));
}

void adapter_section(sheet_section& to, const car_report& report, const bundle& texts) {
    sheet_table table = pairs();
    const auto add = [&](std::string_view key, const std::string& value) {
        table.rows.push_back(
            {texts.localized(key), value.empty() ? texts.localized("report_not_told") : value});
    };
    add("report_adapter", report.adapter);
    add("report_protocol",
        report.protocol +
            (report.protocol_number.empty() ? "" : " (" + report.protocol_number + ")"));
    std::string units;
    for (const unit_report& unit : report.units)
        units += (units.empty() ? "" : ", ") + unit_label(unit);
    add("report_answered", units.empty() ? texts.localized("report_none") : units);
    const int tenths = (report.transcript.milliseconds + 50) / 100;
    add("report_seconds", std::to_string(tenths / 10) + "." + std::to_string(tenths % 10) + " s");
    to.table(std::move(table));
}

void units_section(sheet_section& to, const car_report& report, const bundle& texts) {
    sheet_table table{{texts.localized("report_col_address"), texts.localized("report_col_name"),
                       texts.localized("report_col_calibration"),
                       texts.localized("report_col_verification")},
                      {2, 5, 5, 5},
                      {}};
    for (const unit_report& unit : report.units) {
        cells first{unit.address, unit.name};
        const auto add = [&](const calibration& one) {
            first.push_back(calibration_id(unit, one, texts));
            first.push_back(calibration_number(unit, one, texts));
            table.rows.push_back(std::exchange(first, cells(2)));
        };
        std::ranges::for_each(unit.calibrations, add);
        if (unit.calibrations.empty())
            add({});
    }
    if (table.rows.empty())
        to.line(texts.localized("report_not_told"));
    to.table(std::move(table));
}

struct section_row {
    std::string_view name;
    section_maker make;
};
constexpr section_row SECTIONS[] = {
    {"vehicle", vehicle_section},     {"readings", readings_section}, {"adapter", adapter_section},
    {"units", units_section},         {"codes", codes_section},       {"frames", frames_section},
    {"readiness", readiness_section}, {"cleared", cleared_section},   {"tests", tests_section},
    {"counters", counters_section},   {"unread", unread_section},
};

std::string lamp_text(const car_report& report, const bundle& texts) {
    bool whole = false;
    const auto lamp = report.lamp(whole);
    if (!lamp)
        return instead(report, part::status, texts);
    return texts.localized(*lamp ? "report_on" : whole ? "report_off" : "report_off_so_far");
}

std::string count_text(const car_report& report, part kind, const bundle& texts) {
    bool whole = false;
    const auto count = report.count(kind, whole);
    if (!count)
        return instead(report, kind, texts);
    if (!whole && *count == 0)
        return texts.localized("report_none_so_far");
    return whole ? std::to_string(*count) : say(texts, "report_at_least", {std::to_string(*count)});
}

std::vector<sheet_fact> facts_of(const car_report& report, const bundle& texts) {
    const auto ready = report.readiness();
    return {{texts.localized("report_fact_lamp"), lamp_text(report, texts)},
            {texts.localized("report_fact_codes"),
             say(texts, "report_counts",
                 {count_text(report, part::stored, texts), count_text(report, part::pending, texts),
                  count_text(report, part::permanent, texts)})},
            {texts.localized("report_fact_readiness"),
             ready ? say(texts, "report_ready",
                         {std::to_string(ready->complete), std::to_string(ready->supported)})
                   : instead(report, part::status, texts)}};
}

// For a value missing from a list that may be complete otherwise.
std::string instead_of_item(const finding& list, const bundle& texts) {
    return list.reported() ? texts.localized("report_not_told") : instead(list, texts);
}

} // namespace

std::string say(const bundle& texts, std::string_view key,
                std::initializer_list<std::string> places) {
    const std::string pattern = texts.localized(key);
    std::string text;
    for (std::size_t at = 0; at < pattern.size(); ++at) {
        const std::size_t place = pattern[at] == '%' && at + 1 < pattern.size()
                                      ? static_cast<std::size_t>(pattern[at + 1] - '1')
                                      : places.size();
        if (place < places.size()) { // inserted text is not searched again
            text += *(places.begin() + place);
            ++at;
        } else {
            text += pattern[at];
        }
    }
    return text;
}

std::string named(const bundle& texts, const std::string& name) {
    const std::string known = texts.localized("report_name_" + name);
    return known.empty() ? name : known;
}

std::string instead(const finding& found, const bundle& texts) {
    return say(texts, "report_" + std::string(outcome_name(found.result)), {found.why});
}

std::string instead(const car_report& report, part one, const bundle& texts) {
    const auto outcome_of = [one](const unit_report& unit) { return unit.of(one).result; };
    const auto worst = std::ranges::max_element(report.units, {}, outcome_of);
    return worst == report.units.end() ? texts.localized("report_not_told")
                                       : instead(worst->of(one), texts);
}

std::string calibration_id(const unit_report& unit, const calibration& one, const bundle& texts) {
    return one.id.empty() ? instead_of_item(unit.of(part::calibrations), texts) : one.id;
}
std::string calibration_number(const unit_report& unit, const calibration& one,
                               const bundle& texts) {
    return one.verification_number.empty()
               ? instead_of_item(unit.of(part::verification_numbers), texts)
               : one.verification_number;
}

std::string unit_label(const unit_report& unit) {
    return unit.address.empty() ? unit.name : unit.name + " (" + unit.address + ")";
}

std::string why_not(const finding& found, const bundle& texts) {
    if (found.result == outcome::refused)
        return found.why;
    std::string why = found.why.empty() ? "" : texts.localized("report_why_" + found.why);
    if (const std::string causes = unread_causes(texts, found.unread); !causes.empty())
        why += (why.empty() ? "" : "; ") + causes;
    return why;
}

std::string bar_of(int percent) {
    constexpr int PARTS_OF_A_BAR = 10;
    std::string bar;
    for (int i = 0; i < PARTS_OF_A_BAR; ++i)
        bar += i * 100 < percent * PARTS_OF_A_BAR ? "█" : "░";
    return bar + "\u00A0" + std::to_string(percent) + "\u00A0%";
}

std::span<const std::string_view> section_names() {
    static const auto names = [] {
        std::array<std::string_view, std::size(SECTIONS)> all;
        std::ranges::transform(SECTIONS, all.begin(), &section_row::name);
        return all;
    }();
    return names;
}

void report_sheet::keep(std::span<const std::string> names) {
    std::erase_if(sections, [&](const sheet_section& one) {
        return std::ranges::find(names, one.name) == names.end();
    });
}

report_sheet sheet_of(const car_report& report, const bundle& texts) {
    report_sheet sheet;
    sheet.title = texts.localized("report_title");
    sheet.vin = report.vin;
    sheet.read_at = moment(report.transcript.read_at);
    for (const char* key : {"report_plate", "report_owner", "report_odometer"})
        sheet.to_fill_in.push_back(texts.localized(key));
    sheet.signature = texts.localized("report_signature");
    constexpr const char* ENDS[] = {"", "report_end_cancelled", "report_end_time_up",
                                    "report_end_adapter_silent", "report_end_link_lost"};
    if (report.transcript.end != reading_end::complete)
        sheet.warnings.push_back(
            texts.localized(ENDS[static_cast<std::size_t>(report.transcript.end)]));
    sheet.facts = facts_of(report, texts);
    for (const section_row& row : SECTIONS) {
        sheet_section section{
            row.name, texts.localized("report_section_" + std::string(row.name)), {}};
        row.make(section, report, texts);
        if (!section.blocks.empty())
            sheet.sections.push_back(std::move(section));
    }
    sheet.foot = texts.localized("report_foot") + " " + report.transcript.program;
    sheet.page = texts.localized("report_page");
    return sheet;
}
