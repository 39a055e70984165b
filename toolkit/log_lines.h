// The lines of a run log, read a piece of the file at a time. A log may hold any bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

class log_lines {
  public:
    static constexpr std::size_t PIECE = std::size_t{16} * 1024;
    static constexpr std::size_t LONGEST_LINE = 999; // bytes; a longer line is split

    log_lines() = default;
    ~log_lines() { close(); }
    log_lines(const log_lines&) = delete;
    log_lines& operator=(const log_lines&) = delete;

    // The reason of failure, with the file name.
    std::optional<std::string> open(const std::string& path);
    // Reads another piece; false at the end of the file, or on failure (`error`).
    bool read_piece(std::string& error);
    // The next line read, with its line end; at the end of the file also a last line without one.
    // The view is valid until the next piece.
    std::optional<std::string_view> next();
    void rewind();
    void close();

    bool is_open() const { return file_ >= 0; }
    std::uint64_t lines() const { return lines_; }
    double done() const; // the fraction read, 0 to 1

  private:
    std::string path_;
    int file_ = -1;
    std::string unread_; // from taken_ on
    std::size_t taken_ = 0;
    bool ended_ = false;
    std::uint64_t size_ = 0, read_ = 0, lines_ = 0;
};
