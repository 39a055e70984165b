#include "constantes.h"
#include "mac_toolies.h"
#include "run_times.h"
#include "system_log.h"
#include "text.h"
#include "user_defaults.h"

#include <QLocale>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <tuple>

namespace {

constexpr std::string_view prefix_of(int task) {
    switch (task) {
    case 1:
        return "dtc_";
    case 3:
        return "xprt_";
    case TASK_RUN_LOG:
        return "log_";
    case 5:
        return "frz_";
    case 6:
        return "vinfo_";
    case TASK_FUEL_ECONOMY:
        return "fuel_";
    case 8:
        return "mode6_";
    case 11:
        return "misfire_";
    case TASK_BOOST:
        return "boost_";
    case TASK_O2_SAMPLING:
        return "o2_";
    default:
        return "other_";
    }
}

std::string two_digits(int number) {
    return {static_cast<char>('0' + number / 10 % 10), static_cast<char>('0' + number % 10)};
}

// Whether a run would use that name for a log; a text with a ".gol" of that name is its export.
bool is_log(std::string_view name) {
    return name.ends_with(".gol") || (name.ends_with(".txt") && !name.ends_with(".export.txt") &&
                                      !name.starts_with(prefix_of(TASK_RUN_LOG)));
}

// A file directly in the log folder.
bool plain_name(std::string_view name) {
    return !name.empty() && name != "." && name != ".." && !contains(name, "/") &&
           !contains(name, std::string_view("\0", 1));
}

} // namespace

std::string mac_toolies::get_todays_date(int flag) const {
    const std::time_t now = doors_.now();
    std::tm local{};
    localtime_r(&now, &local);
    const std::string month =
        QLocale().monthName(local.tm_mon + 1, QLocale::ShortFormat).toStdString();
    const std::string day = two_digits(local.tm_mday);
    const std::string year = std::to_string(local.tm_year + 1900);
    const std::string hour = two_digits((local.tm_hour + 11) % 12 + 1);
    const std::string minute = two_digits(local.tm_min);
    const std::string second = two_digits(local.tm_sec);
    const bool metric = doors_.defaults->boolean(KS_METRIC_UNITS_KEY);
    const std::string& first = metric ? day : month;
    const std::string& then = metric ? month : day;
    if (flag == 0)
        return first + "_" + then + "_" + year + "-" + hour + minute + "_" + second;
    return first + " " + then + " " + year + " " + hour + ":" + minute + ":" + second;
}

std::string mac_toolies::log_folder() const {
    return doors_.data_folder + "/loggies";
}

std::string mac_toolies::make_log_folder() const {
    const std::string folder = log_folder();
    std::error_code failed;
    if (std::filesystem::exists(std::filesystem::symlink_status(folder, failed)) ||
        std::filesystem::create_directories(folder, failed))
        return {};
    return failed.message();
}

std::string mac_toolies::work_out_log_fname_for_mode(int task) const {
    if (!make_log_folder().empty())
        qCWarning(log_toolkit, "Couldn't create loggies folder");
    return log_folder() + "/" + std::string(prefix_of(task)) + get_todays_date(0);
}

std::vector<logged_run> mac_toolies::list_logs() const {
    std::vector<logged_run> logs;
    std::error_code failed;
    for (std::filesystem::directory_iterator entry(log_folder(), failed), end;
         !failed && entry != end; entry.increment(failed)) {
        struct stat there {};
        const std::string name = entry->path().filename().string();
        if (is_log(name) && ::stat(entry->path().c_str(), &there) == 0 && S_ISREG(there.st_mode))
            logs.push_back({name, static_cast<std::uintmax_t>(there.st_size), there.st_mtime});
    }
    std::ranges::sort(logs, [](const logged_run& a, const logged_run& b) {
        return std::tie(b.written, b.name) < std::tie(a.written, a.name);
    });
    return logs;
}

bool mac_toolies::delete_a_log(std::string_view file_name) const {
    if (!plain_name(file_name)) {
        qCWarning(log_toolkit, "oops: %s", "not the name of a log");
        return false;
    }
    const std::string path = log_folder() + "/" + std::string(file_name);
    if (std::remove(path.c_str()) == 0) {
        std::remove(times_of_log(path).c_str()); // may not exist
        return true;
    }
    qCWarning(log_toolkit, "oops: %s", std::generic_category().message(errno).c_str());
    return false;
}
