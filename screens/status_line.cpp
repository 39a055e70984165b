#include "status_line.h"

#include "display_text.h"

status_line::status_line(QWidget* parent) : QLabel(parent) {
    setObjectName(QStringLiteral("statusLbl"));
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setFocusPolicy(Qt::ClickFocus);
    setWordWrap(true);
    setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    // Room for two lines; a longer text is cut at the edge, whole in the tooltip.
    setFixedHeight(2 * fontMetrics().lineSpacing() + 4);
}

void status_line::set_text(const std::string& message) {
    const QString text = display_text(message);
    setText(text);
    // A tooltip guesses at rich text: escape it so that it stays plain.
    setToolTip(text.isEmpty() ? QString()
                              : QStringLiteral("<span style='white-space:pre-wrap'>%1</span>")
                                    .arg(text.toHtmlEscaped()));
}
