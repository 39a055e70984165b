// Before and after a repair: the differences of two reports. A list missing from one of them yields
// no differences.
#include "bundle.h"
#include "hex_digits.h"
#include "sheet_parts.h"
#include "text.h"

#include <algorithm>
#include <map>

namespace {

// What each report says about an item, by unit and item.
using thing = std::pair<std::string, std::string>;
struct two_states {
    std::string before, after;
};

class comparer {
  public:
    comparer(const car_report& before, const car_report& after, const bundle& texts)
        : before_(before), after_(after), texts_(texts) {}

    sheet_table compare() {
        for (const unit_report& unit : before_.units)
            take(unit, unit_in(after_, unit.address), false);
        for (const unit_report& unit : after_.units)
            take(unit, unit_in(before_, unit.address), true);
        sheet_table table{{word("report_col_unit"), word("report_col_what"),
                           word("report_col_before"), word("report_col_after")},
                          {4, 8, 4, 4},
                          {}};
        for (const auto& [of, states] : states_)
            if (states.before != states.after)
                table.rows.push_back({of.first, of.second, states.before, states.after});
        return table;
    }

  private:
    std::string word(std::string_view key) const { return texts_.localized(key); }

    static const unit_report* unit_in(const car_report& report, std::string_view address) {
        const auto found = std::ranges::find(report.units, address, &unit_report::address);
        return found == report.units.end() ? nullptr : &*found;
    }

    void put(const unit_report& unit, const std::string& what, bool is_after, std::string state,
             std::string other) {
        const thing key{unit.address.empty() ? unit.name : unit.address, what};
        two_states& both = states_.try_emplace(key, two_states{other, other}).first->second;
        (is_after ? both.after : both.before) = std::move(state);
    }

    std::string absence(const unit_report* unit, part one) const {
        if (!unit)
            return word("report_not_told");
        if (!unit->of(one).reported())
            return instead(unit->of(one), texts_);
        return unit->of(one).unread.empty() ? "–" : word("report_partly");
    }

    // The test's answer may be missing, or the list that would name it.
    std::string absence_of(const reported_test& test, const unit_report* unit) const {
        const std::string request = "06" + test.id.substr(0, 2);
        if (unit)
            for (const finding& gap : unit->gaps)
                if (gap.request == request || (gap.request.starts_with("06") &&
                                               hex_value(gap.request.substr(2)) % GROUP == 0))
                    return gap.reported() ? word("report_partly") : instead(gap, texts_);
        return absence(unit, part::tests);
    }

    void take(const unit_report& unit, const unit_report* other, bool is_after) {
        for (const reported_code& code : unit.codes)
            for (std::size_t kind = 0; kind < CODE_KINDS.size(); ++kind)
                if (code.kinds[kind])
                    put(unit,
                        code.code + " " + code.meaning + " (" +
                            word("report_col_" + std::string(part_name(CODE_KINDS[kind]))) + ")",
                        is_after, "✓", absence(other, CODE_KINDS[kind]));
        if (unit.of(part::status).reported())
            put(unit, word("report_fact_lamp"), is_after,
                word(unit.lamp_on ? "report_on" : "report_off"), absence(other, part::status));
        for (const reported_monitor& one : unit.monitors)
            if (one.supported)
                put(unit, named(texts_, one.name), is_after,
                    word(one.complete ? "report_complete" : "report_not_complete"),
                    absence(other, part::status));
        constexpr const char* VERDICTS[] = {"report_failed", "report_passed", "report_no_result"};
        for (const reported_test& one : unit.tests)
            put(unit, one.monitor + " [" + one.id + "]", is_after,
                word(VERDICTS[static_cast<std::size_t>(one.result)]), absence_of(one, other));
        for (std::size_t i = 0; i < unit.calibrations.size(); ++i)
            put(unit, word("report_col_calibration") + " " + std::to_string(i + 1), is_after,
                calibration_id(unit, unit.calibrations[i], texts_) + " " +
                    calibration_number(unit, unit.calibrations[i], texts_),
                absence(other, part::calibrations));
    }

    const car_report &before_, &after_;
    const bundle& texts_;
    std::map<thing, two_states> states_;
};

// Whether they can be the same number, ignoring missing and hidden characters.
bool may_be_one(std::string_view before, std::string_view after) {
    return before.empty() || after.empty() ||
           std::ranges::equal(before, after, [](char one, char other) {
               return one == other || one == '*' || other == '*';
           });
}

} // namespace

report_sheet comparison_of(const car_report& before, const car_report& after, const bundle& texts) {
    report_sheet sheet = sheet_of(after, texts);
    const report_sheet earlier = sheet_of(before, texts);
    sheet.title = texts.localized("report_compare_title");
    sheet.to_fill_in.clear();
    sheet.read_at = earlier.read_at + " – " + sheet.read_at;
    sheet.warnings.insert(sheet.warnings.begin(), earlier.warnings.begin(), earlier.warnings.end());
    if (!may_be_one(before.vin, after.vin))
        sheet.warnings.push_back(say(texts, "report_other_car", {before.vin, after.vin}));
    for (std::size_t i = 0; i < sheet.facts.size(); ++i)
        if (earlier.facts[i].value != sheet.facts[i].value)
            sheet.facts[i].value = earlier.facts[i].value + " → " + sheet.facts[i].value;
    sheet_section changes{"changes", texts.localized("report_section_changes"), {}};
    sheet_table table = comparer(before, after, texts).compare();
    if (table.rows.empty())
        changes.line(texts.localized("report_no_changes"));
    changes.table(std::move(table));
    sheet.sections = {std::move(changes)};
    return sheet;
}
