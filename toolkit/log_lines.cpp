#include "log_lines.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

std::optional<std::string> log_lines::open(const std::string& path) {
    close();
    path_ = path;
    // Opening a pipe must not wait for a writer.
    file_ = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    struct stat there {};
    if (file_ < 0 || ::fstat(file_, &there) != 0)
        return path + ": " + std::generic_category().message(errno);
    if (!S_ISREG(there.st_mode))
        return path + ": not a file";
    size_ = static_cast<std::uint64_t>(there.st_size);
    rewind();
    return std::nullopt;
}

bool log_lines::read_piece(std::string& error) {
    unread_.erase(0, taken_);
    taken_ = 0;
    const std::size_t kept = unread_.size();
    unread_.resize(kept + PIECE);
    const ssize_t got = ::read(file_, unread_.data() + kept, PIECE);
    const int why = errno;
    unread_.resize(kept + static_cast<std::size_t>(std::max<ssize_t>(got, 0)));
    read_ += unread_.size() - kept;
    if (got < 0 && why != EINTR)
        error =
            path_ + ":" + std::to_string(lines_ + 1) + ": " + std::generic_category().message(why);
    ended_ = got == 0;
    return !ended_ && error.empty();
}

std::optional<std::string_view> log_lines::next() {
    const std::string_view rest = std::string_view(unread_).substr(taken_);
    const std::size_t end = rest.substr(0, LONGEST_LINE).find('\n');
    if (rest.empty() || (end == rest.npos && rest.size() < LONGEST_LINE && !ended_))
        return std::nullopt;
    const std::size_t size = std::min(end == rest.npos ? LONGEST_LINE : end + 1, rest.size());
    taken_ += size;
    ++lines_;
    return rest.substr(0, size);
}

void log_lines::rewind() {
    ::lseek(file_, 0, SEEK_SET);
    unread_.clear();
    taken_ = 0;
    ended_ = false;
    read_ = lines_ = 0;
}

void log_lines::close() {
    if (file_ >= 0)
        ::close(file_);
    file_ = -1;
}

double log_lines::done() const {
    return size_ == 0 ? 1 : std::min(1.0, static_cast<double>(read_) / static_cast<double>(size_));
}
