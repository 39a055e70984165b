// The door to a TCP connection: an input and an output stream to one host, opened together. The
// link owns one pair at a time; a pair that is closed or destroyed raises no further event.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

enum class stream_side { input, output };

// Event codes of the link's handler.
inline constexpr int STREAM_OPEN_COMPLETED = 1;
inline constexpr int STREAM_BYTES_AVAILABLE = 2;
inline constexpr int STREAM_SPACE_AVAILABLE = 4;
inline constexpr int STREAM_ERROR = 8;
inline constexpr int STREAM_END = 16;

class stream_pair {
  public:
    using event_handler = std::function<void(stream_side side, int event_code)>;

    virtual ~stream_pair() = default;

    // Starts to connect. Events come from the run loop later, never from inside open, write or
    // close: both sides report open; the input side reports bytes, error and end; what was received
    // before the end is read before it. The peer's close is the end event, never an error; our own
    // close raises none.
    virtual void open(event_handler handler) = 0;
    // At most `most` bytes received so far; empty if none.
    virtual std::string read(std::size_t most) = 0;
    // Hands the bytes to the system at once; a pair that is not open drops them.
    virtual void write(std::string_view bytes) = 0;
    virtual void close() = 0;
    // What went wrong, in words, after an error event.
    virtual std::string error_description() const = 0;
};

// Makes a pair to host and port; nothing if none can be made. The port may be any number: one
// outside 0 to 65535 ends in the error event.
using stream_pair_factory =
    std::function<std::unique_ptr<stream_pair>(const std::string& host, long port)>;
