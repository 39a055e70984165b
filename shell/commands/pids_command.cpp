#include "actions.h"
#include "car_task.h"
#include "command_functions.h"
#include "display_text.h"
#include "Ks_lite_delegate.h"
#include "parameters.h"
#include "text.h"

#include <cstdio>
#include <nlohmann/json.hpp>
#include <vector>

namespace {

struct listed_parameter {
    std::string pid, name, unit; // empty where there is none
    bool decoded;
};

ordered_json text_or_null(const std::string& text) {
    return text.empty() ? ordered_json() : ordered_json(text);
}

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

class pids_command final : public car_task {
  public:
    using car_task::car_task;

    void start() override {
        delegate_.do_actions();
        screen_ = static_cast<actions*>(delegate_.current_screen());
        screen_->ask_what_car_supports({});
    }
    bool over() override { return !screen_->awaits_adapter(); }
    bool succeeded() const override {
        return screen_->scan_completed() && screen_->car_parameters();
    }
    void print(bool succeeded, const conversation_log& log) override {
        if (asked_.json)
            print_json(log);
        else if (succeeded)
            print_text();
    }

  private:
    void print_text() const {
        for (const listed_parameter& one : parameters_of(*screen_)) {
            std::string line = one.pid + "  " + (one.name.empty() ? "?" : one.name);
            if (!one.decoded)
                line += " (not decoded)";
            else if (!one.unit.empty())
                line += " (" + one.unit + ")";
            std::printf("%s\n", printable(line).c_str());
        }
    }
    void print_json(const conversation_log& log) const {
        ordered_json list = ordered_json::array();
        for (const listed_parameter& one : parameters_of(*screen_))
            list.push_back({{"pid", one.pid},
                            {"name", text_or_null(one.name)},
                            {"unit", text_or_null(one.unit)},
                            {"decoded", one.decoded}});
        print_conversation({{"parameters", list}}, log.statuses.empty() ? "" : log.statuses.back(),
                           log);
    }

    actions* screen_ = nullptr;
};

} // namespace

std::unique_ptr<car_task> begin_pids(const car_task_doors& doors) {
    return std::make_unique<pids_command>(doors);
}
