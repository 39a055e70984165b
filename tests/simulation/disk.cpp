#include "disk.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <sys/resource.h>

namespace {

constexpr rlim_t FULL_AT = 150; // bytes of a file

void limit_files(rlim_t size) {
    rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = std::min(size, limit.rlim_max);
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

} // namespace

disk::disk(std::string folder) : folder_(std::move(folder)) {
    std::signal(SIGXFSZ, SIG_IGN);
    std::error_code failed;
    std::filesystem::remove_all(folder_, failed);
    std::filesystem::create_directories(folder_, failed);
}

void disk::fill() {
    limit_files(FULL_AT);
}

void disk::remove_logs() {
    std::error_code failed;
    std::filesystem::remove_all(logs(), failed);
}

void disk::block_logs() {
    remove_logs();
    std::error_code failed;
    std::filesystem::create_directories(folder_ + "/data", failed);
    std::ofstream(logs()) << "in the way\n";
}

void disk::mend() {
    limit_files(RLIM_INFINITY);
    std::error_code failed;
    if (std::filesystem::is_regular_file(logs(), failed))
        std::filesystem::remove(logs(), failed);
}
