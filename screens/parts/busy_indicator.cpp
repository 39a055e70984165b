#include "busy_indicator.h"

#include <QPainter>

namespace {
constexpr int DOTS = 8;
constexpr int FRAME_MS = 100;
} // namespace

busy_indicator::busy_indicator(QWidget* parent, std::function<bool()> awaiting)
    : QWidget(parent), awaiting_(std::move(awaiting)) {
    setObjectName(QStringLiteral("waity"));
    QSizePolicy policy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    policy.setRetainSizeWhenHidden(true); // nothing jumps when it comes and goes
    setSizePolicy(policy);
    timer_.setInterval(FRAME_MS);
    connect(&timer_, &QTimer::timeout, this, [this] {
        if (awaiting_())
            phase_ = (phase_ + 1) % DOTS;
        else if (!shown_turning_)
            return;
        update();
    });
}

void busy_indicator::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const double side = std::min(width(), height());
    painter.translate(width() / 2.0, height() / 2.0);
    const double radius = side * 0.09;
    shown_turning_ = awaiting_();
    for (int i = 0; i < DOTS; ++i) {
        QColor color = palette().color(QPalette::WindowText);
        const float bright = static_cast<float>((i - phase_ + DOTS) % DOTS) / (DOTS - 1);
        color.setAlphaF(shown_turning_ ? 0.15f + 0.6f * bright : 0.15f);
        painter.setBrush(color);
        painter.save();
        painter.rotate(360.0 * i / DOTS);
        painter.drawEllipse(QPointF(0, -side * 0.36), radius, radius);
        painter.restore();
    }
}

void busy_indicator::showEvent(QShowEvent*) {
    timer_.start();
}
void busy_indicator::hideEvent(QHideEvent*) {
    timer_.stop();
}
