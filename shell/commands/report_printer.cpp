#include "report_printer.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <nlohmann/json.hpp>

namespace {

constexpr int INDENT = 4;
constexpr double EVERY_WHOLE_NUMBER_UP_TO = 9007199254740992; // 2^53

std::string dumped(const ordered_json& value, int indent) {
    return value.dump(indent, ' ', false, ordered_json::error_handler_t::replace) + "\n";
}

} // namespace

void print_conversation(ordered_json object, const std::string& status,
                        const conversation_log& log) {
    object["status"] = status;
    object["messages"] = log.messages;
    object["statuses"] = log.statuses;
    std::fputs(json_lines(object).c_str(), stdout);
}

std::string json_lines(const ordered_json& value) {
    return dumped(value, INDENT);
}

std::string json_line(const ordered_json& value) {
    return dumped(value, -1);
}

ordered_json json_number(double value) {
    if (!std::isfinite(value))
        return nullptr;
    if (value == std::trunc(value) && std::abs(value) <= EVERY_WHOLE_NUMBER_UP_TO)
        return static_cast<std::int64_t>(value);
    return value;
}

bool output_lost() {
    return std::fflush(stdout) != 0 || std::ferror(stdout) != 0;
}
