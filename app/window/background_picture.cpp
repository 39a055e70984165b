#include "background_picture.h"

#include <QPainter>
#include <QSvgRenderer>
#include <QVBoxLayout>

namespace {
constexpr double OPACITY = 0.92;
}

background_picture::background_picture(const QString& hint, QWidget* parent)
    : QWidget(parent), hint_(new QLabel(hint, this)) {
    hint_->setAlignment(Qt::AlignCenter);
    hint_->setWordWrap(true);
    QPalette light = hint_->palette();
    light.setColor(QPalette::WindowText, QColor(214, 220, 228));
    hint_->setPalette(light);
    QFont face = hint_->font();
    face.setPointSizeF(face.pointSizeF() * 1.2);
    hint_->setFont(face);
    auto* column = new QVBoxLayout(this);
    column->addStretch(5);
    column->addWidget(hint_);
    column->addStretch(1);
}

void background_picture::paintEvent(QPaintEvent*) {
    const QSize pixels = size() * devicePixelRatioF();
    if (scaled_.size() != pixels) {
        QSvgRenderer drawing(QStringLiteral(":/kestrom/images/background.svg"));
        scaled_ = QPixmap(pixels);
        scaled_.fill(QColor(31, 36, 44));
        // Covers the whole view; what does not fit is cut evenly.
        const QSizeF whole =
            QSizeF(drawing.defaultSize()).scaled(pixels, Qt::KeepAspectRatioByExpanding);
        QPainter painter(&scaled_);
        painter.setOpacity(OPACITY);
        drawing.render(&painter, QRectF(QPointF((pixels.width() - whole.width()) / 2,
                                                (pixels.height() - whole.height()) / 2),
                                        whole));
        scaled_.setDevicePixelRatio(devicePixelRatioF());
    }
    QPainter(this).drawPixmap(0, 0, scaled_);
}
