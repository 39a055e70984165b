#include "stall_hint.h"

#include "chrome.h"
#include "Ks_lite_delegate.h"
#include "run_loop.h"

namespace {
constexpr std::chrono::seconds PATIENCE{5};
}

stall_hint::stall_hint(Ks_lite_delegate& delegate, QWidget* parent)
    : QLabel(parent), delegate_(delegate), text_(ui_text(delegate, "ui_stall_hint")) {
    setObjectName(QStringLiteral("stallHint"));
    setTextFormat(Qt::PlainText);
    setForegroundRole(QPalette::PlaceholderText);
    connect(&timer_, &QTimer::timeout, this, [this] { refresh(); });
    timer_.start(std::chrono::seconds(1));
}

void stall_hint::refresh() {
    const run_loop::milliseconds since = delegate_.waiting_since();
    const auto waited = delegate_.doors().loop.now() - since;
    const QString hint =
        since.count() == 0 || waited <= PATIENCE
            ? QString()
            : text_.arg(std::chrono::duration_cast<std::chrono::seconds>(waited).count());
    if (hint != text())
        setText(hint);
}
