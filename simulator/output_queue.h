// The adapter's pending output: pieces of text, each with the time from which it may leave.
#pragma once

#include <chrono>
#include <deque>
#include <optional>
#include <string>

class output_queue {
  public:
    using milliseconds = std::chrono::milliseconds;

    // Makes every byte a separate piece, a millisecond apart.
    void send_single_bytes() { single_bytes_ = true; }

    // Pieces leave in the order in which they were pushed.
    void push(milliseconds due, std::string text);
    // Delays everything that waits until then.
    void hold_until(milliseconds due);
    std::optional<milliseconds> next() const;
    // When the last piece leaves.
    std::optional<milliseconds> last() const;
    std::string take(milliseconds now);
    void drop_waiting() {
        pieces_.clear();
        last_byte_ = milliseconds(0);
    }

  private:
    struct piece {
        milliseconds due;
        std::string text;
    };

    std::deque<piece> pieces_;
    bool single_bytes_ = false;
    milliseconds last_byte_{0};
};
