#include "recorded_adapter.h"

#include "request_reader.h"

#include <algorithm>

namespace {

constexpr std::size_t LONGEST_COMMAND = 4096;

} // namespace

recorded_adapter::recorded_adapter(recording recorded, double timing,
                                   std::optional<milliseconds> latency)
    : recorded_(std::move(recorded)), timing_(timing), latency_(latency) {}

void recorded_adapter::connection_opened(milliseconds now) {
    output_.drop_waiting();
    typed_.clear();
    hangs_up_.reset();
    const std::size_t connection = next_connection_++ % recorded_.connections.size();
    play(recorded_.connections[connection], now);
}

void recorded_adapter::receive(std::string_view bytes, milliseconds now) {
    for (const char c : bytes) {
        if (c == '\r') {
            answer(typed_, now);
            typed_.clear();
        } else if (typed_.size() < LONGEST_COMMAND) {
            typed_ += c;
        }
    }
}

void recorded_adapter::answer(std::string_view typed, milliseconds now) {
    const auto& all = recorded_.exchanges;
    const std::string command = plain_command(typed);
    const auto from = all.begin() + static_cast<std::ptrdiff_t>(next_);
    auto found = std::ranges::find(from, all.end(), command, &recorded_exchange::command);
    if (found == all.end())
        found = std::ranges::find(all.begin(), from, command, &recorded_exchange::command);
    if (found == all.end() || found->command != command)
        output_.push(now, "?\r\r>");
    else
        play(static_cast<std::size_t>(found - all.begin()), now);
}

void recorded_adapter::play(std::size_t exchange, milliseconds now) {
    const recorded_exchange& one = recorded_.exchanges[exchange];
    for (const recorded_piece& piece : one.pieces)
        output_.push(now + delay(piece.after), piece.bytes);
    if (one.hung_up)
        hangs_up_ = now + delay(*one.hung_up);
    next_ = exchange + 1;
}

std::optional<adapter::milliseconds> recorded_adapter::next_output() const {
    const auto due = output_.next();
    return due ? due : hangs_up_;
}

bool recorded_adapter::wants_close(milliseconds now) const {
    return hangs_up_ && now >= *hangs_up_ && !output_.next();
}

adapter::milliseconds recorded_adapter::delay(milliseconds recorded) const {
    return latency_ ? *latency_
                    : milliseconds(static_cast<milliseconds::rep>(
                          static_cast<double>(recorded.count()) * timing_));
}
