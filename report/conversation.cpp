#include "conversation.h"

#include "hex_digits.h"
#include "text.h"

#include <algorithm>

namespace {

constexpr std::size_t MASK_DIGITS = 8;

// Where a list of supported identifiers begins, in digits: after service, identifier and any frame
// or message number.
std::size_t mask_place(std::string_view service, bool can) {
    const bool numbered = service == "02" || (!can && (service == "06" || service == "09"));
    return numbered ? 6 : 4;
}

} // namespace

bool is_deferral(const unit_reply& refusal) {
    return refusal.data.ends_with("78") || refusal.data.ends_with("21");
}

bool is_adapter_command(std::string_view request) {
    return request.starts_with("AT");
}

std::string request_of(std::string_view service, unsigned identifier) {
    constexpr char DIGITS[] = "0123456789ABCDEF";
    return std::string(service) + DIGITS[identifier / 16 % 16] + DIGITS[identifier % 16];
}

std::string list_request(std::string_view service, unsigned group) {
    return request_of(service, group) + (service == "02" ? "00" : "");
}

const asked_piece* conversation::find(std::string_view request) const {
    const auto found = std::ranges::find(pieces, request, &asked_piece::request);
    return found == pieces.end() ? nullptr : &*found;
}

std::set<std::string> asked_piece::units() const {
    std::set<std::string> seen;
    for (const auto* transcript : {&answers, &refusals})
        for (const unit_reply& one : *transcript)
            seen.insert(one.unit);
    return seen;
}

std::vector<std::string> conversation::units() const {
    std::set<std::string> seen;
    for (const asked_piece& piece : pieces)
        seen.merge(piece.units());
    return {seen.begin(), seen.end()};
}

bool conversation::car_answered() const {
    return std::ranges::any_of(pieces, &asked_piece::answered);
}

bool conversation::on_can() const {
    const auto on_can = std::ranges::find_if(
        pieces, [](const asked_piece& one) { return one.bus != bus_form::unknown; });
    return on_can != pieces.end() && on_can->bus == bus_form::can;
}

conversation::id_list conversation::lists(std::string_view unit, std::string_view service) const {
    id_list ids;
    bool more = true;
    for (unsigned group = 0; group < ids.listed.size(); group += GROUP) {
        unsigned bits = 0;
        if (more) {
            const asked_piece* piece = find(list_request(service, group));
            if (!piece)
                break;
            const auto answer = std::ranges::find(piece->answers, unit, &unit_reply::unit);
            if (answer == piece->answers.end())
                break;
            const std::string_view mask =
                slice(std::string_view(answer->data),
                      mask_place(service, piece->bus != bus_form::older), MASK_DIGITS);
            if (mask.size() < MASK_DIGITS)
                break;
            bits = hex_value(mask);
            more = (bits & 1) != 0; // means the next list as well as its number
        }
        for (unsigned place = 1; place <= GROUP && group + place < ids.listed.size(); ++place) {
            ids.reached.set(group + place);
            ids.listed.set(group + place, (bits >> (GROUP - place) & 1) != 0);
        }
    }
    return ids;
}

std::bitset<256> conversation::listed_by_anyone(std::string_view service) const {
    std::bitset<256> all;
    for (const std::string& unit : units())
        all |= lists(unit, service).listed;
    return all;
}
