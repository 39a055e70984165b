#include "run_logger.h"

#include "constantes.h"
#include "mac_toolies.h"
#include "run_times.h"
#include "sample_rows.h"
#include "system_log.h"

namespace {

// A reply for the log, where "," and line ends are separators. Nothing is left out, so that a reply
// damaged by line noise cannot read as an answer there.
std::string log_field(std::string_view reply) {
    constexpr char NO_TEXT = '.';
    std::string field(reply);
    for (char& c : field)
        if (c < ' ' || c > '~' || c == ',')
            c = NO_TEXT;
    return field.empty() ? "~" : field;
}

} // namespace

run_logger::run_logger(std::function<void(const std::string&)> failed)
    : failed_(std::move(failed)) {}

void run_logger::begin(const mac_toolies& toolies, int task, int vehicle) {
    path_ = (vehicle > 0 ? std::to_string(vehicle) : std::string()) +
            mac_toolies::sharedManager().work_out_log_fname_for_mode(task) +
            (task == TASK_RUN_LOG ? ".gol" : ".txt");
    if (const auto why = lines_.create(path_)) {
        qCWarning(log_screens, "work_out_log_file::%s", why->c_str());
        path_.clear();
        const std::string no_folder = toolies.make_log_folder();
        failed_(toolies.log_folder() + ": " + (no_folder.empty() ? *why : no_folder));
        return;
    }
    lines_.remove_when_empty();
    if (const auto why = times_.create(times_of_log(path_)))
        failed_(times_of_log(path_) + ": " + *why);
    times_.remove_when_empty();
}

void run_logger::write_cycle(const sample_rows& rows, std::size_t row,
                             run_loop::milliseconds since_first_request) {
    if (!lines_.is_open())
        return;
    std::string line;
    for (std::size_t place = 0; place < rows.parameters(); ++place)
        line += (place == 0 ? "" : ",") + log_field(rows.text(row, place));
    if (const auto why = lines_.append_line(line + "\n")) {
        failed_(*why);
        return;
    }
    if (const auto why = times_.append_line(std::to_string(since_first_request.count()) + "\n"))
        failed_(times_.path() + ": " + *why);
}

void run_logger::close() {
    if (const auto why = lines_.close())
        failed_(*why);
    if (const auto why = times_.close())
        failed_(times_.path() + ": " + *why);
    if (!lines_.has_lines())
        path_.clear();
}
