#include "display_text.h"

QString display_text(std::string_view text) {
    QString shown = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    shown.replace(u'\r', u'\n');
    for (QChar& c : shown)
        if (c.category() == QChar::Other_Control && c != u'\n' && c != u'\t')
            c = u' ';
    return shown;
}
