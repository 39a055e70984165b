#include "progress_line.h"

#include "display_text.h"

#include <QString>

#include <cstdio>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

constexpr int USUAL_COLUMNS = 80;

qsizetype shown = 0; // characters

bool on_terminal() {
    static const bool terminal = ::isatty(STDERR_FILENO) == 1;
    return terminal;
}

int columns() {
    winsize size{};
    return ::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 1 ? size.ws_col
                                                                             : USUAL_COLUMNS;
}

void rewrite(const QString& text) {
    const QString line = QLatin1Char('\r') + text.leftJustified(shown);
    std::fputs((line + (text.isEmpty() ? QStringLiteral("\r") : QString())).toUtf8().constData(),
               stderr);
    std::fflush(stderr);
    shown = text.size();
}

} // namespace

void show_progress(std::string_view text) {
    if (!on_terminal())
        return;
    const QString first = display_text(text.substr(0, text.find_first_of("\r\n")));
    rewrite(QString(first).replace(u'\t', u' ').left(columns() - 1));
}

void clear_progress() {
    if (shown > 0)
        rewrite({});
}
