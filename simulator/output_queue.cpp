#include "output_queue.h"

#include <algorithm>

void output_queue::push(milliseconds due, std::string text) {
    if (text.empty())
        return;
    if (!pieces_.empty())
        due = std::max(due, pieces_.back().due);
    if (!single_bytes_) {
        pieces_.push_back({due, std::move(text)});
        return;
    }
    for (const char c : text) {
        last_byte_ = std::max(due, last_byte_ + milliseconds(1));
        pieces_.push_back({last_byte_, std::string(1, c)});
    }
}

void output_queue::hold_until(milliseconds due) {
    for (piece& one : pieces_)
        one.due = std::max(one.due, due);
}

std::optional<output_queue::milliseconds> output_queue::next() const {
    return pieces_.empty() ? std::nullopt : std::optional(pieces_.front().due);
}

std::optional<output_queue::milliseconds> output_queue::last() const {
    return pieces_.empty() ? std::nullopt : std::optional(pieces_.back().due);
}

std::string output_queue::take(milliseconds now) {
    std::string text;
    while (!pieces_.empty() && pieces_.front().due <= now) {
        text += pieces_.front().text;
        pieces_.pop_front();
        if (single_bytes_)
            break;
    }
    return text;
}
