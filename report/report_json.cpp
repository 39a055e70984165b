#include "report_json.h"

#include "unread_text.h"

#include <nlohmann/json.hpp>

namespace {

using json = nlohmann::ordered_json;

json or_null(const std::string& text) {
    return text.empty() ? json() : json(text);
}

template <class number>
json or_null(const std::optional<number>& value) {
    return value ? json(*value) : json();
}

json of(const unread_pieces& unread) {
    json list = json::array();
    for (const unread_piece& one : unread)
        list.push_back({{"kind", unread_name(one.kind)}, {"text", one.text}});
    return list;
}

json of(const finding& found) {
    json object{{"result", outcome_name(found.result)}, {"request", found.request}};
    if (!found.why.empty())
        object["why"] = found.why;
    if (!found.raw.empty())
        object["raw"] = found.raw;
    if (!found.unread.empty())
        object["unread"] = of(found.unread);
    return object;
}

json of(const std::vector<reported_value>& values) {
    json list = json::array();
    for (const reported_value& one : values)
        list.push_back({{"pid", request_of("", one.pid)},
                        {"name", one.name},
                        {"text", one.text},
                        {"raw", one.found.raw}});
    return list;
}

json codes_of(const unit_report& unit) {
    json list = json::array();
    for (const reported_code& one : unit.codes)
        list.push_back({{"code", one.code},
                        {"meaning", or_null(one.meaning)},
                        {"stored", one.kinds[0]},
                        {"pending", one.kinds[1]},
                        {"permanent", one.kinds[2]},
                        {"freeze_frame", one.kept_frame}});
    return list;
}

json monitors_of(const unit_report& unit) {
    json list = json::array();
    for (const reported_monitor& one : unit.monitors)
        list.push_back({{"name", one.name},
                        {"continuous", one.continuous},
                        {"supported", one.supported},
                        {"complete", one.supported ? json(one.complete) : json()},
                        {"complete_this_drive", or_null(one.complete_this_drive)}});
    return list;
}

json tests_of(const unit_report& unit) {
    constexpr std::string_view VERDICTS[] = {"failed", "passed", "no_result"};
    json list = json::array();
    for (const reported_test& one : unit.tests)
        list.push_back({{"id", one.id},
                        {"monitor", or_null(one.monitor)},
                        {"test", or_null(one.test)},
                        {"value", one.value},
                        {"lowest", or_null(one.lowest)},
                        {"highest", or_null(one.highest)},
                        {"result", VERDICTS[static_cast<std::size_t>(one.result)]},
                        {"nearness_percent", or_null(one.nearness)},
                        {"raw", one.raw}});
    return list;
}

json identity_of(const unit_report& unit) {
    json calibrations = json::array(), counters = json::array();
    for (const calibration& one : unit.calibrations)
        calibrations.push_back(
            {{"id", or_null(one.id)}, {"verification_number", or_null(one.verification_number)}});
    for (const reported_counter& one : unit.counters)
        counters.push_back(
            {{"name", one.name}, {"done", one.done}, {"conditions", or_null(one.conditions)}});
    return {{"vin", or_null(unit.vin)},
            {"vin_is_standard", unit.vin_is_standard},
            {"calibrations", calibrations},
            {"counters", counters}};
}

json of(const unit_report& unit) {
    json parts = json::object(), gaps = json::array();
    for (std::size_t i = 0; i < PARTS; ++i)
        parts[std::string(part_name(static_cast<part>(i)))] = of(unit.findings[i]);
    for (const finding& one : unit.gaps)
        gaps.push_back(of(one));
    const bool status = unit.of(part::status).reported();
    return {{"address", unit.address},
            {"name", unit.name},
            {"parts", parts},
            {"lamp_on", status ? json(unit.lamp_on) : json()},
            {"announced_codes", status ? json(unit.announced_codes) : json()},
            {"codes", codes_of(unit)},
            {"freeze_frame", unit.frame_code.empty() ? json()
                                                     : json{{"code", unit.frame_code},
                                                            {"values", of(unit.frame_values)}}},
            {"ignition", !status ? json() : json(unit.compression ? "compression" : "spark")},
            {"monitors", monitors_of(unit)},
            {"readings", of(unit.readings)},
            {"identity", identity_of(unit)},
            {"tests", tests_of(unit)},
            {"gaps", gaps}};
}

json of(const std::vector<unit_reply>& replies) {
    json list = json::array();
    for (const unit_reply& one : replies)
        list.push_back({{"unit", one.unit}, {"data", one.data}});
    return list;
}

json of(const asked_piece& piece) {
    constexpr std::string_view BUSES[] = {"unknown", "can", "older"};
    json object{{"request", piece.request}, {"milliseconds", piece.milliseconds}};
    if (is_adapter_command(piece.request)) {
        object["text"] = piece.text;
    } else {
        object["bus"] = BUSES[static_cast<std::size_t>(piece.bus)];
        object["answers"] = of(piece.answers);
        object["refusals"] = of(piece.refusals);
        object["unread"] = of(piece.unread);
    }
    if (piece.timed_out)
        object["timed_out"] = true;
    return object;
}

json counts_of(const car_report& report) {
    json counts = json::object();
    for (const part kind : CODE_KINDS) {
        bool whole = false;
        const std::optional<int> count = report.count(kind, whole);
        counts[std::string(part_name(kind))] = {{"count", or_null(count)}, {"by_all_units", whole}};
    }
    return counts;
}

} // namespace

std::string report_json(const car_report& report) {
    constexpr std::string_view ENDS[] = {"complete", "cancelled", "time_up", "adapter_silent",
                                         "link_lost"};
    const conversation& transcript = report.transcript;
    json units = json::array(), pieces = json::array();
    for (const unit_report& one : report.units)
        units.push_back(of(one));
    for (const asked_piece& one : transcript.pieces)
        pieces.push_back(of(one));
    bool lamp_whole = false;
    const auto lamp = report.lamp(lamp_whole);
    const auto ready = report.readiness();
    const json document{{"format", "kestrom-report"},
                        {"version", REPORT_VERSION},
                        {"program", transcript.program},
                        {"read_at", transcript.read_at},
                        {"milliseconds", transcript.milliseconds},
                        {"end", ENDS[static_cast<std::size_t>(transcript.end)]},
                        {"vin_hidden", transcript.vin_hidden},
                        {"vin", or_null(report.vin)},
                        {"adapter",
                         {{"name", or_null(report.adapter)},
                          {"volts", or_null(report.adapter_volts)},
                          {"protocol", or_null(report.protocol)},
                          {"protocol_number", or_null(report.protocol_number)}}},
                        {"lamp", lamp ? json(*lamp ? "on" : "off") : json()},
                        {"lamp_by_all_units", lamp && lamp_whole},
                        {"codes", counts_of(report)},
                        {"readiness", ready ? json{{"unit", report.readiness_unit()->address},
                                                   {"complete", ready->complete},
                                                   {"supported", ready->supported}}
                                            : json()},
                        {"units", units},
                        {"conversation", pieces}};
    return document.dump(2, ' ', false, json::error_handler_t::replace) + "\n";
}
