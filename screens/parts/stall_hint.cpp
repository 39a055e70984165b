#include "stall_hint.h"

#include "chrome.h"
#include "Ks_lite_delegate.h"
#include "run_loop.h"

#include <QPushButton>

namespace {

// The status row is built before the content, but is last in the tab order.
void put_last_in_tab_order(QWidget* widget, const QWidget* screen) {
    QWidget* last = widget;
    for (QWidget* next = screen->nextInFocusChain(); next != screen;
         next = next->nextInFocusChain())
        if (screen->isAncestorOf(next) && (next->focusPolicy() & Qt::TabFocus))
            last = next;
    if (last != widget)
        QWidget::setTabOrder(last, widget);
}

} // namespace

stall_hint::stall_hint(Ks_lite_delegate& delegate, QWidget* parent)
    : QLabel(parent), delegate_(delegate), text_(ui_text(delegate, "ui_stall_hint")),
      reconnect_(new QPushButton(ui_text(delegate, "ui_reconnect"), parent)) {
    setObjectName(QStringLiteral("stallHint"));
    setTextFormat(Qt::PlainText);
    setForegroundRole(QPalette::PlaceholderText);
    reconnect_->setObjectName(QStringLiteral("reconnect"));
    reconnect_->setAccessibleName(reconnect_->text().remove(u'&'));
    reconnect_->setToolTip(ui_text(delegate, "ui_reconnect_hint"));
    reconnect_->hide();
    connect(reconnect_, &QPushButton::clicked, this, [this] { delegate_.reconnect(); });
    connect(&timer_, &QTimer::timeout, this, [this] { refresh(); });
    timer_.start(std::chrono::seconds(1));
    observer_ = delegate.doors().notifications.add_observer(
        LINK_EVENT, [this](const std::string&) { refresh(); });
    refresh();
}

stall_hint::~stall_hint() {
    delegate_.doors().notifications.remove_observer(observer_);
}

void stall_hint::refresh() {
    const run_loop::milliseconds now = delegate_.doors().loop.now();
    const auto since = delegate_.replies().stalled_since(now);
    const QString hint =
        since.count() == 0
            ? QString()
            : text_.arg(std::chrono::duration_cast<std::chrono::seconds>(now - since).count());
    if (hint != text())
        setText(hint);
    const bool in_doubt = delegate_.link_in_doubt();
    if (in_doubt && reconnect_->isHidden())
        put_last_in_tab_order(reconnect_, parentWidget());
    reconnect_->setVisible(in_doubt);
}
