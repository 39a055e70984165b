#include "reply_faults.h"

#include <algorithm>

namespace {

using std::chrono::milliseconds;

constexpr milliseconds LATE{4000};

void drop_some_bytes(std::string& text, double percent, seeded_random& random) {
    std::string kept;
    for (const char c : text)
        if (!random.happens(percent))
            kept += c;
    text = kept;
}

// Bytes as a noisy line produces them; never the prompt, which would be another fault.
void strew_rubbish(std::string& text, seeded_random& random) {
    const auto count = int(random.between(1, 6));
    for (int i = 0; i < count; ++i) {
        const auto at = std::size_t(random.between(0, double(text.size()) + 1));
        char rubbish = char(random.next() & 0xFF);
        if (rubbish == '>')
            rubbish = '\xFE';
        text.insert(std::min(at, text.size()), 1, rubbish);
    }
}

void break_off(adapter_reply& pieces, std::size_t most, const std::string& end_of_line) {
    std::size_t length = 0;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        length += pieces[i].text.size();
        if (length <= most)
            continue;
        pieces[i].text.resize(pieces[i].text.size() - (length - most));
        pieces[i].text += "BUFFER FULL" + end_of_line + end_of_line + ">";
        pieces.resize(i + 1);
        return;
    }
}

void delay(adapter_reply& pieces, milliseconds by) {
    for (reply_piece& piece : pieces)
        piece.after += by;
}

void send_twice(adapter_reply& pieces) {
    const adapter_reply once = pieces;
    for (reply_piece piece : once) {
        piece.after += once.back().after;
        pieces.push_back(piece);
    }
}

void split_prompt(adapter_reply& pieces, milliseconds by) {
    adapter_reply split;
    milliseconds held{0};
    for (const reply_piece& piece : pieces) {
        const std::size_t prompt = piece.text.find('>');
        split.push_back({piece.after + held, piece.text.substr(0, prompt)});
        if (prompt == std::string::npos)
            continue;
        held += by;
        split.push_back({piece.after + held, piece.text.substr(prompt)});
    }
    pieces = split;
}

} // namespace

bool every_nth(const fault_set& faults, fault_kind kind, long number) {
    const std::optional<long> n = faults.value(kind);
    return n && *n > 0 && number % *n == 0;
}

void apply_reply_faults(adapter_reply& pieces, const fault_set& faults, long number,
                        const std::string& end_of_line, seeded_random& random) {
    if (const auto most = faults.value(fault_kind::buffer_full))
        break_off(pieces, std::size_t(*most), end_of_line);
    if (faults.has(fault_kind::clone))
        pieces.front().text.insert(0, 2, '\0');
    const auto rubbish = faults.value(fault_kind::garbage);
    if (rubbish && random.happens(double(*rubbish)))
        for (reply_piece& piece : pieces)
            strew_rubbish(piece.text, random);
    if (const auto percent = faults.value(fault_kind::drop_bytes))
        for (reply_piece& piece : pieces)
            drop_some_bytes(piece.text, double(*percent), random);
    if (faults.has(fault_kind::text_after_prompt))
        pieces.back().text += "\r\nREADY\r\n";
    if (every_nth(faults, fault_kind::duplicate_reply, number))
        send_twice(pieces);
    if (const auto by = faults.value(fault_kind::split_prompt))
        split_prompt(pieces, milliseconds(*by));
    if (faults.has(fault_kind::nagle))
        for (std::size_t i = 0; i < pieces.size(); ++i)
            pieces[i].after += milliseconds(i);
    if (const auto by = faults.value(fault_kind::latency))
        delay(pieces, milliseconds(*by));
    if (every_nth(faults, fault_kind::late_reply, number))
        delay(pieces, LATE);
}
