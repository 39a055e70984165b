#include "export_command.h"

#include "log_export.h"
#include "mac_toolies.h"
#include "progress_line.h"
#include "run_log.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <csignal>
#include <filesystem>
#include <ostream>
#include <utility>

namespace {

constexpr int FAILED_STATUS = 1;
constexpr int USAGE_STATUS = 2;

volatile std::sig_atomic_t interrupted = 0;

// Ends an export that leaves nothing behind.
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

struct export_request {
    std::string log;
    bool as_txt = false;
    bool with_time = false;
    bool json = false;
    std::string error;
};

export_request read_export_request(std::span<const std::string> arguments) {
    export_request request;
    for (const std::string& argument : arguments) {
        if (argument == "--txt")
            request.as_txt = true;
        else if (argument == "--time")
            request.with_time = true;
        else if (argument == "--json")
            request.json = true;
        else if (argument.starts_with("--"))
            request.error = "unknown option " + argument;
        else if (request.log.empty())
            request.log = argument;
        else
            request.error = "export takes one log";
    }
    if (request.error.empty() && request.log.empty())
        request.error = "export needs a log, such as log_Nov_15_2026-0254_33.gol";
    return request;
}

void print_json(const std::string& output, const export_outcome& outcome, std::ostream& out) {
    const auto text = [](const std::string& value) { return QString::fromStdString(value); };
    const bool exported = outcome.result == export_result::exported;
    const QJsonObject object{
        {QStringLiteral("export"), exported ? QJsonValue(text(output)) : QJsonValue()},
        {QStringLiteral("rows"), static_cast<qint64>(exported ? outcome.rows : 0)},
        {QStringLiteral("error"), exported ? QJsonValue() : QJsonValue(text(outcome.error))}};
    out << QJsonDocument(object).toJson().toStdString();
}

} // namespace

int run_export(std::span<const std::string> arguments, const mac_toolies& toolies,
               std::ostream& out, std::ostream& err) {
    const export_request request = read_export_request(arguments);
    if (!request.error.empty()) {
        err << "kestrom: " << request.error << "\nTry 'kestrom export --help'.\n";
        return USAGE_STATUS;
    }
    const std::filesystem::path log = path_of_log(request.log, toolies);
    const std::filesystem::path output =
        log.parent_path() / log_export::output_name(log.filename().string(), request.as_txt);
    const interruptible ending;
    export_outcome outcome;
    if (const auto why = why_no_run_log(log.string())) {
        outcome = {export_result::unreadable, 0, *why, {}};
    } else {
        outcome = export_log(toolies, log.string(), output.string(),
                             {.with_time = request.with_time}, [shown = -1](double done) mutable {
                                 const int percent = static_cast<int>(done * 100); // 0 to 1
                                 if (std::exchange(shown, percent) != percent)
                                     show_progress("Exporting: " + std::to_string(percent) + " %");
                                 return !interrupted;
                             });
        clear_progress();
    }
    if (request.json)
        print_json(output.string(), outcome, out);
    if (outcome.result != export_result::exported) {
        err << "kestrom: " << outcome.error << '\n';
        return FAILED_STATUS;
    }
    if (!outcome.note.empty())
        err << "kestrom: " << outcome.note << '\n';
    if (!request.json)
        out << output.string() << '\n';
    return 0;
}
