#include "ledger.h"

#include <algorithm>
#include <cctype>
#include <map>

namespace {

constexpr std::size_t MOST_KEPT = 1 << 16; // of one answer

// Calls with every line, until it returns true.
template <class call>
bool any_line(std::string_view text, call fits) {
    const std::string lines = bare(text);
    for (std::size_t start = 0; start <= lines.size();) {
        const std::size_t end = std::min(lines.find('\r', start), lines.size());
        if (fits(std::string_view(lines).substr(start, end - start)))
            return true;
        start = end + 1;
    }
    return false;
}

void keep(std::string& text, std::string_view more) {
    text += more.substr(0, MOST_KEPT - std::min(MOST_KEPT, text.size()));
}

// PID 06 to 09, of one bank or of two: both lengths are right.
bool is_fuel_trim(std::string_view line) {
    return line.size() > 4 && line.starts_with("410") && line[3] >= '6' && line[3] <= '9';
}

} // namespace

std::string bare(std::string_view text) {
    std::string left;
    for (const char c : text)
        if (c != ' ' && c != '\n' && c != '\0' && c != '>')
            left += c;
    return left;
}

bool all_hex(std::string_view text) {
    return std::ranges::all_of(text, [](unsigned char c) { return std::isxdigit(c); });
}

bool answer_slot::holds(std::string_view line) const {
    // After a header whose digits went into another reply.
    if (any_line(said, [&](std::string_view one) { return one.ends_with(line); }))
        return true;
    return damaged && all_hex(line) && bare(arrived).find(line) != std::string::npos &&
           any_line(said, [&](std::string_view one) {
               return one.size() == line.size() ||
                      (is_fuel_trim(line) && one.size() + 2 == line.size());
           });
}

bool answer_slot::holds_digits(std::string_view digits) const {
    std::string run; // the digits of all lines, without frame numbers
    any_line(arrived, [&](std::string_view line) {
        run += line.size() > 1 && line[1] == ':' ? line.substr(2) : line;
        if (line.starts_with("0:") && line.size() == 15) // thirteen lose the fifth, deliberately
            run.erase(run.size() - 9, 1);
        return false;
    });
    std::ranges::transform(run, run.begin(), [](unsigned char c) { return std::toupper(c); });
    return run.find(digits) != std::string::npos;
}

bool answer_slot::tells(std::string_view digits) const {
    std::map<std::string, std::string> units;
    return any_line(damaged ? arrived : said, [&](std::string_view line) {
        if (line.size() < 8)
            return false;
        const bool wide = line.starts_with("18DA"), can = wide || line.starts_with("7E");
        const std::size_t header = can ? (wide ? 8 : 3) : 6;
        std::string_view data = line.substr(header);
        if (can)
            data = data.substr(data[0] == '1' ? 4 : 2);
        std::string& unit = units[std::string(line.substr(can ? 0 : 4, can ? header : 2))];
        unit += data;
        return unit.find(digits) != std::string::npos;
    });
}

std::vector<std::string> answer_slot::messages() const {
    std::map<std::string, std::pair<std::string, std::size_t>> longer; // by header: data, digits
    std::vector<std::string> whole;
    any_line(said, [&](std::string_view line) {
        const bool wide = line.starts_with("18DA");
        const std::size_t header = wide ? 8 : line.starts_with("7E") ? 3 : 6;
        if (line.size() < header + 4)
            return false;
        std::string_view data = line.substr(header);
        if (header == 6) { // followed by a checksum
            whole.emplace_back(data.substr(0, data.size() - 2));
            return false;
        }
        const auto number = [&](std::size_t at, std::size_t digits) {
            return std::stoul("0" + std::string(data.substr(at, digits)), nullptr, 16);
        };
        auto& [gathered, digits] = longer[std::string(line.substr(0, header))];
        if (data[0] == '0') {
            whole.emplace_back(data.substr(2, 2 * number(1, 1)));
        } else if (data[0] == '1') {
            digits = 2 * number(1, 3);
            gathered = data.substr(4);
        } else {
            gathered += data.substr(2);
        }
        return false;
    });
    for (const auto& [header, one] : longer)
        if (one.second > 0 && one.first.size() >= one.second)
            whole.push_back(one.first.substr(0, one.second));
    return whole;
}

bool answer_slot::asks_for(std::string_view pid) const {
    for (std::size_t at = 2; command.starts_with("01") && at + 2 <= command.size(); at += 2)
        if (command.substr(at, 2) == pid)
            return true;
    return false;
}

const answer_slot* wire_ledger::asked_for(std::string_view pid, std::uint64_t before) const {
    for (std::size_t i = slots_.size(); i-- > 1;)
        if (slots_[i].written < before && slots_[i].asks_for(pid))
            return &slots_[i];
    return nullptr;
}

bool wire_ledger::is_newest(const answer_slot& slot, std::uint64_t before) const {
    return std::none_of(&slot + 1, slots_.data() + slots_.size(), [&](const answer_slot& later) {
        return later.written < before && !later.command.empty();
    });
}

bool answer_slot::sound() const {
    return complete() && !any_line(said, [](std::string_view line) {
               return !all_hex(line.substr(line.size() > 1 && line[1] == ':' ? 2 : 0));
           });
}

bool answer_slot::passes_for_another() const {
    return damaged && !any_line(arrived, [this](std::string_view line) {
               return !line.empty() && !any_line(said, [line](std::string_view one) {
                   return one == line || (all_hex(line) && one.size() == line.size());
               });
           });
}

std::vector<std::string> answer_slot::status_digits() const {
    std::vector<std::string> found;
    any_line(arrived, [&](std::string_view line) {
        for (std::size_t at = 0; (at = line.find("4101", at)) != std::string_view::npos; ++at)
            found.emplace_back(line.substr(at + 4));
        return false;
    });
    return found;
}

void wire_ledger::forget() {
    slots_.assign(1, {});
    moment_ = 0;
}

std::size_t wire_ledger::written(std::string_view command, const car& asked) {
    answer_slot slot;
    for (const char c : bare(command))
        if (c != '\r')
            slot.command += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    slot.written = ++moment_;
    if (slot.command == "03" || slot.command == "0101")
        slot.car = truth_of(asked);
    slots_.push_back(std::move(slot));
    return slots_.size() - 1;
}

void wire_ledger::delivered(std::size_t slot, std::string_view bytes) {
    if (bytes.empty())
        return;
    slots_[slot].delivered = ++moment_;
    keep(slots_[slot].arrived, bytes);
}

bool wire_ledger::in_time(const answer_slot& slot) const {
    const answer_slot* const next = &slot + 1;
    return slot.delivered > 0 && (&slot == &slots_.back() || slot.delivered < next->written);
}

const answer_slot* wire_ledger::asked(std::string_view command, std::uint64_t before) const {
    for (auto slot = slots_.rbegin(); slot != slots_.rend(); ++slot)
        if (slot->written < before && slot->command == command)
            return &*slot;
    return nullptr;
}
