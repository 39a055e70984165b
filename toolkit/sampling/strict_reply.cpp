#include "strict_reply.h"

#include "checksums.h"
#include "header_forms.h"
#include "hex_digits.h"
#include "notices.h"
#include "reading.h"
#include "reply_lines.h"
#include "text.h"

#include <algorithm>

namespace {

constexpr std::string_view NO_ANSWER = "#"; // every line must have a header
constexpr std::size_t FRAME_DIGITS = 14;    // after the frame number
constexpr std::size_t FIRST_DIGITS = 12;
constexpr std::size_t PARAMETER_START = 2; // after "41"

// Position of the unit's address in a header.
std::string address_in(const headed_line& line) {
    switch (line.form) {
    case header_form::can_11:
        return std::string(line.header);
    case header_form::can_29:
        return std::string(line.header.substr(6));
    default:
        return std::string(line.header.substr(4, 2));
    }
}

class strict_walk {
  public:
    strict_reply walk(std::string_view command, std::string_view reply) {
        std::vector<std::string> lines = reply_lines(reply);
        if (!lines.empty() && lines.front() == command)
            lines.erase(lines.begin());
        if (lines.size() == 1 && (notice_in(lines.front()) || lines.front() == "?")) {
            result_.notice = lines.front();
            return std::move(result_);
        }
        bool fits = !lines.empty();
        for (const std::string& line : lines)
            fits = fits && take(line);
        for (const auto& [unit, open] : open_) {
            fits = fits && open.message.data.size() == open.digits;
            result_.messages.push_back(open.message);
        }
        result_.odd = !fits;
        return std::move(result_);
    }

  private:
    struct open_message {
        unit_message message;
        std::size_t digits; // announced
    };

    bool take(std::string_view line) {
        const auto parts = is_hex(line) ? behind_header(line, NO_ANSWER) : std::nullopt;
        if (!parts || parts->form == header_form::none)
            return false;
        const std::string unit = address_in(*parts);
        return is_can(parts->form) ? take_can(unit, parts->data) : take_older(unit, *parts, line);
    }

    bool take_can(const std::string& unit, std::string_view data) {
        switch (data.front()) {
        case '0': {
            const std::size_t digits = 2 * hex_value(data.substr(1, 1));
            const std::string_view rest = data.substr(2);
            return digits > 0 && digits <= rest.size() && ends_well(rest, digits) &&
                   begin(unit, rest.substr(0, digits), digits);
        }
        case '1':
            return data.size() == 4 + FIRST_DIGITS &&
                   begin(unit, data.substr(4), 2 * hex_value(data.substr(1, 3)));
        case '2':
            return go_on(unit, hex_value(data.substr(1, 1)), data.substr(2));
        default:
            return false;
        }
    }

    // ISO 14230 has the length in the first byte.
    bool take_older(const std::string& unit, const headed_line& line, std::string_view whole) {
        const std::string_view data = line.data.substr(0, line.data.size() - 2);
        const bool kwp = line.header.substr(2, 2) == "F1";
        const unsigned length = kwp ? hex_value(line.header.substr(0, 2)) & 0x3F : 0;
        return line.form == header_form::three_bytes && ends_with_checksum(whole) &&
               (!kwp || data.size() == 2 * length) && begin(unit, data, data.size());
    }

    bool begin(const std::string& unit, std::string_view data, std::size_t digits) {
        return data.size() <= digits &&
               open_.try_emplace(unit, open_message{{unit, std::string(data), 1}, digits}).second;
    }

    bool go_on(const std::string& unit, unsigned number, std::string_view data) {
        const auto found = open_.find(unit);
        if (found == open_.end())
            return false;
        unit_message& message = found->second.message;
        const std::size_t missing = found->second.digits - message.data.size();
        if (missing == 0 || number != static_cast<unsigned>(message.frames) % 16 ||
            !ends_well(data, missing))
            return false;
        message.data += data.substr(0, missing);
        ++message.frames;
        return true;
    }

    // A complete, padded frame, or just the missing bytes.
    static bool ends_well(std::string_view data, std::size_t missing) {
        return data.size() == missing || (data.size() == FRAME_DIGITS &&
                                          is_fill(slice(data, std::min(missing, data.size()))));
    }

    std::map<std::string, open_message> open_;
    strict_reply result_;
};

} // namespace

strict_reply read_strictly(std::string_view command, std::string_view reply) {
    return strict_walk().walk(command, reply);
}

std::optional<std::vector<parameter_answer>> split_answer(std::string_view data,
                                                          const digits_by_pid& lengths) {
    if (!data.starts_with("41"))
        return std::nullopt;
    std::vector<parameter_answer> parts;
    for (std::size_t at = PARAMETER_START; at < data.size();) {
        const std::string_view pid = slice(data, at, 2);
        const auto digits = lengths.find(pid);
        if (digits == lengths.end() || data.size() < at + 2 + digits->second ||
            std::ranges::find(parts, pid, &parameter_answer::pid) != parts.end())
            return std::nullopt;
        parts.push_back(
            {std::string(pid), "41" + std::string(slice(data, at, 2 + digits->second))});
        at += 2 + digits->second;
    }
    return parts.empty() ? std::nullopt : std::optional(std::move(parts));
}
