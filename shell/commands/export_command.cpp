#include "command_functions.h"
#include "commands.h"
#include "log_export.h"
#include "mac_toolies.h"
#include "progress_line.h"
#include "report_printer.h"
#include "run_log.h"

#include <csignal>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <ostream>
#include <utility>

namespace {

constexpr int FAILED_STATUS = 1;

volatile std::sig_atomic_t interrupted = 0;

// Ends an export without leaving a file.
struct interruptible {
    interruptible() {
        handle([](int) { interrupted = 1; });
    }
    ~interruptible() { handle(SIG_DFL); }
    static void handle(void (*handler)(int)) {
        for (const int signal : {SIGINT, SIGTERM, SIGHUP})
            std::signal(signal, handler);
    }
};

std::string json_of(const std::string& output, const export_outcome& outcome) {
    if (outcome.result == export_result::exported)
        return json_lines({{"export", output}, {"rows", outcome.rows}, {"error", nullptr}});
    return json_lines({{"export", nullptr}, {"rows", 0}, {"error", outcome.error}});
}

} // namespace

int run_export(const desk& work) {
    const std::filesystem::path log = path_of_log(work.asked.arguments[0], work.toolies);
    const std::filesystem::path output =
        log.parent_path() / log_export::output_name(log.filename().string(), work.asked.as_txt);
    const interruptible ending;
    export_outcome outcome;
    if (const auto why = why_no_run_log(log.string())) {
        outcome = {export_result::unreadable, 0, *why, {}};
    } else {
        outcome =
            export_log(work.toolies, log.string(), output.string(),
                       {.with_time = work.asked.with_time}, [shown = -1](double done) mutable {
                           const int percent = static_cast<int>(done * 100); // 0 to 1
                           if (std::exchange(shown, percent) != percent)
                               show_progress("Exporting: " + std::to_string(percent) + " %");
                           return !interrupted;
                       });
        clear_progress();
    }
    if (work.asked.json)
        work.out << json_of(output.string(), outcome);
    if (outcome.result != export_result::exported) {
        work.err << "kestrom: " << outcome.error << '\n';
        return FAILED_STATUS;
    }
    if (!outcome.note.empty())
        work.err << "kestrom: " << outcome.note << '\n';
    if (!work.asked.json)
        work.out << output.string() << '\n';
    return 0;
}
