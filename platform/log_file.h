// A text file that is written for keeps, line by line: a run's log, an export. Owned by whoever
// writes it.
//
// A line that append_line has taken survives the end of the process, a kill -9 too: it was handed
// to the operating system whole. It is forced to disk at once as well, against a loss of power,
// but on a thread of the file's own: that takes 0.1 to 5 ms on the disks at hand and can take
// seconds on a busy one, which must not hold up the conversation with the car.
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

    // Creates an empty file and opens it, closing any that was open. The reason when that fails;
    // the file is closed then.
    std::optional<std::string> create(const std::string& path,
                                      existing file_there = existing::replace);

    // Appends `lines`, whole lines with their ends, all or nothing: when they cannot be written,
    // the disk failed earlier lines or the file has been removed, the file is cut back to where it
    // stood and closed, and the reason returned. What is appended to a closed file goes nowhere,
    // without an error.
    std::optional<std::string> append_line(std::string_view lines);

    // From now on a file into which no line came is removed when it is closed.
    void leave_no_empty_file() { removed_when_empty_ = true; }
    // Whether a line was taken since it was created.
    bool has_lines() const { return has_lines_; }

    // Waits until all is on disk. The reason when the disk failed.
    std::optional<std::string> close();

    bool is_open() const { return fd_ >= 0; }
    const std::string& path() const { return path_; }

  private:
    class disk_flusher;

    std::optional<std::string> fail(int error);
    bool is_there() const; // under its name

    std::string path_;
    int fd_ = -1;
    bool removed_when_empty_ = false, has_lines_ = false;
    std::unique_ptr<disk_flusher> flusher_;
};
