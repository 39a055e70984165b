#include "constantes.h"
#include "fixed_decimals.h"
#include "mac_toolies.h"
#include "text.h"
#include "translation_rows.h"
#include "user_defaults.h"

#include <algorithm>
#include <limits>

namespace {

constexpr std::string_view UNREADABLE = "~";
constexpr std::string_view NO_ENTRY = "N/A";
constexpr std::string_view LINE_ENDS = " \t\n\v\f\r>";
constexpr std::size_t SHORTEST_REPLY = 5;
constexpr std::size_t DATA_START = 4; // after the service and the PID
constexpr std::size_t MOST_NUMBERS = 3;
constexpr std::size_t LONGEST_UNIT = 16;

using text_room = char[MOST_NUMBERS * (FIXED_DECIMALS_ROOM + LONGEST_UNIT)];

// The first line without blanks and prompt. The prompt of the previous command may precede it.
std::string spaceless_first_line(std::string_view reply) {
    std::string line;
    for (const char c : trimmed(reply, LINE_ENDS)) {
        if (c == '\r')
            break;
        if (c != ' ' && c != '>')
            line += c;
    }
    return line;
}

reply_data read_data(std::string_view line) {
    // A single digit is not data.
    const std::string_view digits =
        line.size() > DATA_START + 1 ? line.substr(DATA_START) : std::string_view();
    reply_data data;
    data.whole = mac_toolies::convertStr2Byte(digits);
    data.a = mac_toolies::convertStr2Byte(slice(digits, 0, 2));
    if (digits.size() > 3)
        data.b = mac_toolies::convertStr2Byte(slice(digits, 2, 2));
    data.first = mac_toolies::convertStr2Byte(slice(digits, 0, 4));
    data.second = mac_toolies::convertStr2Byte(slice(digits, 4, 4));
    return data;
}

std::string_view write_numbers(std::span<const number_part> parts, const reply_data& data,
                               std::span<char> room) {
    char* end = room.data();
    for (const number_part& part : parts) {
        if (part.stands != nullptr && !part.stands(data))
            continue;
        end = std::copy(part.before.begin(), part.before.end(), end);
        end = write_fixed_decimals(end, part.value(data), part.decimals);
        end = std::copy(part.after.begin(), part.after.end(), end);
    }
    return {room.data(), end};
}

std::string_view status_of(const translation_row& row, std::uint32_t code) {
    for (const status_text& status : row.statuses)
        if (status.code == code)
            return status.text;
    return row.other_status;
}

double number_of(std::string_view text) {
    if (text.empty() || contains(text, UNREADABLE))
        return std::numeric_limits<double>::quiet_NaN();
    return leading_number(text);
}

} // namespace

std::string_view mac_toolies::table_text(std::string_view table, std::uint32_t code) const {
    auto lines = line_tables_.find(table);
    if (lines == line_tables_.end())
        lines =
            line_tables_
                .emplace(table,
                         get_array_from_resource(table, "txt").value_or(std::vector<std::string>()))
                .first;
    return code >= 1 && code <= lines->second.size() ? lines->second[code - 1] : NO_ENTRY;
}

std::string_view mac_toolies::display_text(std::string_view reply, std::span<char> room) const {
    const std::string line = spaceless_first_line(reply);
    if (line.size() < SHORTEST_REPLY || !is_hex(slice(std::string_view(line), 0, 1)))
        return UNREADABLE;
    const translation_row* row =
        translation_row_of(convertStr2Byte(slice(std::string_view(line), 2, 2)));
    if (row == nullptr)
        return UNREADABLE;
    const reply_data data = read_data(line);
    if (!row->statuses.empty())
        return status_of(*row, data.a);
    if (!row->table.empty())
        return table_text(row->table, data.*row->table_code);
    const bool metric = doors_.defaults->boolean(KS_METRIC_UNITS_KEY);
    return write_numbers(metric ? row->metric : row->imperial, data, room);
}

std::string mac_toolies::translateResponse(std::string_view reply) const {
    text_room room;
    return std::string(display_text(reply, room));
}

double mac_toolies::get_OBDVal(std::string_view reply) const {
    text_room room;
    return number_of(display_text(reply, room));
}

translated mac_toolies::translate_once(std::string_view reply) const {
    text_room room;
    const std::string_view text = display_text(reply, room);
    return {std::string(text), number_of(text)};
}
