#include "status_line.h"

#include "display_text.h"

#include <QRegularExpression>

status_line::status_line(QWidget* parent) : QLabel(parent) {
    setObjectName(QStringLiteral("statusLbl"));
    setTextFormat(Qt::PlainText);
    set_selectable(true);
    setWordWrap(true);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setMargin(0);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    // Room for exactly two lines; the tooltip has the whole text.
    setFixedHeight(2 * fontMetrics().lineSpacing());
}

void status_line::set_text(const std::string& message) {
    const QString text = display_text(message);
    // Empty lines would hide the reason.
    static const QRegularExpression EMPTY_LINES(QStringLiteral("\n\\s*\n"));
    setText(QString(text).replace(EMPTY_LINES, QStringLiteral("\n")).trimmed());
    setAccessibleName(text); // screen readers must announce the message, not the label
    // A tooltip guesses at rich text: escape it so that it stays plain.
    setToolTip(text.isEmpty() ? QString()
                              : QStringLiteral("<span style='white-space:pre-wrap'>%1</span>")
                                    .arg(text.toHtmlEscaped()));
}

void status_line::set_selectable(bool selectable) {
    setTextInteractionFlags(selectable ? Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard
                                       : Qt::NoTextInteraction);
    setFocusPolicy(selectable ? Qt::ClickFocus : Qt::NoFocus); // the flags change it
}

status_place::status_place(QWidget* parent) : QWidget(parent), line_(new status_line(this)) {
    setSizePolicy(line_->sizePolicy());
    setFixedHeight(line_->height());
}

void status_place::resizeEvent(QResizeEvent*) {
    line_->resize(size());
}
