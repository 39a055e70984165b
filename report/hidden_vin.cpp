// Hides the part of the VIN that identifies the individual car.
#include "conversation.h"
#include "hex_digits.h"
#include "text.h"

#include <algorithm>
#include <set>

namespace {

constexpr char VIN_REQUEST[] = "0902";
constexpr std::size_t HEAD_DIGITS = 6; // "4902" and the number of items, or of the message
constexpr std::size_t SHOWN = 11, HIDDEN = 6;
constexpr std::string_view STAR = "2A";
constexpr std::string_view STARS = "******", STARS_IN_HEX = "2A2A2A2A2A2A";

// Where the digits of a unit's VIN are, in order. Zeros are padding.
using characters = std::vector<std::pair<std::string*, std::size_t>>;

characters vin_digits(asked_piece& piece, const std::string& unit) {
    std::vector<std::string*> answers;
    for (unit_reply& one : piece.answers)
        if (one.unit == unit && one.data.size() > HEAD_DIGITS)
            answers.push_back(&one.data);
    std::ranges::stable_sort(answers, {}, [](const std::string* data) {
        return hex_value(std::string_view(*data).substr(HEAD_DIGITS - 2, 2));
    });
    characters sent;
    for (std::string* data : answers)
        for (std::size_t at = HEAD_DIGITS; at < data->size(); at += 2)
            if (data->compare(at, 2, "00") != 0)
                sent.emplace_back(data, at);
    return sent;
}

// Masks the hidden part; returns its digits.
std::string cover_end(const characters& sent) {
    std::string tail;
    for (std::size_t i = 0; i < sent.size(); ++i) {
        const auto [data, at] = sent[i];
        const bool last = i + HIDDEN >= sent.size();
        if (last)
            tail += data->substr(at, 2);
        if (last || i >= SHOWN)
            data->replace(at, 2, STAR);
    }
    return tail;
}

std::string as_text(std::string_view digits) {
    std::string text;
    for (std::size_t at = 0; at + 2 <= digits.size(); at += 2)
        text += static_cast<char>(hex_value(digits.substr(at, 2)));
    return text;
}

void cover(std::string& text, std::string_view found, std::string_view by) {
    if (!found.empty())
        text = replace_all(text, found, by);
}

} // namespace

conversation without_vin(conversation transcript) {
    std::set<std::string> tails;
    for (asked_piece& piece : transcript.pieces)
        if (piece.request == VIN_REQUEST)
            for (const std::string& unit : transcript.units())
                if (std::string tail = cover_end(vin_digits(piece, unit));
                    tail.size() == 2 * HIDDEN)
                    tails.insert(std::move(tail));
    for (asked_piece& piece : transcript.pieces) {
        for (unread_piece& one : piece.unread)
            if (one.kind != unread_kind::adapter_notice)
                one.text = STARS; // may contain any part of the VIN
        for (const std::string& tail : tails) {
            for (unit_reply& one : piece.answers)
                cover(one.data, tail, STARS_IN_HEX);
            for (unread_piece& one : piece.unread)
                cover(one.text, tail, STARS_IN_HEX);
            cover(piece.text, as_text(tail), STARS);
        }
    }
    transcript.vin_hidden = true;
    return transcript;
}
