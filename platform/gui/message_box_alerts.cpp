#include "message_box_alerts.h"

#include "display_text.h"

#include <QApplication>
#include <QGridLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

namespace {

// A message may quote a reply of any length; the buttons must stay on screen.
QString shortened(QString text) {
    constexpr qsizetype MOST_CHARACTERS = 1500, MOST_LINES = 20;
    const qsizetype end = text.size();
    text = text.section(u'\n', 0, MOST_LINES - 1).left(MOST_CHARACTERS);
    return text.size() < end ? text + QChar(0x2026) : text;
}

// Breaks a long text into lines of a readable length: by default the box makes it a narrow, tall
// column.
void widen_for(QMessageBox& box, qsizetype characters) {
    constexpr qsizetype LONG = 600;
    constexpr int WIDTH = 720, EDGES = 64;
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout()); grid && characters > LONG)
        grid->addItem(
            new QSpacerItem(std::min(WIDTH, box.screen()->availableSize().width() - EDGES), 0,
                            QSizePolicy::Minimum, QSizePolicy::Fixed),
            grid->rowCount(), 0, 1, grid->columnCount());
}

} // namespace

void message_box_alerts::beep() {
    QApplication::beep();
}

int message_box_alerts::run_modal(const alert_request& request) {
    QMessageBox box(QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setWindowTitle(request.title.empty() ? QApplication::applicationDisplayName()
                                             : display_text(request.title));
    box.setText(shortened(display_text(request.message)));
    box.setInformativeText(display_text(request.informative));
    widen_for(box, box.informativeText().size());
    constexpr QMessageBox::Icon ICONS[] = {QMessageBox::Warning, QMessageBox::Information,
                                           QMessageBox::Critical};
    box.setIcon(request.is_help ? QMessageBox::Question : ICONS[static_cast<int>(request.style)]);
    QList<QPushButton*> buttons;
    for (const std::string& text : request.buttons)
        buttons.append(box.addButton(display_text(text), QMessageBox::AcceptRole));
    box.setDefaultButton(buttons.first());
    box.setEscapeButton(buttons.last());
    box.exec();
    for (qsizetype i = 0; i < buttons.size(); ++i)
        if (box.clickedButton() == buttons[i])
            return static_cast<int>(i);
    return static_cast<int>(buttons.size()) - 1;
}
