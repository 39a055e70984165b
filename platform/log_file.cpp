#include "log_file.h"

#include <cerrno>
#include <condition_variable>
#include <fcntl.h>
#include <mutex>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace {

std::string in_words(int error) {
    return std::generic_category().message(error);
}

// 0, or the error if not everything was written.
int write_whole(int fd, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = ::write(fd, text.data(), text.size());
        if (written < 0 && errno != EINTR)
            return errno;
        if (written > 0)
            text.remove_prefix(static_cast<std::size_t>(written));
    }
    return 0;
}

// 0, or the error of the disk. A file that cannot be synced, such as a device, is not a failure.
int force_to_disk(int fd) {
    return ::fdatasync(fd) == 0 || errno == EINVAL || errno == EROFS ? 0 : errno;
}

// The name of a new file is an entry of its folder, which must be synced too.
void force_folder_to_disk(const std::string& file) {
    const std::size_t slash = file.rfind('/');
    const std::string folder = slash == file.npos ? "." : file.substr(0, slash + 1);
    const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return;
    ::fsync(fd);
    ::close(fd);
}

} // namespace

// Syncs the file whenever something was appended; what is appended during one flush is covered by
// the next.
class log_file::disk_flusher {
  public:
    disk_flusher(int fd, std::string path)
        : thread_([this, fd, path = std::move(path)] { work(fd, path); }) {}

    ~disk_flusher() { finish(); }

    void flush() {
        const std::lock_guard lock(mutex_);
        dirty_ = true;
        wake_.notify_one();
    }
    // The error of the first failed flush; 0 if none failed.
    int error() {
        const std::lock_guard lock(mutex_);
        return error_;
    }
    void finish() {
        {
            const std::lock_guard lock(mutex_);
            over_ = true;
            wake_.notify_one();
        }
        if (thread_.joinable())
            thread_.join();
    }

  private:
    void work(int fd, const std::string& path) {
        force_folder_to_disk(path);
        std::unique_lock lock(mutex_);
        for (;;) {
            wake_.wait(lock, [this] { return dirty_ || over_; });
            if (!dirty_)
                return;
            dirty_ = false;
            lock.unlock();
            const int error = force_to_disk(fd);
            lock.lock();
            if (error_ == 0)
                error_ = error;
        }
    }

    std::mutex mutex_;
    std::condition_variable wake_;
    bool dirty_ = false;
    bool over_ = false;
    int error_ = 0;
    std::thread thread_; // last, because it uses the others
};

log_file::log_file() = default;

log_file::~log_file() {
    close();
}

std::optional<std::string> log_file::create(const std::string& path, existing file_there) {
    close();
    const int mode = file_there == existing::replace ? O_TRUNC : O_EXCL;
    const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC | mode, 0666);
    if (fd < 0)
        return in_words(errno);
    try {
        flusher_ = std::make_unique<disk_flusher>(fd, path);
    } catch (const std::system_error& no_thread) {
        ::close(fd);
        return std::string(no_thread.what());
    }
    path_ = path;
    fd_ = fd;
    removed_when_empty_ = has_lines_ = false;
    return std::nullopt;
}

std::optional<std::string> log_file::append_line(std::string_view lines) {
    if (!is_open())
        return std::nullopt;
    if (const int error = flusher_->error())
        return fail(error);
    struct stat there {};
    if (::fstat(fd_, &there) == 0 && there.st_nlink == 0)
        return fail(ENOENT); // the file was removed: what is written to it is lost
    const off_t end = ::lseek(fd_, 0, SEEK_END);
    if (const int error = write_whole(fd_, lines)) {
        // A device has no length to truncate to.
        [[maybe_unused]] const int cut = end >= 0 ? ::ftruncate(fd_, end) : 0;
        return fail(error);
    }
    has_lines_ = has_lines_ || !lines.empty();
    flusher_->flush();
    return std::nullopt;
}

bool log_file::is_there() const {
    struct stat opened {
    }, named{};
    return ::fstat(fd_, &opened) == 0 && ::lstat(path_.c_str(), &named) == 0 &&
           S_ISREG(named.st_mode) && opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

std::optional<std::string> log_file::fail(int error) {
    close();
    return in_words(error);
}

std::optional<std::string> log_file::close() {
    if (!is_open())
        return std::nullopt;
    flusher_->finish();
    int error = flusher_->error();
    flusher_.reset();
    if (removed_when_empty_ && !has_lines_ && is_there())
        ::unlink(path_.c_str());
    if (::close(fd_) != 0 && error == 0)
        error = errno;
    fd_ = -1;
    return error == 0 ? std::nullopt : std::optional(in_words(error));
}
