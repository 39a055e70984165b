#include "curve_painter.h"

#include "canvas.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace {

constexpr double AREA_ALPHA = 0.2;
constexpr double FIRST_PASS_WIDTH = 1;

// For each pixel column the lines that something covers.
struct column_spans {
    explicit column_spans(int columns) : top(static_cast<std::size_t>(columns), 0), height(top) {}
    bool free(int column) const { return height[at(column)] == 0; }
    void set(int column, int from, int end) {
        top[at(column)] = static_cast<std::uint32_t>(from);
        height[at(column)] = static_cast<std::uint32_t>(std::max(end - from, 0));
    }
    static std::size_t at(int column) { return static_cast<std::size_t>(column); }

    std::vector<std::uint32_t> top, height;
};

// The pixels of the area and of the columns, put together line by line and laid over the chart at
// once: the same by polygons and rectangles takes QPainter many times longer.
class pixel_layer {
  public:
    pixel_layer(const canvas& target, double scale)
        : image_(empty_image(QSizeF(target.width(), target.height()), scale)), scale_(scale),
          height_(target.height()), area_(image_.width()), left_halves_(image_.width()),
          right_halves_(image_.width()) {}

    // The area between a segment and the base line. A pixel belongs to it when its centre does.
    void add_area(double from_x, double from_y, double to_x, double to_y, double base_y) {
        const int end = std::min(first_centre_from(to_x), image_.width());
        for (int px = std::max(first_centre_from(from_x), 0); px < end; ++px) {
            const double along = ((px + 0.5) / scale_ - from_x) / (to_x - from_x);
            const double y = from_y + (to_y - from_y) * along;
            area_.set(px, first_centre_from(height_ - std::max(y, base_y)),
                      first_centre_from(height_ - std::min(y, base_y)));
        }
    }

    // A unit to either side of the run's points; columns next to each other overlap by half.
    void add_run(const column_run& run) {
        add_half(left_halves_, run, run.x - 1);
        add_half(right_halves_, run, run.x);
    }

    const QImage& paint(QRgb ink, QRgb shade) {
        auto* const pixels = reinterpret_cast<QRgb*>(image_.bits());
        const int width = image_.width();
        for (int py = 0; py < image_.height(); ++py)
            paint_line(pixels + py * width, static_cast<std::uint32_t>(py), ink, shade);
        for (const QRect& more : more_runs_)
            for (int py = more.top(); py <= more.bottom(); ++py)
                std::fill_n(pixels + py * width + more.left(), more.width(), ink);
        return image_;
    }

  private:
    // Lines follow each other without padding. Without branches, so that several pixels are done at
    // a time.
    void paint_line(QRgb* line, std::uint32_t py, QRgb ink, QRgb shade) const {
        const auto covered = [py](const column_spans& spans, std::size_t px) {
            return py - spans.top[px] < spans.height[px];
        };
        for (std::size_t px = 0; px < area_.top.size(); ++px) {
            const QRgb ground = covered(area_, px) ? shade : 0;
            line[px] = (covered(left_halves_, px) | covered(right_halves_, px)) ? ink : ground;
        }
    }

    int first_centre_from(double units) const {
        return static_cast<int>(std::ceil(units * scale_ - 0.5));
    }
    int nearest(double units) const { return static_cast<int>(std::lround(units * scale_)); }

    void add_half(column_spans& spans, const column_run& run, int x) {
        const QRect half = QRect(QPoint(nearest(x), nearest(height_ - run.high - 1)),
                                 QPoint(nearest(x + 1) - 1, nearest(height_ - run.low + 1) - 1)) &
                           image_.rect();
        if (half.isEmpty())
            return;
        if (!spans.free(half.left())) {
            more_runs_.push_back(half); // between gaps
            return;
        }
        for (int px = half.left(); px <= half.right(); ++px)
            spans.set(px, half.top(), half.bottom() + 1);
    }

    QImage image_;
    double scale_;
    double height_;
    column_spans area_, left_halves_, right_halves_;
    std::vector<QRect> more_runs_;
};

void paint_pixels(canvas& target, const std::vector<column_run>& runs, const curve_style& style) {
    pixel_layer layer(target, target.painter().device()->devicePixelRatioF());
    for (std::size_t i = 1; i < runs.size(); ++i)
        if (runs[i].joined)
            layer.add_area(runs[i - 1].x, runs[i - 1].last, runs[i].x, runs[i].first, style.base_y);
    for (const column_run& run : runs)
        if (run.count > 1)
            layer.add_run(run);
    QColor shade = style.ink;
    shade.setAlphaF(static_cast<float>(AREA_ALPHA));
    target.painter().drawImage(
        QPointF(0, 0), layer.paint(qPremultiply(style.ink.rgba()), qPremultiply(shade.rgba())));
}

bool covers(const column_run& run, int y) {
    return run.count > 1 && y >= run.low && y <= run.high;
}

void paint_segments(canvas& target, const std::vector<column_run>& runs, const curve_style& style) {
    QVector<QLineF> lines;
    lines.reserve(static_cast<qsizetype>(runs.size()));
    for (std::size_t i = 1; i < runs.size(); ++i) {
        const column_run& from = runs[i - 1];
        const column_run& to = runs[i];
        if (!to.joined)
            continue;
        const bool hidden = to.x - from.x == 1 && covers(from, from.last) &&
                            covers(from, to.first) && covers(to, from.last) && covers(to, to.first);
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

} // namespace

void paint_curve(canvas& target, const std::vector<column_run>& runs, const curve_style& style) {
    target.painter().save();
    paint_pixels(target, runs, style);
    paint_segments(target, runs, style);
    target.painter().restore();
}
