// Assembles messages of several frames (ISO 15765-2), numbered by the adapter: "00A",
// "0:430401330220", "1:03000420000000".
#pragma once

#include "unread.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

struct gathered_message {
    std::size_t line; // where it began in the reply
    std::string data; // its certain part, never more than announced
};

// Frames do not name their sender. When several messages are open, numbers, announced lengths and
// fill decide; where they are ambiguous, only the first frames are certain.
class frame_gatherer {
  public:
    void take_length(std::size_t line, std::string_view digits);
    void take_frame(std::string_view frame);
    void finish(std::vector<gathered_message>& messages, unread_pieces& unread);

  private:
    struct message {
        std::size_t line;
        std::size_t bytes; // announced
        std::string data{};
        bool begun = false;
        unsigned frames = 0;

        bool whole() const { return data.size() == 2 * bytes; }
        // Whether that can be its next frame; the last one may be padded.
        bool accepts(std::string_view frame) const;
        void append(std::string_view frame);
    };
    using messages_of_group = std::vector<message>;

    void take_first(std::string_view frame, std::string_view digits);
    std::size_t frames_awaited() const;
    void close_group();
    // Tries every way to assign the frames from that one on to messages.
    void assign(std::size_t frame, messages_of_group& so_far, std::vector<messages_of_group>& ways);
    void take_unambiguous();

    messages_of_group group_; // those that may be interleaved
    std::vector<std::string> later_;
    std::size_t steps_ = 0;
    messages_of_group done_;
    unread_pieces unread_;
};
