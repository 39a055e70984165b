#include "readable.h"

#include <QString>

namespace {

constexpr qsizetype LONGEST_TEXT = 500;

// Control characters, and marks that change the direction of text.
bool is_invisible(QChar c) {
    return c.category() == QChar::Other_Control || c.category() == QChar::Other_Format ||
           c.category() == QChar::Separator_Line || c.category() == QChar::Separator_Paragraph;
}

} // namespace

std::string readable(std::string_view foreign) {
    QString text = QString::fromUtf8(foreign.data(), static_cast<qsizetype>(foreign.size()))
                       .left(LONGEST_TEXT);
    for (QChar& c : text)
        if (is_invisible(c))
            c = QChar::Space;
    return text.simplified().toStdString();
}
