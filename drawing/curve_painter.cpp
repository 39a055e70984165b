#include "curve_painter.h"

#include "canvas.h"
#include "casing.h"
#include "saturate.h"
#include "short_strokes.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <optional>

namespace {

constexpr double AREA_ALPHA = 0.2;
constexpr double FIRST_PASS_WIDTH = 1;
// A run of this many points is drawn as a segment; more points overlap and make everything they
// touch opaque.
constexpr std::size_t ONE_SEGMENT = 2;
constexpr double HARDLY_ANY = 1e-3;
// Nothing is painted farther out: QPainter's limit.
constexpr int FARTHEST = 1 << 14;

// For each pixel column, the range of covered lines.
struct column_spans {
    explicit column_spans(int columns) : top(static_cast<std::size_t>(columns), 0), end(top) {}
    bool free(int column) const { return top[at(column)] >= end[at(column)]; }
    void set(int column, int from, int to) {
        top[at(column)] = from;
        end[at(column)] = to;
    }
    // False if the column already holds lines that do not adjoin these.
    bool join(int column, int from, int to) {
        if (!free(column) && (from > end[at(column)] || to < top[at(column)]))
            return false;
        const bool first = free(column);
        set(column, first ? from : std::min(from, top[at(column)]),
            first ? to : std::max(to, end[at(column)]));
        return true;
    }
    bool holds(int column, int from, int to) const {
        return from >= to || (top[at(column)] <= from && end[at(column)] >= to);
    }
    static std::size_t at(int column) { return static_cast<std::size_t>(column); }

    std::vector<int> top, end;
};

// What covers the pixels of one line: nothing, or casing, shade and ink on top of each other. From
// line to line only columns that change are updated, and uncovered stretches are skipped.
class line_cover {
  public:
    static constexpr int SHADED = 1, INKED = 2, CASED = 8; // ink may occur twice

    line_cover(QSize size, QRgb casing, QRgb shade, QRgb ink)
        : state_(static_cast<std::size_t>(size.width()), 0), rest_(state_.size(), rest_below(0)),
          added_(state_.size(), 0), covered_(state_.size() / BLOCK + 1, 0),
          first_change_(static_cast<std::size_t>(size.height()) + 1, NONE) {
        const QRgb rest_of_shade = rest_below(qAlpha(shade));
        QRgb shaded_casing = casing;
        lay_over(&shaded_casing, &rest_of_shade, &shade, 1);
        for (int state = 0; state < STATES; ++state) {
            const bool shaded = (state & SHADED) != 0;
            looks_[state] = state % CASED >= INKED ? look{0, ink}
                            : state >= CASED       ? look{0, shaded ? shaded_casing : casing}
                            : shaded               ? look{rest_of_shade, shade}
                                                   : look{rest_below(0), 0};
        }
    }

    void add(const column_spans& spans, int kind) {
        for (std::size_t column = 0; column < state_.size(); ++column)
            if (spans.top[column] < spans.end[column]) {
                note(spans.top[column], column, kind);
                note(spans.end[column], column, -kind);
            }
    }

    // Lines must come in order.
    void go_to_line(std::size_t line) {
        for (std::size_t i = first_change_[line]; i != NONE; i = changes_[i].next)
            apply(changes_[i]);
    }

    void paint(QRgb* pixels) const {
        for (std::size_t block = 0; block < covered_.size(); ++block) {
            if (covered_[block] == 0)
                continue;
            const std::size_t first = block * BLOCK;
            while (block + 1 < covered_.size() && covered_[block + 1] > 0)
                ++block;
            lay_over_many(pixels + first, &rest_[first], &added_[first],
                          std::min((block + 1) * BLOCK, state_.size()) - first);
        }
    }

  private:
    static constexpr std::size_t BLOCK = 32, NONE = SIZE_MAX;
    static constexpr int STATES = CASED + 2 * INKED + SHADED + 1;

    struct change {
        std::size_t column, next;
        int by;
    };
    struct look {
        QRgb rest, added; // what remains of the pixel below, and what comes on top
    };

    void note(int line, std::size_t column, int by) {
        std::size_t& first = first_change_[static_cast<std::size_t>(line)];
        changes_.push_back({column, first, by});
        first = changes_.size() - 1;
    }

    void apply(const change& c) {
        int& state = state_[c.column];
        const bool was_covered = state != 0;
        state += c.by;
        covered_[c.column / BLOCK] += int(state != 0) - int(was_covered);
        rest_[c.column] = looks_[state].rest;
        added_[c.column] = looks_[state].added;
    }

    look looks_[STATES];
    std::vector<int> state_;
    std::vector<QRgb> rest_, added_;
    std::vector<int> covered_;              // columns of each block
    std::vector<std::size_t> first_change_; // of each line
    std::vector<change> changes_;
};

// The casing of the columns, the area and the columns, composed line by line and drawn over the
// chart at once: with polygons and rectangles QPainter takes many times longer.
class pixel_layer {
  public:
    explicit pixel_layer(canvas& target)
        : image_(target.pixels()), scale_(image_.devicePixelRatio()), height_(target.height()),
          area_(image_.width()), casing_(image_.width()), left_halves_(image_.width()),
          right_halves_(image_.width()) {}

    // The area between a segment and the baseline. A pixel belongs to it if its centre does.
    void add_area(double from_x, double from_y, double to_x, double to_y, double base_y) {
        const int end = std::min(first_centre_from(to_x), image_.width());
        for (int px = std::max(first_centre_from(from_x), 0); px < end; ++px) {
            const double along = ((px + 0.5) / scale_ - from_x) / (to_x - from_x);
            const double y = from_y + (to_y - from_y) * along;
            area_.set(px, line_of(height_ - std::max(y, base_y)),
                      line_of(height_ - std::min(y, base_y)));
        }
    }

    // One unit to either side of the run's points; adjacent columns overlap by half.
    void add_run(const column_run& run) {
        constexpr int SPREAD = 1 + static_cast<int>(CASING_WIDTH);
        add_part(casing_, more_casing_, run, run.x - SPREAD, run.x + SPREAD, SPREAD);
        add_part(left_halves_, more_runs_, run, run.x - 1, run.x, 1);
        add_part(right_halves_, more_runs_, run, run.x, run.x + 1, 1);
    }

    // Whether a wide line (in painter's units) lies entirely within the columns' casing, which has
    // the same colour.
    bool casing_holds(const QLineF& line, double width) const {
        const double dx = std::abs(line.dx()), dy = std::abs(line.dy());
        const double length = std::hypot(dx, dy), half = width / 2;
        const double reach = half * (dx + dy) / length; // of the square ends' corners
        const double slope = line.dy() / line.dx();     // infinite for an upright line
        const double upright = half * length / dx + std::abs(slope) / scale_ / 2;
        const auto [top, bottom] = std::minmax({line.y1(), line.y2()});
        const auto [left, right] = std::minmax({line.x1(), line.x2()});
        const int end = saturating_int(std::ceil((right + reach) * scale_));
        for (int px = saturating_int(std::floor((left - reach) * scale_)); px < end; ++px) {
            if (px < 0 || px >= image_.width())
                continue;
            double from = top - reach, to = bottom + reach;
            if (dx > HARDLY_ANY) {
                const double y = line.y1() + ((px + 0.5) / scale_ - line.x1()) * slope;
                from = std::max(from, y - upright);
                to = std::min(to, y + upright);
            }
            if (!casing_.holds(px, line_at(std::floor(from * scale_)),
                               line_at(std::ceil(to * scale_))))
                return false;
        }
        return true;
    }

    void paint(QRgb casing, QRgb shade, QRgb ink) {
        line_cover cover(image_.size(), casing, shade, ink);
        cover.add(casing_, line_cover::CASED);
        cover.add(area_, line_cover::SHADED);
        cover.add(left_halves_, line_cover::INKED);
        cover.add(right_halves_, line_cover::INKED);
        fill(more_casing_, casing);
        for (int py = 0; py < image_.height(); ++py) {
            cover.go_to_line(static_cast<std::size_t>(py));
            cover.paint(line(py));
        }
        fill(more_runs_, ink);
    }

  private:
    QRgb* line(int py) { return reinterpret_cast<QRgb*>(image_.scanLine(py)); }

    void fill(const std::vector<QRect>& parts, QRgb colour) {
        for (const QRect& part : parts)
            for (int py = part.top(); py <= part.bottom(); ++py)
                std::fill_n(line(py) + part.left(), part.width(), colour);
    }

    int first_centre_from(double units) const {
        return saturating_int(std::ceil(units * scale_ - 0.5));
    }
    int line_at(double pixels) const {
        return std::clamp(saturating_int(pixels), 0, image_.height());
    }
    int line_of(double units) const { return line_at(std::ceil(units * scale_ - 0.5)); }
    // Like std::lround(), without a library call for each corner.
    int nearest(double units) const {
        return static_cast<int>(units * scale_ + (units < 0 ? -0.5 : 0.5));
    }

    void add_part(column_spans& spans, std::vector<QRect>& more, const column_run& run, int from_x,
                  int to_x, int spread) {
        const int high = std::clamp(run.high, -FARTHEST, FARTHEST);
        const int low = std::clamp(run.low, -FARTHEST, FARTHEST);
        const QRect part = QRect(QPoint(nearest(from_x), nearest(height_ - high - spread)),
                                 QPoint(nearest(to_x) - 1, nearest(height_ - low + spread) - 1)) &
                           image_.rect();
        for (int px = part.left(); px <= part.right(); ++px)
            if (!spans.join(px, part.top(), part.bottom() + 1))
                more.push_back(QRect(px, part.top(), 1, part.height())); // between gaps
    }

    QImage& image_;
    double scale_;
    double height_;
    column_spans area_, casing_, left_halves_, right_halves_;
    std::vector<QRect> more_casing_, more_runs_;
};

pixel_layer layer_of(canvas& target, const std::vector<column_run>& runs, int base_y) {
    pixel_layer layer(target);
    for (std::size_t i = 1; i < runs.size(); ++i)
        if (runs[i].joined)
            layer.add_area(runs[i - 1].x, runs[i - 1].last, runs[i].x, runs[i].first, base_y);
    for (const column_run& run : runs)
        if (run.count > ONE_SEGMENT)
            layer.add_run(run);
    return layer;
}

// Clips a line above and below, keeping its slope.
std::optional<QLineF> within_reach(const QLineF& line) {
    if (std::max(line.y1(), line.y2()) < -FARTHEST || std::min(line.y1(), line.y2()) > FARTHEST)
        return std::nullopt;
    const auto moved_in = [&line](const QPointF& end) {
        const double y = std::clamp<double>(end.y(), -FARTHEST, FARTHEST);
        return y == end.y() ? end
                            : QPointF(line.x1() + line.dx() * ((y - line.y1()) / line.dy()), y);
    };
    return QLineF(moved_in(line.p1()), moved_in(line.p2()));
}

using run_iterator = std::vector<column_run>::const_iterator;

// Whether a run between `first` and `end` covers everything from one y to the other.
bool any_covers(run_iterator first, run_iterator end, int y, int other_y, int margin) {
    return std::any_of(first, end, [&](const column_run& run) {
        return run.count > ONE_SEGMENT && std::min(y, other_y) - margin >= run.low &&
               std::max(y, other_y) + margin <= run.high;
    });
}

// Whether both columns cover the segment to `to` completely. The ends of a wide line reach beyond
// the columns: vertically if it is steep, otherwise sideways.
bool is_hidden(const std::vector<column_run>& runs, run_iterator to, bool wide) {
    constexpr int STEEP = 4;
    const auto from = to - 1;
    if (std::int64_t{to->x} - from->x != 1)
        return false;
    if (wide && std::abs(std::int64_t{to->first} - from->last) < STEEP)
        return false;
    const int margin = wide ? 1 : 0;
    const auto is_in = [](int x) { return [x](const column_run& run) { return run.x == x; }; };
    const auto from_start =
        std::find_if_not(std::make_reverse_iterator(to), runs.rend(), is_in(from->x)).base();
    const auto to_end = std::find_if_not(to, runs.end(), is_in(to->x));
    return any_covers(from_start, to, from->last, to->first, margin) &&
           any_covers(to, to_end, from->last, to->first, margin);
}

// Segments across columns, and those that are the only one of a column.
QVector<QLineF> lines_of(const canvas& target, const std::vector<column_run>& runs, bool wide) {
    QVector<QLineF> lines;
    lines.reserve(static_cast<qsizetype>(runs.size()));
    const auto add = [&](int from_x, int from_y, int to_x, int to_y) {
        // QPainter scales the width of a line of zero length twice.
        const double end_x = from_x == to_x && from_y == to_y ? to_x + HARDLY_ANY : to_x;
        if (const auto line =
                within_reach({target.flipped(from_x, from_y), target.flipped(end_x, to_y)}))
            lines << *line;
    };
    for (auto to = runs.begin(); to != runs.end(); ++to) {
        if (to->joined && to != runs.begin() && !is_hidden(runs, to, wide))
            add((to - 1)->x, (to - 1)->last, to->x, to->first);
        if (to->count == ONE_SEGMENT)
            add(to->x, to->low, to->x, to->high);
    }
    return lines;
}

void paint_lines(canvas& target, const QVector<QLineF>& lines, const QColor& ink, double width) {
    QPainter& painter = target.painter();
    const double scale = target.pixels().devicePixelRatio();
    const bool smoothed = painter.testRenderHint(QPainter::Antialiasing);
    short_strokes strokes(target.pixels(), width * scale, ink.rgba());
    QVector<QLineF> rest;
    for (const QLineF& line : lines)
        if (const QLineF pixels(line.p1() * scale, line.p2() * scale);
            smoothed && strokes.is_short(pixels))
            strokes.stroke(pixels);
        else
            rest << line;
    painter.setPen(QPen(ink, width));
    painter.drawLines(rest);
}

// The casing of the segments; that of the columns is in the layer drawn over it, in the same
// colour.
void paint_casing(canvas& target, const std::vector<column_run>& runs, const pixel_layer& layer,
                  const curve_style& style) {
    const double width = style.line_width + 2 * CASING_WIDTH;
    QVector<QLineF> lines = lines_of(target, runs, true);
    lines.removeIf([&](const QLineF& line) { return layer.casing_holds(line, width); });
    paint_lines(target, lines, style.casing, width);
}

} // namespace

void paint_curve(canvas& target, const std::vector<column_run>& runs, const curve_style& style) {
    target.painter().save();
    target.painter().setRenderHint(QPainter::Antialiasing, style.antialiased);
    pixel_layer layer = layer_of(target, runs, style.base_y);
    paint_casing(target, runs, layer, style);
    QColor shade = style.ink;
    shade.setAlphaF(static_cast<float>(AREA_ALPHA));
    layer.paint(qPremultiply(style.casing.rgba()), qPremultiply(shade.rgba()),
                qPremultiply(style.ink.rgba()));
    const QVector<QLineF> lines = lines_of(target, runs, false);
    // Where the first pass ends a pixel inside the second, it is invisible.
    if ((style.line_width - FIRST_PASS_WIDTH) * target.pixels().devicePixelRatio() < 1)
        paint_lines(target, lines, style.ink, FIRST_PASS_WIDTH);
    paint_lines(target, lines, style.ink, style.line_width);
    target.painter().restore();
}
