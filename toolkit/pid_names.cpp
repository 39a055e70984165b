#include "bundle.h"
#include "mac_toolies.h"

#include <string>

namespace {

constexpr unsigned FUEL_ECONOMY_PID = 0xE4;
constexpr unsigned BOOST_PID = 0xE5;
constexpr unsigned PIDS_A_TABLE = 32;
constexpr unsigned TABLES = 3;
constexpr std::size_t PREFIX = 3; // two digits and a blank before the name

} // namespace

std::string mac_toolies::get_pid_name(std::string_view pid, bool with_pid) const {
    const unsigned number = convertStr2Byte(pid);
    if (number == FUEL_ECONOMY_PID)
        return doors_.resources->localized("FIELD_ENGINE_MPG");
    if (number == BOOST_PID)
        return doors_.resources->localized("FIELD_ENGINE_BOOST");
    if (number >= TABLES * PIDS_A_TABLE)
        return "NOT FOUND";
    const auto lines =
        get_array_from_resource("FIELD_PIDS_" + std::to_string(number / PIDS_A_TABLE), "txt");
    const std::size_t index = number % PIDS_A_TABLE;
    if (!lines || index >= lines->size())
        return "N/A";
    const std::string& line = (*lines)[index];
    if (with_pid)
        return line;
    return line.size() < PREFIX ? "N/A" : line.substr(PREFIX);
}
