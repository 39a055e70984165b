#include "pids_command.h"

#include "actions.h"
#include "Ks_lite_delegate.h"
#include "parameters.h"
#include "text.h"

#include <QJsonArray>
#include <QJsonObject>

#include <cstdio>
#include <vector>

namespace {

struct listed_parameter {
    std::string pid, name, unit; // empty where there is none
    bool decoded;
};

std::vector<listed_parameter> parameters_of(const actions& screen) {
    std::vector<listed_parameter> listed;
    const auto& known = screen.car_parameters();
    for (unsigned pid = 0; known && pid < known->size(); ++pid) {
        if (!known->test(pid))
            continue;
        const std::string text = pid_text(pid);
        const std::string name = parameter_name(screen.toolies, text);
        const std::string unit = parameter_units(screen.toolies, text);
        listed.push_back({text, name == "NOT FOUND" || name == "N/A" ? "" : name,
                          unit == "N/A" ? "" : std::string(trimmed(unit)), is_decoded(pid)});
    }
    return listed;
}

} // namespace

void pids_command::start() {
    delegate_.do_actions();
    screen_ = static_cast<actions*>(delegate_.current_screen());
    screen_->ask_what_car_supports({});
}

bool pids_command::over() const {
    return !screen_->awaits_adapter();
}

bool pids_command::succeeded() const {
    return screen_->scan_completed() && screen_->car_parameters();
}

void pids_command::print_text() const {
    for (const listed_parameter& one : parameters_of(*screen_)) {
        std::string line = one.pid + "  " + (one.name.empty() ? "?" : one.name);
        if (!one.decoded)
            line += " (not decoded)";
        else if (!one.unit.empty())
            line += " (" + one.unit + ")";
        std::printf("%s\n", printable(line).c_str());
    }
}

void pids_command::print_json(const conversation_log& log) const {
    QJsonArray array;
    for (const listed_parameter& one : parameters_of(*screen_))
        array.append(QJsonObject{
            {QStringLiteral("pid"), json_text(one.pid)},
            {QStringLiteral("name"), one.name.empty() ? QJsonValue() : json_text(one.name)},
            {QStringLiteral("unit"), one.unit.empty() ? QJsonValue() : json_text(one.unit)},
            {QStringLiteral("decoded"), one.decoded}});
    print_json_object({{QStringLiteral("parameters"), array}}, log);
}
