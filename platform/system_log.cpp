#include "system_log.h"

#include <cstdlib>
#include <string_view>
#include <syslog.h>

Q_LOGGING_CATEGORY(log_link, "kestrom.link", QtInfoMsg)
Q_LOGGING_CATEGORY(log_screens, "kestrom.screens", QtInfoMsg)
Q_LOGGING_CATEGORY(log_toolkit, "kestrom.toolkit", QtInfoMsg)
Q_LOGGING_CATEGORY(log_drawing, "kestrom.drawing", QtInfoMsg)
Q_LOGGING_CATEGORY(log_platform, "kestrom.platform", QtInfoMsg)

namespace {

QtMessageHandler print = nullptr;
bool print_all = false;

// Messages that a command prints itself.
bool told_anyway(QtMsgType type, std::string_view area) {
    return type == QtInfoMsg || area == "kestrom.link" || area == "kestrom.toolkit" ||
           area == "kestrom.screens";
}

void log_message(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    // About the folder that Qt uses instead: this program keeps nothing there.
    if (text.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set")))
        return;
    const std::string_view area = context.category ? context.category : "";
    const bool logged = area.starts_with("kestrom.") && type != QtDebugMsg;
    // Under a service manager, standard error already goes there.
    if (logged && !(print_all && std::getenv("JOURNAL_STREAM")))
        ::syslog(type == QtInfoMsg ? LOG_INFO : LOG_WARNING, "%s", qUtf8Printable(text.trimmed()));
    if (!logged || print_all || !told_anyway(type, area))
        print(type, context, text);
}

} // namespace

void log_to_system(bool printed) {
    ::openlog("kestrom", LOG_PID, LOG_USER);
    print_all = printed;
    print = qInstallMessageHandler(log_message);
}
