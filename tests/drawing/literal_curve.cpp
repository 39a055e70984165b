#include "literal_curve.h"

#include "canvas.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

constexpr int FARTHEST = 1 << 14;

std::optional<QPoint> point_of(const sample_rows& samples, std::size_t row, std::size_t parameter,
                               const chart_area& area, const chart_limits& limits) {
    const double value = samples.value(row, parameter);
    if (std::isnan(value))
        return std::nullopt;
    const chart_point p = scale_point(static_cast<int>(row), value, area, limits);
    const float far = FARTHEST;
    return QPoint(static_cast<int>(p.x), static_cast<int>(std::clamp(p.y, -far, far)));
}

void paint_segment(canvas& target, QPoint p, QPoint q, const curve_style& style) {
    QPainter& painter = target.painter();
    const QPointF from = target.flipped(p.x(), p.y());
    const QPointF to = target.flipped(q.x(), q.y());
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
    std::optional<QPoint> p = point_of(samples, window.first, parameter, area, limits);
    for (std::size_t row = window.first + 1; row < window.first + window.count; ++row) {
        if (!samples.filled(row, parameter))
            continue;
        const std::optional<QPoint> q = point_of(samples, row, parameter, area, limits);
        if (p && q)
            paint_segment(target, *p, *q, style);
        p = q;
    }
}
