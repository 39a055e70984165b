#include "serial_problem.h"

#include "bundle.h"
#include "text.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <grp.h>
#include <string_view>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace {

// In the order of serial_problem; keys of the strings table.
constexpr const char* TEXTS[] = {"",
                                 "serial_not_chosen",
                                 "serial_not_there",
                                 "serial_taken",
                                 "serial_not_permitted",
                                 "serial_busy",
                                 "serial_silent",
                                 "serial_other"};

// Makers of the chips in cables: FTDI, Silicon Labs, Prolific, WCH.
constexpr std::string_view CHIP_MAKERS[] = {"0403", "10c4", "067b", "1a86"};

bool drives_a_cable(const std::filesystem::path& interface) {
    std::error_code none;
    std::ifstream file(std::filesystem::canonical(interface, none).parent_path() / "idVendor");
    std::string maker;
    file >> maker;
    return std::ranges::find(CHIP_MAKERS, maker) != std::end(CHIP_MAKERS);
}

bool cable_taken(const std::filesystem::path& own_drivers) {
    std::error_code none;
    const std::filesystem::directory_iterator interfaces(own_drivers, none);
    return std::ranges::any_of(interfaces, drives_a_cable);
}

} // namespace

std::string problem_text(const serial_failure& failure, const bundle& texts,
                         const std::string& path) {
    const std::string text = texts.localized(TEXTS[static_cast<int>(failure.problem)]);
    return replace_all(replace_all(text, "%2", failure.detail), "%1", path);
}

serial_failure problem_of_path(const std::string& path, const std::filesystem::path& own_drivers) {
    if (::access(path.c_str(), R_OK | W_OK) == 0)
        return {};
    if (path.empty())
        return {serial_problem::not_chosen};
    const int error = errno;
    struct stat file = {};
    if (error == EACCES && ::stat(path.c_str(), &file) == 0)
        return refused_by(file.st_mode, file.st_gid);
    if (error != ENOENT)
        return {serial_problem::other, std::generic_category().message(error)};
    return {cable_taken(own_drivers) ? serial_problem::taken : serial_problem::not_there};
}

// Never advises joining the group of root, or one without permission.
serial_failure refused_by(unsigned mode, unsigned group) {
    constexpr unsigned GROUP_USES = S_IRGRP | S_IWGRP;
    const struct group* entry = group == 0 ? nullptr : ::getgrgid(group);
    if (!entry || (mode & GROUP_USES) != GROUP_USES)
        return {serial_problem::other, std::generic_category().message(EACCES)};
    return {serial_problem::not_permitted, entry->gr_name};
}
