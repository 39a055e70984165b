// What the adapter has to say and when: pieces of text with the time from which each may leave.
#pragma once

#include <chrono>
#include <deque>
#include <optional>
#include <string>

class output_queue {
  public:
    using milliseconds = std::chrono::milliseconds;

    // Every byte a piece of its own, a millisecond apart.
    void send_single_bytes() { single_bytes_ = true; }

    // A piece never leaves before those pushed earlier.
    void push(milliseconds due, std::string text);
    // Keeps everything that waits until then.
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
