#include "findings.h"

#include "hex_digits.h"
#include "questions.h"
#include "text.h"

#include <algorithm>
#include <map>

namespace {

constexpr std::size_t IDENTITY_HEAD = 4; // "49" and the identifier, in digits

bool has_lists(std::string_view service) {
    return service == "01" || service == "02" || service == "06" || service == "09";
}

std::string parted(std::string_view digits) {
    std::string text;
    for (std::size_t at = 0; at < digits.size(); at += 2)
        text.append(at == 0 ? "" : " ").append(digits.substr(at, 2));
    return text;
}

finding no_data(std::string_view request, outcome result, std::string why) {
    finding found;
    found.result = result;
    found.why = std::move(why);
    found.request = request;
    return found;
}

} // namespace

finding list_finding(const conversation& transcript, std::string_view service, unsigned group,
                     std::string_view unit) {
    finding list = finding_of(transcript, list_request(service, group), unit);
    if (list.reported() && !transcript.lists(unit, service).reached.test(group + 1)) { // cut off
        list.result = outcome::unread;
        list.why = WHY_INCOMPLETE;
    }
    return list;
}

namespace {

// The list that contains the identifier's bit, or the first missing list before it.
finding deciding_list(const conversation& transcript, std::string_view service, unsigned identifier,
                      std::string_view unit) {
    const auto listed = transcript.lists(unit, service).listed;
    unsigned group = 0;
    finding list = list_finding(transcript, service, group, unit);
    while (list.reported() && group + GROUP < identifier && listed.test(group + GROUP)) {
        group += GROUP;
        list = list_finding(transcript, service, group, unit);
    }
    return list;
}

// For a request that was never sent: not in the unit's list, or no list, or the reading had ended.
finding finding_of_unasked(const conversation& transcript, std::string_view request,
                           std::string_view unit) {
    const std::string_view service = request.substr(0, 2);
    if (transcript.end != reading_end::complete || !has_lists(service) || request.size() < 4)
        return no_data(request, outcome::not_asked, WHY_ENDED);
    const std::string list = list_request(service, 0);
    if (request == list || !transcript.find(list))
        return no_data(request, outcome::not_asked, WHY_ENDED);
    finding found = deciding_list(transcript, service, hex_value(request.substr(2, 2)), unit);
    if (found.reported())
        return no_data(request, outcome::not_reported, WHY_NOT_LISTED);
    found.request = request;
    found.raw.clear();
    return found;
}

std::string why_silent(const conversation& transcript, std::string_view request,
                       std::string_view unit) {
    if (request.size() < 4 || !has_lists(request.substr(0, 2)))
        return WHY_SILENT;
    const unsigned identifier = hex_value(request.substr(2, 2));
    const auto lists = transcript.lists(unit, request.substr(0, 2));
    return lists.listed.test(identifier)    ? WHY_LISTED
           : lists.reached.test(identifier) ? WHY_NOT_LISTED
                                            : WHY_SILENT;
}

} // namespace

finding finding_of(const conversation& transcript, std::string_view request,
                   std::string_view unit) {
    const asked_piece* piece = transcript.find(request);
    if (!piece)
        return finding_of_unasked(transcript, request, unit);
    finding found = no_data(request, outcome::not_reported, "");
    found.unread = piece->unread;
    for (const unit_reply& one : piece->answers)
        if (one.unit == unit)
            found.raw.append(found.raw.empty() ? "" : " ").append(one.data);
    const auto refusal = std::ranges::find(piece->refusals, unit, &unit_reply::unit);
    if (!found.raw.empty()) {
        found.result = outcome::reported;
    } else if (refusal != piece->refusals.end()) {
        found.result = is_deferral(*refusal) ? outcome::unread : outcome::refused;
        found.why = is_deferral(*refusal) ? WHY_DEFERRED : parted(refusal->data);
    } else if (piece->timed_out) {
        found.result = outcome::unread;
        found.why = WHY_TIME_OUT;
    } else if (!piece->unread.empty()) {
        found.result = outcome::unread;
    } else {
        found.why = why_silent(transcript, request, unit);
    }
    return found;
}

void fill_lost_lists(unit_report& unit, const conversation& transcript) {
    for (const std::string_view service : {"01", "02", "06", "09"}) {
        const auto listed = transcript.lists(unit.address, service).listed;
        // Without the first list, each part has its own reason.
        const bool parts_tell =
            service == "06" || service == "09" || (service == "02" && unit.frame_code.empty());
        for (unsigned group = parts_tell ? GROUP : 0; group < listed.size(); group += GROUP) {
            finding list = list_finding(transcript, service, group, unit.address);
            if (group == 0 ? list.result == outcome::unread
                           : listed.test(group) && !list.reported())
                unit.gaps.push_back(std::move(list));
        }
    }
}

std::vector<std::string> answers_of(const conversation& transcript, std::string_view request,
                                    std::string_view unit) {
    std::vector<std::string> all;
    if (const asked_piece* piece = transcript.find(request))
        for (const unit_reply& one : piece->answers)
            if (one.unit == unit)
                all.push_back(one.data);
    return all;
}

std::string identity_bytes(const conversation& transcript, std::string_view request,
                           std::string_view unit, bool& whole) {
    const std::vector<std::string> answers = answers_of(transcript, request, unit);
    const asked_piece* piece = transcript.find(request);
    if (answers.empty() || !piece)
        return {};
    if (piece->bus != bus_form::older) // starts with the number of items
        return std::string(slice(std::string_view(answers.front()), IDENTITY_HEAD));
    std::map<unsigned, std::string> messages;
    for (const std::string& one : answers)
        messages[hex_value(slice(std::string_view(one), IDENTITY_HEAD, 2))] =
            slice(std::string_view(one), IDENTITY_HEAD + 2);
    std::string bytes;
    unsigned number = 0;
    for (const auto& [sent_as, data] : messages) {
        whole = whole && sent_as == ++number;
        bytes += data;
    }
    return bytes;
}
