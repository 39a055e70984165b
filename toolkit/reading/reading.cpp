#include "reading.h"

#include "answer_sizes.h"
#include "checksums.h"
#include "frame_gatherer.h"
#include "hex_digits.h"
#include "notices.h"
#include "reply_lines.h"
#include "text.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <map>
#include <span>

namespace {

constexpr std::string_view NEGATIVE = "7F";
constexpr std::string_view PENDING = "78"; // the answer is still to come
constexpr std::size_t NEGATIVE_DIGITS = 6;
constexpr std::size_t CAN_FRAME_DIGITS = 16; // eight bytes, the frame's number among them

std::string answer_to(std::string_view request) {
    std::string answer(request);
    answer[0] = static_cast<char>(answer[0] + 4); // service 03 is answered by 43
    return answer;
}

constexpr std::string_view CAN_NAMES[] = {"CAN", "15765", "J1939"};
constexpr std::string_view BUS_NAMES[] = {"ISO", "SAE", "J1"};

bool holds_any(std::string_view text, std::span<const std::string_view> words) {
    return std::ranges::any_of(words, [&](std::string_view one) { return contains(text, one); });
}

// Services whose answers are codes: a late answer to another of them must not go unnoticed.
constexpr std::string_view CODE_SERVICES[] = {"43", "47", "4A"};

// Without headers, the form of a line of codes reveals the bus: the older buses send seven bytes,
// padded with zeros; CAN sends two, plus two for each code, with any padding.
bus_form form_of_codes(std::string_view data) {
    if (data.size() != LONGEST_FRAME_DIGITS)
        return bus_form::can;
    const std::string_view behind = slice(data, answer_digits(data, bus_form::can).value_or(0));
    return !behind.empty() && is_fill(behind) && !behind.starts_with("00") ? bus_form::can
                                                                           : bus_form::older;
}

// Reads one reply, up to its prompt.
class reply_reader {
  public:
    reply_reader(std::string_view request, bus_evidence known)
        : request_(request), answer_(answer_to(request)), known_(known) {}

    reading read(std::string_view reply);

  private:
    struct found_message {
        std::size_t line;
        headed_line at; // header and form; its data is not used
        std::string header;
        std::string data;
        std::size_t announced = 0; // digits, from the byte count of a CAN frame
        std::string behind{};      // what follows them
        bool of_frames = false;
    };

    void take(std::size_t number, std::string_view line);
    void take_data(std::size_t number, std::string_view line);
    void take_can(std::size_t number, const headed_line& line, std::string_view whole);
    void gather();
    void settle_bus();
    bus_form bus_of_message(const found_message& one) const;
    std::size_t digits_of(const found_message& one) const;
    void take_message(const found_message& one);
    void take_answer(const found_message& one);
    static std::size_t size_without_checksum(const found_message& one, bus_form bus);
    void check_what_follows(const found_message& one, std::size_t whole, bus_form bus);
    bool belongs(const found_message& one, std::size_t whole, bus_form bus) const;
    bool is_framed(const found_message& one, std::size_t whole) const;
    std::size_t size_of_other_answer(const found_message& one) const;
    void settle_pending();
    void unread(unread_kind kind, std::string_view text) {
        result_.unread.push_back({kind, std::string(text)});
    }

    std::string_view request_;
    std::string answer_;
    bus_evidence known_;
    std::vector<found_message> messages_;
    struct sender {
        header_form form = header_form::none;
        frame_gatherer frames;
    };
    std::map<std::string, sender, std::less<>> senders_; // of frames, by header
    struct deferred_answer {
        std::size_t line;
        std::string header;
        unread_piece piece;
    };
    std::vector<deferred_answer> pending_;
    reading result_;
};

void reply_reader::take(std::size_t number, std::string_view line) {
    if (const notice* said = notice_in(line)) {
        result_.no_data = result_.no_data || said->kind == notice_kind::no_data;
        if (said->kind == notice_kind::trouble)
            unread(unread_kind::adapter_notice,
                   line.starts_with(said->spaceless) && said->spaceless.size() < line.size()
                       ? line
                       : said->text);
    } else if (contains(line, "<")) {
        unread(unread_kind::damaged_line, line);
    } else if (is_numbered_frame(line)) {
        senders_[""].frames.take_frame(line);
    } else if (line != request_) { // no echo
        if (line.starts_with(request_) && line.size() > request_.size() + 1)
            line.remove_prefix(request_.size()); // an echo that lost its line end
        if (is_length_line(line, answer_))
            senders_[""].frames.take_length(number, line);
        else
            take_data(number, line);
    }
}

void reply_reader::take_data(std::size_t number, std::string_view line) {
    const auto parts = is_hex(line) ? behind_header(line, answer_) : std::nullopt;
    if (!parts)
        unread(unread_kind::not_understood, line);
    else if (is_can(parts->form))
        take_can(number, *parts, line);
    else
        messages_.push_back({number, *parts, std::string(parts->header), std::string(parts->data)});
}

// A CAN header is followed by the byte count of a single frame, or by the number of one of several.
void reply_reader::take_can(std::size_t number, const headed_line& line, std::string_view whole) {
    const std::string header(line.header);
    const std::string_view data = line.data;
    switch (data.front()) {
    case '0': {
        const std::size_t digits = 2 * hex_value(data.substr(1, 1));
        if (digits == 0 || digits > LONGEST_FRAME_DIGITS) {
            unread(unread_kind::not_understood, whole);
            break;
        }
        messages_.push_back({number, line, header, std::string(slice(data, 2, digits)), digits,
                             std::string(slice(data, 2 + digits))});
        break;
    }
    case '1':
    case '2': {
        if (data.size() > CAN_FRAME_DIGITS) {
            unread(unread_kind::too_long, whole); // which digit is wrong is unknown
            break;
        }
        sender& from = senders_[header];
        from.form = line.form;
        if (data.front() == '1') {
            from.frames.take_length(number, slice(data, 1, 3));
            from.frames.take_frame("0:" + std::string(slice(data, 4)));
        } else {
            from.frames.take_frame(std::string(data.substr(1, 1)) + ":" +
                                   std::string(slice(data, 2)));
        }
        break;
    }
    default:
        unread(unread_kind::not_understood, whole);
    }
}

void reply_reader::gather() {
    for (auto& [header, from] : senders_) {
        std::vector<gathered_message> gathered;
        from.frames.finish(gathered, result_.unread);
        for (gathered_message& one : gathered) {
            if (one.data.empty())
                continue; // already reported
            headed_line at;
            at.form = from.form;
            messages_.push_back({one.line, at, header, std::move(one.data), 0, {}, true});
        }
    }
    std::ranges::stable_sort(messages_, {}, &found_message::line);
}

// Headers are the surest sign, and beside CAN lines no others are read: an extra digit makes a CAN
// header look like an older bus's.
void reply_reader::settle_bus() {
    result_.bus = known_;
    for (const bus_form form : {bus_form::older, bus_form::can})
        for (const found_message& one : messages_)
            if (one.data.starts_with(answer_) && bus_of(one.at.form) == form)
                result_.bus = {form, bus_source::headers};
    if (result_.bus.form != bus_form::unknown)
        return;
    for (const found_message& one : messages_)
        if (one.data.starts_with(answer_) &&
            answer_digits(one.data, bus_form::older) != answer_digits(one.data, bus_form::can))
            result_.bus = {one.of_frames ? bus_form::can : form_of_codes(one.data),
                           bus_source::reply_form};
}

bus_form reply_reader::bus_of_message(const found_message& one) const {
    return one.of_frames                      ? bus_form::can
           : one.at.form != header_form::none ? bus_of(one.at.form)
                                              : result_.bus.form;
}

// The digits it must have, by its service and by its frame.
std::size_t reply_reader::digits_of(const found_message& one) const {
    return std::max(one.announced, answer_digits(one.data, bus_of_message(one)).value_or(0));
}

void reply_reader::take_message(const found_message& one) {
    const std::string_view data = one.data;
    if (data.starts_with(answer_)) {
        if (one.at.form != header_form::none && bus_of(one.at.form) != result_.bus.form)
            unread(unread_kind::not_understood, one.header + one.data);
        else
            take_answer(one);
    } else if (data.starts_with(std::string(NEGATIVE) + std::string(request_.substr(0, 2))) &&
               data.size() >= NEGATIVE_DIGITS && is_framed(one, NEGATIVE_DIGITS)) {
        const unread_piece refusal{unread_kind::refused,
                                   std::string(data.substr(0, NEGATIVE_DIGITS)),
                                   unit_address(one.at.form, one.header)};
        if (data.substr(4, 2) == PENDING)
            pending_.push_back({one.line, one.header, refusal});
        else
            result_.unread.push_back(refusal);
    } else if (const std::size_t whole = size_of_other_answer(one)) {
        result_.others.emplace_back(data.substr(0, whole));
    } else {
        unread(unread_kind::not_understood,
               one.header + one.data); // not a complete answer to any request
    }
}

void reply_reader::take_answer(const found_message& one) {
    const bus_form bus = bus_of_message(one);
    const std::string_view data = one.data;
    const std::size_t whole = answer_digits(data, bus).value_or(size_without_checksum(one, bus));
    if (data.size() < digits_of(one))
        unread(unread_kind::broken_off, data);
    check_what_follows(one, whole, bus);
    ecu_answer answer{one.at.form, one.header,           {}, std::string(data.substr(0, whole)),
                      bus,         is_framed(one, whole)};
    answer.unit = unit_name({answer.form, answer.header, {}});
    result_.answers.push_back(std::move(answer));
}

// For an answer whose length no row gives.
std::size_t reply_reader::size_without_checksum(const found_message& one, bus_form bus) {
    const bool has_checksum = bus == bus_form::older && one.at.form != header_form::none &&
                              ends_with_checksum(one.header + one.data);
    return one.data.size() - (has_checksum ? 2 : 0);
}

// An answer may only be followed by the padding of a CAN frame, or an older bus's checksum.
bool reply_reader::belongs(const found_message& one, std::size_t whole, bus_form bus) const {
    const std::string rest = std::string(slice(std::string_view(one.data), whole)) + one.behind;
    const std::size_t size = one.data.size() + one.behind.size();
    if (rest.empty())
        return true;
    if (bus != bus_form::older) { // a message assembled by the adapter may be of several frames
        const std::size_t of_last = size % LONGEST_FRAME_DIGITS;
        return is_fill(rest) && size >= LONGEST_FRAME_DIGITS &&
               (of_last == 0 || of_last == FIRST_FRAME_DIGITS);
    }
    // For the lamp the adapter's own check is good enough; for the digits of codes the risk is too
    // high.
    return one.at.form != header_form::none && rest.size() == 2 &&
           (one.data.starts_with("41") || ends_with_checksum(one.header + one.data));
}

// Another message that ran into it, or a line that lost digits, shows by the frame; a car's wrong
// count of codes does not.
bool reply_reader::is_framed(const found_message& one, std::size_t whole) const {
    const bus_form bus = bus_of_message(one);
    if (one.at.form == header_form::none || one.of_frames)
        return true;
    if (bus == bus_form::older)
        return one.data.size() >= whole && belongs(one, whole, bus);
    return one.data.size() >= one.announced &&
           (one.behind.empty() ||
            (is_fill(one.behind) && one.data.size() + one.behind.size() == LONGEST_FRAME_DIGITS));
}

void reply_reader::check_what_follows(const found_message& one, std::size_t whole, bus_form bus) {
    if (!belongs(one, whole, bus))
        unread(unread_kind::too_long,
               std::string(slice(std::string_view(one.data), whole)) + one.behind);
}

// Digits of a complete answer to an earlier request, or of a complete refusal of one; otherwise 0.
std::size_t reply_reader::size_of_other_answer(const found_message& one) const {
    const std::string_view data = one.data;
    if (data.starts_with(NEGATIVE))
        return data.size() >= NEGATIVE_DIGITS && is_framed(one, NEGATIVE_DIGITS) ? NEGATIVE_DIGITS
                                                                                 : 0;
    if (std::ranges::find(CODE_SERVICES, data.substr(0, 2)) != std::end(CODE_SERVICES))
        return 0;
    const bus_form bus = bus_of_message(one);
    const std::size_t whole = answer_digits(data, bus).value_or(0);
    const bool complete = data.size() >= std::max(whole, one.announced) && belongs(one, whole, bus);
    return complete ? whole : 0;
}

// A deferred answer has arrived if one follows, from the same unit where that is known.
void reply_reader::settle_pending() {
    for (const deferred_answer& one : pending_)
        if (std::ranges::none_of(messages_, [&](const found_message& later) {
                return later.line > one.line && later.header == one.header &&
                       later.data.starts_with(answer_);
            }))
            result_.unread.push_back(one.piece);
}

reading reply_reader::read(std::string_view reply) {
    std::size_t number = 0;
    for (const std::string& line : reply_lines(reply))
        take(number++, line);
    gather();
    settle_bus();
    for (const found_message& one : messages_)
        take_message(one);
    settle_pending();
    return std::move(result_);
}

} // namespace

void reading::forget_refusals() {
    if (answered())
        std::erase_if(unread, [](const unread_piece& one) {
            return one.kind == unread_kind::refused && !one.text.ends_with(PENDING);
        });
}

bus_evidence bus_known_by(bus_form status_headers, bus_form handshake_headers,
                          std::string_view protocol_text) {
    if (status_headers != bus_form::unknown)
        return {status_headers, bus_source::headers};
    if (handshake_headers != bus_form::unknown)
        return {handshake_headers, bus_source::handshake};
    std::string named(protocol_text);
    std::ranges::transform(named, named.begin(), [](unsigned char c) { return std::toupper(c); });
    if (holds_any(named, CAN_NAMES))
        return {bus_form::can, bus_source::protocol_text};
    if (holds_any(named, BUS_NAMES))
        return {bus_form::older, bus_source::protocol_text};
    return {};
}

reading read_reply(std::string_view request, std::string_view reply, bus_evidence known) {
    reading result;
    for (const std::string_view piece : split(reply, ">")) {
        reading one = reply_reader(request, known).read(piece);
        // What an earlier piece contained must be in the last one as well.
        if (one.answered()) {
            for (const ecu_answer& before : result.answers)
                if (std::ranges::find(one.answers, before) == one.answers.end())
                    result.unread.push_back({unread_kind::not_understood, before.data});
            result.answers = std::move(one.answers);
            result.bus = one.bus;
        }
        std::ranges::move(one.others, std::back_inserter(result.others));
        result.no_data = (result.no_data || one.no_data) && !result.answered();
        for (unread_piece& piece_unread : one.unread)
            if (std::ranges::find(result.unread, piece_unread) == result.unread.end())
                result.unread.push_back(std::move(piece_unread));
    }
    if (!result.answered() && result.unread.empty() && !result.no_data)
        result.unread.push_back({unread_kind::no_answer, {}});
    return result;
}
