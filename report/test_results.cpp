// Results of the on-board tests (service 06 of SAE J1979): scaled on CAN, plain numbers on the
// older buses.
#include "findings.h"
#include "hex_digits.h"
#include "mac_toolies.h"
#include "standard_values.h"
#include "text.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace {

constexpr std::size_t RECORD_DIGITS = 18, OLD_DIGITS = 14;
constexpr unsigned FIRST_SIGNED = 0x80, SIGN = 0x8000, WHOLE_RANGE = 0x10000;
constexpr int MOST_PERCENT = 999;

// The number in a word of digits, and the values that mean "no limit" on either side.
struct scale {
    bool is_signed;
    int number(std::string_view word) const {
        const int value = static_cast<int>(hex_value(word));
        return is_signed && value >= static_cast<int>(SIGN) ? value - static_cast<int>(WHOLE_RANGE)
                                                            : value;
    }
    int open_below() const { return is_signed ? -static_cast<int>(SIGN) : 0; }
    int open_above() const { return static_cast<int>(is_signed ? SIGN : WHOLE_RANGE) - 1; }
};

// "0.500000 V" as "0.5 V".
std::string without_spare_zeros(std::string text) {
    const std::size_t end = std::min(text.find(' '), text.size());
    std::size_t last = end;
    if (text.substr(0, end).find('.') != std::string::npos) {
        while (last > 0 && text[last - 1] == '0')
            --last;
        if (last > 0 && text[last - 1] == '.')
            --last;
    }
    text.erase(last, end - last);
    return replace_all(std::string(trimmed(std::string_view(text))), "^C", "°C");
}

std::string scaled(std::string_view scaling, std::string_view word) {
    if (const std::string text = standard_test_value(scaling, word); !text.empty())
        return without_spare_zeros(text);
    if (has_test_scaling(scaling))
        return without_spare_zeros(mac_toolies::CAN_scale_and_units(scaling, word, true));
    return std::string(word) + " (" + std::string(scaling) + ")"; // in no table
}

struct limits {
    int value, lowest, highest;
    bool has_lowest, has_highest;
};

verdict verdict_of(const limits& one) {
    const bool passed = (!one.has_lowest || one.value >= one.lowest) &&
                        (!one.has_highest || one.value <= one.highest);
    return passed ? verdict::passed : verdict::failed;
}

// How close a value is to the nearest limit, in percent; above 100 if it is beyond the limit.
std::optional<int> nearness_of(const limits& one) {
    double share = 0;
    if (one.has_lowest && one.has_highest) {
        const double half = (double(one.highest) - one.lowest) / 2;
        if (half <= 0)
            return std::nullopt;
        share = std::abs(one.value - (one.lowest + half)) / half;
    } else if (one.has_highest && one.highest > 0) {
        share = std::max(0.0, double(one.value) / one.highest);
    } else if (one.has_lowest && one.lowest > 0) {
        share = one.value > 0 ? double(one.lowest) / one.value : MOST_PERCENT;
    } else {
        return std::nullopt;
    }
    return static_cast<int>(std::min(std::floor(share * 100), double(MOST_PERCENT)));
}

// The editions of the standard disagree about these two; most sources use the first meaning.
constexpr std::pair<std::string_view, std::string_view> TWO_MEANINGS[] = {
    {"B0", "Particulate Filter Monitor, Bank 1 (newer: Misfire Monitor, Cylinder 15)"},
    {"B1", "Particulate Filter Monitor, Bank 2 (newer: Misfire Monitor, Cylinder 16)"}};

std::string name_of(const mac_toolies& toolies, std::string_view id, bool monitor) {
    for (const auto& [known, meaning] : TWO_MEANINGS)
        if (monitor && id == known)
            return std::string(meaning);
    std::string name = toolies.grab_CAN_mode6_OBDMID_TESTID_description(id, monitor);
    return name == "N/A" || name == "Reserved" ? std::string() : name;
}

reported_test can_test(std::string_view record, const mac_toolies& toolies) {
    const auto word = [&](std::size_t at) { return record.substr(at, 4); };
    const std::string_view monitor = record.substr(0, 2), test = record.substr(2, 2);
    const std::string_view scaling = record.substr(4, 2);
    const scale by{hex_value(scaling) >= FIRST_SIGNED};
    limits one{by.number(word(6)), by.number(word(10)), by.number(word(14)), true, true};
    one.has_lowest = one.lowest != by.open_below();
    one.has_highest = one.highest != by.open_above();
    reported_test row;
    row.id = std::string(monitor) + "/" + std::string(test);
    row.monitor = name_of(toolies, monitor, true);
    row.test = name_of(toolies, test, false);
    row.raw = record;
    row.value = scaled(scaling, word(6));
    const bool not_run = one.value == 0 && one.lowest == 0 && one.highest == 0;
    if (not_run)
        return row;
    row.lowest = one.has_lowest ? scaled(scaling, word(10)) : "";
    row.highest = one.has_highest ? scaled(scaling, word(14)) : "";
    row.result = verdict_of(one);
    row.nearness = nearness_of(one);
    return row;
}

// "46 TID CC vv vv ll ll": bit 7 of CC means that the limit is a minimum.
reported_test old_test(std::string_view answer) {
    const unsigned component = hex_value(answer.substr(4, 2));
    const bool is_lowest = (component & 0x80) != 0;
    const int value = static_cast<int>(hex_value(answer.substr(6, 4)));
    const int limit = static_cast<int>(hex_value(answer.substr(10, 4)));
    const limits one{value, limit, limit, is_lowest, !is_lowest};
    reported_test row;
    row.id = std::string(answer.substr(2, 2)) + "/" + request_of("", component & 0x7F);
    row.raw = answer.substr(2);
    row.value = std::to_string(value);
    (is_lowest ? row.lowest : row.highest) = std::to_string(limit);
    if (value == 0 && limit == 0)
        return row;
    row.result = verdict_of(one);
    row.nearness = nearness_of(one);
    return row;
}

void take_answer(unit_report& unit, std::string_view answer, bool older,
                 const mac_toolies& toolies) {
    if (older) {
        if (answer.size() >= OLD_DIGITS)
            unit.tests.push_back(old_test(answer));
        return;
    }
    for (std::size_t at = 2; at + RECORD_DIGITS <= answer.size(); at += RECORD_DIGITS)
        unit.tests.push_back(can_test(answer.substr(at, RECORD_DIGITS), toolies));
}

} // namespace

void fill_tests(unit_report& unit, const conversation& transcript, const mac_toolies& toolies) {
    unit.of(part::tests) = list_finding(transcript, "06", 0, unit.address);
    const auto listed = transcript.lists(unit.address, "06").listed;
    for (unsigned monitor = 1; monitor <= 0xFF; ++monitor) {
        if (monitor % GROUP == 0)
            continue;
        const std::string request = request_of("06", monitor);
        const asked_piece* piece = transcript.find(request);
        if (!listed.test(monitor) && !piece)
            continue;
        finding found = finding_of(transcript, request, unit.address);
        for (const std::string& answer : answers_of(transcript, request, unit.address))
            take_answer(unit, answer, piece->bus == bus_form::older, toolies);
        if (found.reported() ? !found.unread.empty() : listed.test(monitor))
            unit.gaps.push_back(std::move(found));
    }
    std::ranges::stable_sort(unit.tests, {}, &reported_test::result);
}
