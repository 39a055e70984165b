// A recorded conversation with an adapter, as `kestrom --record` writes it: the commands, the
// replies and their times. docs/json/recording.schema.json describes the file.
#pragma once

#include <chrono>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

struct recorded_piece {
    std::chrono::milliseconds after; // the exchange's `asked`
    std::string bytes;
};

// A command and everything received before the next one.
struct recorded_exchange {
    std::optional<std::string> command; // as plain_command() returns it; none: unsolicited bytes
    std::chrono::milliseconds asked{0}; // since the start of the recording
    std::vector<recorded_piece> pieces;
    std::optional<std::chrono::milliseconds> hung_up; // by the adapter, this long after `asked`
};

struct recording {
    std::vector<recorded_exchange> exchanges; // of all connections, in order
    // The index of each connection's first exchange, the one without a command; at least one.
    std::vector<std::size_t> connections;
};

class recording_error : public std::runtime_error {
  public:
    // Line 0: the file as a whole.
    recording_error(const std::string& file, int line, const std::string& reason)
        : std::runtime_error(file + (line > 0 ? ":" + std::to_string(line) : "") + ": " + reason),
          line_(line) {}
    int line() const { return line_; }

  private:
    int line_;
};

// Both throw recording_error; `file` is for messages.
recording read_recording(std::string_view text, const std::string& file);
recording load_recording(const std::string& file);
