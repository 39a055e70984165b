// A disk that is full soon.
#pragma once

#include <csignal>
#include <sys/resource.h>

// While it lives, no file grows beyond so many bytes: what a full disk does to a write, a short one
// first.
class full_disk {
  public:
    explicit full_disk(rlim_t bytes) {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~full_disk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, SIG_DFL);
    }

  private:
    rlimit before_{};
};
