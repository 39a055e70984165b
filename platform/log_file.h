// A text file written durably, line by line: a run's log, an export. Owned by its writer.
//
// A line taken by append_line survives the end of the process, even a kill -9: it is handed to the
// operating system in one piece. Against a power failure it is also synced at once, but on a
// separate thread: that takes 0.1 to 5 ms on the disks measured and may take seconds on a busy one,
// which must not stall the conversation with the car.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

class log_file {
  public:
    enum class existing { replace, refuse };

    log_file();
    ~log_file();
    log_file(const log_file&) = delete;
    log_file& operator=(const log_file&) = delete;

    // Creates an empty file and opens it, closing any that was open. Returns the reason of failure;
    // then no file is open.
    std::optional<std::string> create(const std::string& path,
                                      existing file_there = existing::replace);

    // Appends `lines`, complete with line ends, all or nothing: if they cannot be written, an
    // earlier sync failed or the file was removed, the file is truncated to its previous length and
    // closed, and the reason returned. Appending to a closed file has no effect and is not an
    // error.
    std::optional<std::string> append_line(std::string_view lines);

    // From now on, a file without any line is removed when it is closed.
    void remove_when_empty() { removed_when_empty_ = true; }
    // Whether a line was taken since it was created.
    bool has_lines() const { return has_lines_; }

    // Waits until everything is on disk. Returns the reason of failure.
    std::optional<std::string> close();

    bool is_open() const { return fd_ >= 0; }
    const std::string& path() const { return path_; }

  private:
    class disk_flusher;

    std::optional<std::string> fail(int error);
    bool is_there() const; // still has its name

    std::string path_;
    int fd_ = -1;
    bool removed_when_empty_ = false, has_lines_ = false;
    std::unique_ptr<disk_flusher> flusher_;
};
