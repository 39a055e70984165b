#include "picture_view.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>

picture_view::picture_view(const QString& name, QSizeF units, QWidget* parent)
    : QWidget(parent), spoken(QAccessible::Graphic), units_(units) {
    setObjectName(name);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setSizePolicy(policy);
    setAttribute(Qt::WA_OpaquePaintEvent); // its background is painted where needed
}

bool picture_view::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || !describe)
        return QWidget::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), describe().toHtmlEscaped(),
                       this);
    return true;
}

double picture_view::pixel_scale() const {
    if (!isVisible() || width() < 1 || height() < 1)
        return 0;
    return std::min(width() / units_.width(), height() / units_.height()) * devicePixelRatioF();
}

void picture_view::set_image(const QImage& image, const QRect& changed) {
    image_ = image;
    const QRectF place = shown_rect();
    if (changed == image.rect() || !fits(place)) {
        update(place.toAlignedRect());
        return;
    }
    const double ratio = devicePixelRatioF();
    update(
        QRectF(place.topLeft() + QPointF(changed.topLeft()) / ratio, QSizeF(changed.size()) / ratio)
            .toAlignedRect());
}

// Whether the picture has this exact size and is copied, not resampled.
bool picture_view::fits(const QRectF& place) const {
    const double ratio = devicePixelRatioF();
    return std::abs(image_.width() - place.width() * ratio) < 1.5 &&
           std::abs(image_.height() - place.height() * ratio) < 1.5;
}

QRectF picture_view::shown_rect() const {
    const double scale = std::min(width() / units_.width(), height() / units_.height());
    const QSizeF size = units_ * scale;
    // On whole device pixels, so that a picture of the right scale is copied, not resampled.
    const double ratio = devicePixelRatioF();
    const auto snap = [ratio](double x) { return std::floor(x * ratio) / ratio; };
    return {snap((width() - size.width()) / 2), 0, size.width(), size.height()};
}

void picture_view::paintEvent(QPaintEvent* event) {
    const bool same = fits(shown_rect());
    const QRectF place =
        same ? QRectF(shown_rect().topLeft(), QSizeF(image_.size()) / devicePixelRatioF())
             : shown_rect();
    QPainter painter(this);
    QRegion ground = event->region();
    if (!image_.isNull() && !image_.hasAlphaChannel())
        ground -= place.toAlignedRect().adjusted(1, 1, -1, -1);
    for (const QRect& part : ground)
        painter.fillRect(part, palette().color(QPalette::Window));
    if (image_.isNull())
        return;
    painter.setRenderHint(QPainter::SmoothPixmapTransform, !same);
    painter.drawImage(place, image_, QRectF(image_.rect()));
}
