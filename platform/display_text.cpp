#include "display_text.h"

#include <algorithm>

namespace {

bool unseen(QChar c) {
    switch (c.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

} // namespace

QString display_text(std::string_view text) {
    QString shown = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    shown.replace(u'\r', u'\n');
    for (QChar& c : shown)
        if (unseen(c) && c != u'\n' && c != u'\t')
            c = u' ';
    return shown;
}

std::string printable(std::string_view text) {
    return display_text(text).toStdString();
}

std::string printable_line(std::string_view text) {
    return display_text(text).replace(u'\n', u' ').replace(u'\t', u' ').toStdString();
}

std::size_t unfinished_letter(std::string_view text) {
    for (std::size_t back = 1; back <= std::min<std::size_t>(3, text.size()); ++back) {
        const auto byte = static_cast<unsigned char>(text[text.size() - back]);
        if ((byte & 0xC0) == 0x80)
            continue;
        const std::size_t whole = byte < 0xC2 || byte > 0xF4 ? 1
                                  : byte < 0xE0              ? 2
                                  : byte < 0xF0              ? 3
                                                             : 4;
        return back < whole ? back : 0;
    }
    return 0;
}
