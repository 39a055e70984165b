#include "curve_painter.h"

#include "canvas.h"

#include <algorithm>

namespace {

constexpr double AREA_ALPHA = 0.2;
constexpr double FIRST_PASS_WIDTH = 1;

bool covers(const column_run& run, int y) { return run.count > 1 && y >= run.low && y <= run.high; }

// One polygon for each stretch of the curve without a gap.
void paint_area(canvas& target, const std::vector<column_run>& runs, const curve_style& style) {
    QColor shade = style.ink;
    shade.setAlphaF(static_cast<float>(AREA_ALPHA));
    QPainter& painter = target.painter();
    painter.setPen(Qt::NoPen);
    painter.setBrush(shade);
    painter.setRenderHint(QPainter::Antialiasing, false);
    QPolygonF outline;
    const auto close = [&](int last_x) {
        if (outline.isEmpty())
            return;
        outline << target.flipped(last_x, style.base_y)
                << QPointF(outline.front().x(), target.height() - style.base_y);
        painter.drawPolygon(outline);
        outline.clear();
    };
    for (std::size_t i = 0; i < runs.size(); ++i) {
        const column_run& run = runs[i];
        if (!run.joined) {
            close(i > 0 ? runs[i - 1].x : run.x);
            continue;
        }
        outline << target.flipped(runs[i - 1].x, runs[i - 1].last) << target.flipped(run.x, run.first);
    }
    if (!runs.empty())
        close(runs.back().x);
}

void paint_segments(canvas& target, const std::vector<column_run>& runs, const curve_style& style) {
    QVector<QLineF> lines;
    lines.reserve(static_cast<qsizetype>(runs.size()));
    for (std::size_t i = 1; i < runs.size(); ++i) {
        const column_run& from = runs[i - 1];
        const column_run& to = runs[i];
        if (!to.joined)
            continue;
        const bool hidden = to.x - from.x == 1 && covers(from, from.last) && covers(from, to.first) &&
                            covers(to, from.last) && covers(to, to.first);
        if (!hidden)
            lines << QLineF(target.flipped(from.x, from.last), target.flipped(to.x, to.first));
    }
    QPainter& painter = target.painter();
    painter.setRenderHint(QPainter::Antialiasing, style.antialiased);
    for (const double width : {FIRST_PASS_WIDTH, style.line_width}) {
        painter.setPen(QPen(style.ink, width));
        painter.drawLines(lines);
    }
}

void paint_columns(canvas& target, const std::vector<column_run>& runs, const curve_style& style) {
    QVector<QRectF> columns;
    columns.reserve(static_cast<qsizetype>(runs.size()));
    for (const column_run& run : runs)
        if (run.count > 1)
            columns << QRectF(run.x - 1, target.height() - run.high - 1, 2, run.high - run.low + 2);
    QPainter& painter = target.painter();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(Qt::NoPen);
    painter.setBrush(style.ink);
    painter.drawRects(columns);
}

} // namespace

void paint_curve(canvas& target, const std::vector<column_run>& runs, const curve_style& style) {
    QPainter& painter = target.painter();
    painter.save();
    paint_area(target, runs, style);
    paint_segments(target, runs, style);
    paint_columns(target, runs, style);
    painter.restore();
}
