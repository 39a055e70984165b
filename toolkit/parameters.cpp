#include "parameters.h"

#include "constantes.h"
#include "text.h"
#include "translation_rows.h"
#include "user_defaults.h"

namespace {

bool metric(const mac_toolies& toolies) {
    return toolies.doors().defaults->boolean(KS_METRIC_UNITS_KEY);
}

} // namespace

bool is_decoded(unsigned pid) {
    return translation_row_of(pid) != nullptr || has_standard_value(pid);
}

bool only_standard_decodes(unsigned pid) {
    return translation_row_of(pid) == nullptr && has_standard_value(pid);
}

std::string parameter_name(const mac_toolies& toolies, std::string_view pid) {
    const std::string_view name = standard_name(mac_toolies::convertStr2Byte(pid));
    return name.empty() ? toolies.get_pid_name(pid, false) : std::string(name);
}

std::string parameter_units(const mac_toolies& toolies, std::string_view pid) {
    const unsigned number = mac_toolies::convertStr2Byte(pid);
    if (!only_standard_decodes(number))
        return toolies.get_units(pid);
    const std::string_view units = standard_units(number, metric(toolies));
    return units.empty() ? "N/A" : std::string(units);
}

value_range parameter_range(const mac_toolies& toolies, std::string_view pid) {
    const unsigned number = mac_toolies::convertStr2Byte(pid);
    if (only_standard_decodes(number))
        return standard_range(number, metric(toolies));
    return {toolies.get_PID_min_max(pid, false), toolies.get_PID_min_max(pid, true)};
}

translated parameter_value(const mac_toolies& toolies, std::string_view reply) {
    translated value = toolies.translate_once(reply);
    if (value.text != "~")
        return value;
    const std::string digits = whole_answer(without(reply, ">"));
    if (digits.size() < 4 ||
        !only_standard_decodes(mac_toolies::convertStr2Byte(digits.substr(2, 2))))
        return value;
    return standard_value(digits, metric(toolies));
}
