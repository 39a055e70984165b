#include "display_text.h"

QString display_text(std::string_view text) {
    QString shown = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    for (QChar& c : shown)
        if (c == u'\r')
            c = u'\n';
        else if (c.category() == QChar::Other_Control && c != u'\n' && c != u'\t')
            c = u' ';
    return shown;
}
