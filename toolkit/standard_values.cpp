#include "fixed_decimals.h"
#include "frame_gatherer.h"
#include "reply_lines.h"
#include "standard_rows.h"
#include "text.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <limits>
#include <utility>

namespace {

constexpr std::string_view UNREADABLE = "~";
constexpr double NO_NUMBER = std::numeric_limits<double>::quiet_NaN();
constexpr std::size_t HEAD = 4; // "41" and the parameter, in digits
constexpr unsigned BYTES_OF_A_FRAME = 5;

const parameter_row* row_of(unsigned pid) {
    const auto rows = standard_parameters();
    const auto found = std::ranges::lower_bound(rows, pid, {}, &parameter_row::pid);
    return found != rows.end() && found->pid == pid ? &*found : nullptr;
}

template <class row>
std::span<const row> rows_of(std::span<const row> all, unsigned pid) {
    const auto first = std::ranges::lower_bound(all, pid, {}, &row::pid);
    return {first, std::ranges::upper_bound(first, all.end(), pid, {}, &row::pid)};
}

double shown(double metric_value, const quantity& unit, bool metric) {
    return metric ? metric_value : metric_value * unit.factor + unit.offset;
}

// The data bytes of one answer and the text built from them so far.
class answer_reader {
  public:
    answer_reader(const parameter_row& row, std::string_view digits, bool metric)
        : row_(row), metric_(metric) {
        for (std::size_t at = HEAD; at + 2 <= digits.size(); at += 2)
            bytes_.push_back(mac_toolies::convertStr2Byte(digits.substr(at, 2)));
    }

    translated read() {
        for (const number_row& row : rows_of(standard_numbers(), row_.pid))
            read_numbers(row);
        for (const flag_row& row : rows_of(standard_flags(), row_.pid))
            read_flags(row);
        for (const word_row& row : rows_of(standard_words(), row_.pid))
            read_words(row);
        if (text_.empty())
            return {std::string(row_.nothing), row_.nothing == "-" ? NO_NUMBER : raw()};
        return {text_, has_numbers_ ? value_ : raw()};
    }

  private:
    bool set(std::size_t at, int bit) const {
        return bit == ALWAYS || (bytes_.at(at) >> bit & 1) != 0;
    }
    // The number for charts of a parameter in words: its bytes.
    double raw() const {
        double number = 0;
        for (const std::uint32_t byte : bytes_)
            number = number * 256 + byte;
        return number;
    }

    void say(std::string_view text) {
        text_.append(text_.empty() || text.empty() ? "" : ", ").append(text);
    }

    void read_numbers(const number_row& row) {
        std::size_t at = row.at;
        int number = 0;
        for (const std::string_view label : split(row.labels, "|")) {
            const int bit =
                row.support_bit == ALWAYS ? ALWAYS : row.support_bit + number / row.numbers_a_bit;
            if (at + row.width <= bytes_.size() && set(0, bit))
                read_number(row, at, label);
            at += row.width;
            ++number;
        }
    }

    void read_number(const number_row& row, std::size_t at, std::string_view label) {
        std::uint32_t raw = 0;
        for (std::size_t i = at; i < at + row.width; ++i)
            raw = raw << 8 | bytes_[i];
        if (static_cast<std::int64_t>(raw) == row.not_there)
            return;
        const scaling_rule& rule = *row.scaling;
        double number = raw & rule.mask;
        if (const double range = std::ldexp(1, 8 * row.width);
            rule.is_signed && number >= range / 2)
            number -= range;
        const quantity& unit = *rule.unit;
        const bool converted = !metric_ && unit.metric != unit.imperial;
        // A finer unit for a whole number would invent digits; a coarser one needs them.
        const int decimals = rule.decimals + (converted && unit.factor < 0.2 ? 2 : 0);
        std::string text =
            fixed_decimals(shown(number * rule.factor + rule.offset, unit, metric_), decimals);
        if (!std::exchange(has_numbers_, true))
            value_ = leading_number(text);
        const std::string_view name = metric_ ? unit.metric : unit.imperial;
        text.append(name.empty() ? "" : " ").append(name);
        if (!label.empty())
            text.append(" (").append(label).append(")");
        say(text);
    }

    void read_flags(const flag_row& row) {
        const std::string_view no_text;
        const auto set_texts = split(row.set, "|"), clear_texts = split(row.clear, "|");
        for (std::size_t i = 0; i < set_texts.size(); ++i) {
            const int bit = static_cast<int>(i);
            if (row.support_at != ALWAYS &&
                !set(static_cast<std::size_t>(row.support_at), row.first_support + bit))
                continue;
            if (set(row.at, row.first_bit + bit))
                say(set_texts[i]);
            else
                say(i < clear_texts.size() ? clear_texts[i] : no_text);
        }
    }

    void read_words(const word_row& row) {
        if (!set(0, row.support_bit))
            return;
        const std::uint32_t value = bytes_.at(row.at) & row.mask;
        const auto found = std::ranges::find(row.words, value, &word::value);
        if (found != row.words.end())
            say(found->text);
        else if (row.mask == 0xFF && value != 0)
            say(std::to_string(value));
    }

    const parameter_row& row_;
    const bool metric_;
    std::vector<std::uint32_t> bytes_;
    std::string text_;
    bool has_numbers_ = false;
    double value_ = NO_NUMBER;
};

// The unit of a parameter's first number.
const quantity* unit_of(unsigned pid) {
    const auto numbers = rows_of(standard_numbers(), pid);
    return numbers.empty() ? nullptr : numbers.front().scaling->unit;
}

std::string upper_case(std::string text) {
    std::ranges::transform(text, text.begin(), [](unsigned char c) { return std::toupper(c); });
    return text;
}

// The digits of a long answer in numbered frames; empty unless the frames are of one unit, in order
// and complete.
std::string frames_joined(std::span<const std::string_view> lines) {
    frame_gatherer frames;
    if (lines.size() < 2 || !is_length_line(lines[0], "41"))
        return {};
    frames.take_length(0, lines[0]);
    for (const std::string_view line : lines.subspan(1)) {
        if (!is_numbered_frame(line))
            return {};
        frames.take_frame(upper_case(std::string(line)));
    }
    std::vector<gathered_message> messages;
    unread_pieces unread;
    frames.finish(messages, unread);
    return messages.size() == 1 && unread.empty() ? messages.front().data : std::string();
}

} // namespace

answer_length standard_length(unsigned pid) {
    const parameter_row* row = row_of(pid);
    return row ? answer_length{row->bytes, row->or_bytes} : answer_length{0, 0};
}

bool has_standard_value(unsigned pid) {
    return row_of(pid) != nullptr;
}

std::string_view standard_name(unsigned pid) {
    const parameter_row* row = row_of(pid);
    return row ? row->name : std::string_view();
}

std::string_view standard_units(unsigned pid, bool metric) {
    const quantity* unit = unit_of(pid);
    return !unit ? std::string_view() : metric ? unit->metric : unit->imperial;
}

value_range standard_range(unsigned pid, bool metric) {
    const parameter_row* row = row_of(pid);
    const quantity* unit = unit_of(pid);
    if (!row || !unit)
        return {0, 0};
    return {shown(row->usual.low, *unit, metric), shown(row->usual.high, *unit, metric)};
}

translated standard_value(std::string_view reply, bool metric) {
    const std::string digits = whole_answer(without(reply, ">"));
    const translated unreadable{std::string(UNREADABLE), NO_NUMBER};
    if (!digits.starts_with("41") || digits.size() <= HEAD || !is_hex(digits))
        return unreadable;
    const parameter_row* row =
        row_of(mac_toolies::convertStr2Byte(slice(std::string_view(digits), 2, 2)));
    const std::size_t bytes = (digits.size() - HEAD) / 2;
    if (!row || digits.size() % 2 != 0 || (bytes != row->bytes && bytes != row->or_bytes))
        return unreadable;
    return answer_reader(*row, digits, metric).read();
}

std::string whole_answer(std::string_view reply) {
    const std::string plain = without(reply, " \n>");
    std::vector<std::string_view> lines = split(plain, "\r");
    std::erase(lines, "");
    if (lines.empty())
        return {};
    const std::string joined = frames_joined(lines);
    const std::string_view pid = slice(std::string_view(joined), 2, 2);
    const answer_length length = standard_length(mac_toolies::convertStr2Byte(pid));
    return joined.starts_with("41") && length.bytes > BYTES_OF_A_FRAME ? joined
                                                                       : std::string(lines[0]);
}
