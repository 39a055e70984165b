#include "literal_curve.h"

#include "canvas.h"
#include "casing.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

constexpr int STRONG = 24;

std::optional<QPoint> point_of(const sample_rows& samples, std::size_t row, std::size_t parameter,
                               const chart_area& area, const chart_limits& limits) {
    const double value = samples.value(row, parameter);
    if (std::isnan(value))
        return std::nullopt;
    return QPoint(scale_x(static_cast<double>(row), area, limits), scale_y(value, area, limits));
}

// QPainter scales the width of a line without length twice.
QPointF end_of(const canvas& target, QPoint p, QPoint q) {
    return target.flipped(p == q ? q.x() + 1e-3 : q.x(), q.y());
}

void paint_casing(canvas& target, QPoint p, QPoint q, const curve_style& style) {
    target.painter().setPen(QPen(style.casing, style.line_width + 2 * CASING_WIDTH));
    target.painter().drawLine(target.flipped(p.x(), p.y()), end_of(target, p, q));
}

void paint_segment(canvas& target, QPoint p, QPoint q, const curve_style& style) {
    QPainter& painter = target.painter();
    const QPointF from = target.flipped(p.x(), p.y());
    const QPointF to = end_of(target, p, q);
    painter.setPen(QPen(style.ink, 1));
    painter.drawLine(from, to);
    QColor shade = style.ink;
    shade.setAlphaF(0.2F);
    painter.setPen(Qt::NoPen);
    painter.setBrush(shade);
    painter.drawPolygon(QPolygonF{from, to, target.flipped(q.x(), style.base_y),
                                  target.flipped(p.x(), style.base_y)});
    painter.setPen(QPen(style.ink, style.line_width));
    painter.drawLine(from, to);
}

} // namespace

void paint_every_segment(canvas& target, const sample_rows& samples, std::size_t parameter,
                         const row_window& window, const chart_area& area,
                         const chart_limits& limits, const curve_style& style) {
    target.painter().setRenderHint(QPainter::Antialiasing, style.antialiased);
    for (const auto paint : {paint_casing, paint_segment}) { // the casing lies below all
        std::optional<QPoint> p = point_of(samples, window.first, parameter, area, limits);
        for (std::size_t row = window.first + 1; row < window.first + window.count; ++row) {
            if (!samples.filled(row, parameter))
                continue;
            const std::optional<QPoint> q = point_of(samples, row, parameter, area, limits);
            if (p && q)
                paint(target, *p, *q, style);
            p = q;
        }
    }
}

picture_difference compare_pictures(const QImage& a, const QImage& b) {
    picture_difference found;
    int strong = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            const int apart =
                std::max({std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)),
                          std::abs(qBlue(p) - qBlue(q))});
            found.most = std::max(found.most, apart);
            found.any += apart > 0 ? 1 : 0;
            if (apart <= STRONG)
                continue;
            ++strong;
            found.where |= QRect(x, y, 1, 1);
        }
    found.strong_percent = 100.0 * strong / (a.width() * a.height());
    return found;
}
