#include "car_report.h"

#include "findings.h"
#include "header_forms.h"
#include "mac_toolies.h"

#include <algorithm>

namespace {

std::string_view word_of(const conversation& transcript, std::string_view request) {
    const asked_piece* piece = transcript.find(request);
    return piece && piece->text != "?" ? std::string_view(piece->text) : std::string_view();
}

bool is_engine(const unit_report& unit) {
    return unit.address == "7E8" || unit.address == "10" || unit.address.empty();
}

unit_report unit_of(const conversation& transcript, const std::string& address,
                    const mac_toolies& toolies) {
    unit_report unit;
    unit.address = address;
    unit.name = address.empty()    ? "All units"
                : address == "7E8" ? "Engine"
                : address == "7E9" ? "Transmission"
                                   : unit_name_of_address(address, address);
    fill_status(unit, transcript);
    fill_codes(unit, transcript, toolies);
    fill_values(unit, transcript, toolies);
    fill_identity(unit, transcript);
    fill_tests(unit, transcript, toolies);
    fill_lost_lists(unit, transcript);
    return unit;
}

} // namespace

std::string_view outcome_name(outcome one) {
    constexpr std::string_view NAMES[] = {"told", "not_told", "refused", "unread", "not_asked"};
    return NAMES[static_cast<std::size_t>(one)];
}

std::string_view part_name(part one) {
    constexpr std::string_view NAMES[] = {
        "status",   "this_drive", "stored",    "pending",      "permanent",
        "frame",    "vin",        "unit_name", "calibrations", "verification_numbers",
        "counters", "tests"};
    return NAMES[static_cast<std::size_t>(one)];
}

std::optional<bool> car_report::lamp(bool& whole) const {
    std::optional<bool> lamp;
    whole = true;
    for (const unit_report& unit : units)
        if (const finding& found = unit.of(part::status); found.reported())
            lamp = lamp.value_or(false) || unit.lamp_on;
        else
            whole = whole && found.why == WHY_NOT_LISTED;
    whole = whole || lamp == true;
    return lamp;
}

std::optional<int> car_report::count(part kind, bool& whole) const {
    const auto place =
        static_cast<std::size_t>(std::ranges::find(CODE_KINDS, kind) - CODE_KINDS.begin());
    std::optional<int> codes;
    whole = true;
    for (const unit_report& unit : units) {
        const finding& found = unit.of(kind);
        // A unit without such a list has no code in it; any other missing answer leaves it unknown.
        whole = whole && found.reported() && found.unread.empty();
        if (found.reported())
            codes = codes.value_or(0) +
                    static_cast<int>(std::ranges::count_if(
                        unit.codes, [&](const reported_code& one) { return one.kinds[place]; }));
    }
    return codes;
}

const unit_report* car_report::readiness_unit() const {
    const auto has_status = [](const unit_report& unit) {
        return unit.of(part::status).reported();
    };
    auto found = std::ranges::find_if(
        units, [&](const unit_report& unit) { return has_status(unit) && is_engine(unit); });
    if (found == units.end())
        found = std::ranges::find_if(units, has_status);
    return found == units.end() ? nullptr : &*found;
}

std::optional<monitor_count> car_report::readiness() const {
    const unit_report* unit = readiness_unit();
    if (!unit)
        return std::nullopt;
    monitor_count counted;
    for (const reported_monitor& one : unit->monitors) {
        counted.supported += one.supported;
        counted.complete += one.supported && one.complete;
    }
    return counted;
}

bool car_report::all_reported() const {
    return transcript.end == reading_end::complete &&
           std::ranges::all_of(units, [](const unit_report& unit) {
               return unit.gaps.empty() &&
                      std::ranges::all_of(unit.findings, [](const finding& one) {
                          return (one.reported() && one.unread.empty()) ||
                                 one.why == WHY_NOT_LISTED;
                      });
           });
}

car_report report_of(conversation transcript, const mac_toolies& toolies) {
    car_report report;
    report.transcript = std::move(transcript);
    report.adapter = word_of(report.transcript, "ATI");
    report.adapter_volts = word_of(report.transcript, "ATRV");
    report.protocol = word_of(report.transcript, "ATDP");
    report.protocol_number = word_of(report.transcript, "ATDPN");
    for (const std::string& address : report.transcript.units())
        report.units.push_back(unit_of(report.transcript, address, toolies));
    for (const unit_report& unit : report.units)
        if (report.vin.empty() && unit.of(part::vin).reported())
            report.vin = unit.vin;
    return report;
}
