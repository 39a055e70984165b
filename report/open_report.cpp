#include "readable.h"
#include "report_json.h"
#include "text.h"
#include "unread_text.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>
#include <set>

namespace {

using json = nlohmann::json;

constexpr std::size_t LARGEST_DOCUMENT = 8 * 1024 * 1024;
constexpr std::size_t MOST_PIECES = 2000;
constexpr std::size_t LONGEST_REQUEST = 20;

class no_report : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

const json& member(const json& object, const char* name) {
    const auto found = object.is_object() ? object.find(name) : object.end();
    if (!object.is_object() || found == object.end())
        throw no_report(std::string("\"") + name + "\" is missing");
    return *found;
}

std::string text(const json& object, const char* name, std::size_t longest = LONGEST_DATA) {
    const json& value = member(object, name);
    if (!value.is_string() || value.get_ref<const std::string&>().size() > longest)
        throw no_report(std::string("\"") + name + "\" is no text, or too long");
    return value.get<std::string>();
}

const json& list(const json& object, const char* name, std::size_t most) {
    const json& value = member(object, name);
    if (!value.is_array() || value.size() > most)
        throw no_report(std::string("\"") + name + "\" is no list, or too long");
    return value;
}

int whole_number(const json& object, const char* name) {
    const json& value = member(object, name);
    constexpr int MOST = 100'000'000;
    if (!value.is_number_unsigned() || value.get<std::uint64_t>() > MOST)
        throw no_report(std::string("\"") + name + "\" is no number from 0 on");
    return value.get<int>();
}

template <std::size_t SIZE>
std::size_t one_of(const json& object, const char* name,
                   const std::array<std::string_view, SIZE>& words) {
    const auto found = std::ranges::find(words, text(object, name));
    if (found == words.end())
        throw no_report(std::string("\"") + name + "\" is no word of this version");
    return static_cast<std::size_t>(found - words.begin());
}

bool all_of(std::string_view word, std::string_view letters) {
    return word.find_first_not_of(letters) == word.npos;
}
constexpr std::string_view HEX = "0123456789ABCDEF";

std::string hex_text(const json& object, const char* name) {
    std::string digits = text(object, name);
    if (!all_of(digits, HEX))
        throw no_report(std::string("\"") + name + "\" is not in capital hex digits");
    return digits;
}

class document_reader {
  public:
    conversation read(const json& document) {
        if (!document.is_object() || text(document, "format") != "kestrom-report")
            throw no_report("it is no report of Kestrom");
        if (whole_number(document, "version") != REPORT_VERSION)
            throw no_report("it is of another version");
        conversation transcript;
        transcript.program = readable(text(document, "program"));
        transcript.read_at = readable(text(document, "read_at"));
        transcript.milliseconds = whole_number(document, "milliseconds");
        transcript.end = static_cast<reading_end>(one_of<5>(
            document, "end", {"complete", "cancelled", "time_up", "adapter_silent", "link_lost"}));
        const json& hidden = member(document, "vin_hidden");
        transcript.vin_hidden = hidden.is_boolean() && hidden.get<bool>();
        for (const json& one : list(document, "conversation", MOST_PIECES))
            take(transcript, one);
        return transcript;
    }

  private:
    void take(conversation& transcript, const json& from) {
        asked_piece piece;
        piece.request = text(from, "request", LONGEST_REQUEST);
        piece.milliseconds = whole_number(from, "milliseconds");
        piece.timed_out = from.contains("timed_out");
        if (is_adapter_command(piece.request)) {
            piece.request = readable(piece.request);
            piece.text = readable(text(from, "text"));
        } else {
            if (piece.request.size() < 2 || piece.request.size() % 2 != 0 ||
                !all_of(piece.request, HEX))
                throw no_report("a request is not in capital hex digits");
            piece.bus = static_cast<bus_form>(one_of<3>(from, "bus", {"unknown", "can", "older"}));
            piece.answers = replies(from, "answers");
            piece.refusals = replies(from, "refusals");
            piece.unread = unread(from);
        }
        if (!requests_.insert(piece.request).second)
            throw no_report("a request stands twice");
        transcript.pieces.push_back(std::move(piece));
    }

    std::vector<unit_reply> replies(const json& from, const char* name) {
        std::vector<unit_reply> all;
        for (const json& one : list(from, name, MOST_ANSWERS)) {
            all.push_back({hex_text(one, "unit"), hex_text(one, "data")});
            units_.insert(all.back().unit);
            if (all.back().unit.size() > 8 || units_.size() > MOST_UNITS)
                throw no_report("it names too many units");
        }
        return all;
    }

    static unread_pieces unread(const json& from) {
        unread_pieces all;
        for (const json& one : list(from, "unread", MOST_ANSWERS)) {
            const auto kind = unread_kind_named(text(one, "kind"));
            if (!kind)
                throw no_report("\"kind\" is no word of this version");
            all.push_back({*kind, readable(text(one, "text"))});
        }
        return all;
    }

    std::set<std::string> requests_, units_;
};

} // namespace

std::optional<conversation> open_report(std::string_view document, std::string& why) {
    if (document.size() > LARGEST_DOCUMENT) {
        why = "it is larger than any report";
        return std::nullopt;
    }
    const json parsed = json::parse(document, nullptr, false);
    if (parsed.is_discarded()) {
        why = "it is no JSON document";
        return std::nullopt;
    }
    try {
        return document_reader().read(parsed);
    } catch (const no_report& unusable) {
        why = unusable.what();
        return std::nullopt;
    }
}
