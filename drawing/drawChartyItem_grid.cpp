#include "canvas.h"
#include "casing.h"
#include "drawChartyItem.h"

#include <algorithm>

namespace {

const QColor BACKGROUND = colour(46 / 255.0, 46 / 255.0, 46 / 255.0, 0.9);
const QColor PLOT_LEFT = colour(31 / 255.0, 31 / 255.0, 46 / 255.0, 1.0);
const QColor PLOT_RIGHT = colour(15 / 255.0, 31 / 255.0, 46 / 255.0, 0.6);
constexpr double PLOT_GRADIENT_DEGREES = 0.45;
const QColor GRAY = colour(0.5, 0.5, 0.5);
const QColor GRID_LINE = colour(0.902, 0.902, 902.0); // the blue is deliberate: saturated
constexpr double GRID_LINE_WIDTH = 0.3;
constexpr int GRID_DIVISIONS = 5;
const QColor TITLE = colour(1 / 255.0, 223 / 255.0, 215 / 255.0);
const QColor AXIS_VALUE = colour(0, 191 / 255.0, 1.0);
const QColor LEGEND = colour(1.0, 1.0, 128 / 255.0);
constexpr double AXIS_BAND_WIDTH = 15;
constexpr double FIRST_AXIS_X = 2;
const QColor SELECTED = colour(58 / 255.0, 1 / 255.0, 223 / 255.0, 0.65);
const QColor NOT_SELECTED = colour(49 / 255.0, 1 / 255.0, 132 / 255.0, 0.65);
constexpr double HIGHLIGHT_RADIUS = 15;

QRectF rect_of(const chart_area& area) {
    return QRectF(area.x, area.y, area.width, area.height);
}

} // namespace

QColor drawChartyItem::axis_figures() {
    return AXIS_VALUE;
}

drawChartyItem::grid_look drawChartyItem::look_of_grid(const label_records& labels,
                                                       std::string_view title) const {
    grid_look look{chartySize, pixel_scale_,       ground_,   is_thumbnail, is_thumb_selected, {},
                   {},         std::string(title), time_span_};
    std::vector<int> shown;
    if (has_two_axes())
        shown = {*cur_ITEMS_2_PLOT.begin(), *std::next(cur_ITEMS_2_PLOT.begin())};
    else
        shown = {cur_item_2_PLOT};
    std::vector<double> widths;
    for (const int index : shown) {
        const auto place = static_cast<std::size_t>(std::max(index, 0));
        const label_record record = place < labels.size() ? labels[place] : label_record();
        look.axes.push_back(
            {lower_limit(record), upper_limit(record), record.units, index, FIRST_AXIS_X});
        widths.push_back(get_width_of_axis_label(record));
    }
    const bool two = shown.size() > 1;
    const chart_layout layout = layout_of(chartySize.width(), chartySize.height(), widths[0],
                                          two ? std::optional(widths[1]) : std::nullopt);
    look.plot = layout.plot;
    if (two)
        look.axes[1].x = layout.second_axis_x;
    return look;
}

void drawChartyItem::draw_grid(const label_records& labels, std::string_view this_title) {
    grid_look look = look_of_grid(labels, this_title);
    drawSizes = look.plot;
    if (grid_.isNull() || look != grid_look_) {
        grid_ = filled_image(chartySize, pixel_scale_, ground_);
        canvas target(grid_);
        paint_grid(target, look);
        grid_look_ = std::move(look);
    }
    copy_picture(grid_, image_);
}

void drawChartyItem::paint_grid(canvas& target, const grid_look& look) {
    target.fill(QRectF(0, 0, target.width(), target.height()), BACKGROUND);
    for (const value_axis& axis : look.axes)
        paint_axis_band(target, axis, look.plot);
    const chart_area& plot = look.plot;
    const std::string place = std::to_string(plot.x) + ' ' + std::to_string(plot.y) + ' ' +
                              std::to_string(plot.width) + ' ' + std::to_string(plot.height);
    target.put(plot_frame_, place, [&plot](canvas& alone) { paint_plot_frame(alone, plot); });
    paint_grid_lines(target, look.plot);
    // Painted after the plot: long values reach into it and must stay legible.
    for (const value_axis& axis : look.axes)
        print_axis_values_4_grid(target, axis, look.plot);
    const QFont title_font = image_font(QStringLiteral("Arial"), 10);
    target.text(0, 0, qstring(look.title), title_font, TITLE);
    const QString span = qstring(look.time_span);
    target.text(target.width() - text_width(title_font, span) - 2, 0, span, title_font, TITLE);
    if (look.thumbnail)
        paint_highlight(target, look.selected);
}

void drawChartyItem::paint_plot_frame(canvas& target, const chart_area& plot) {
    const QRectF frame = rect_of(plot);
    if (frame.isEmpty())
        return;
    target.shadow_of(frame, colour(0, 0, 0, 0.5), QPointF(4, -4), 3);
    target.fill(frame, Qt::white);
    target.fill_gradient(frame, PLOT_LEFT, PLOT_RIGHT, PLOT_GRADIENT_DEGREES);
    QPainter& painter = target.painter();
    painter.setPen(QPen(GRAY, 1.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(target.flipped(frame));
}

// One dashed path that grows line by line and is stroked each time, so that earlier lines are
// stronger.
void drawChartyItem::paint_grid_lines(canvas& target, const chart_area& plot) {
    QPen pen(GRID_LINE, GRID_LINE_WIDTH);
    pen.setCapStyle(Qt::FlatCap);
    pen.setDashPattern({1.0 / GRID_LINE_WIDTH, 2.0 / GRID_LINE_WIDTH});
    QPainter& painter = target.painter();
    painter.setPen(pen);
    QVector<QLineF> path;
    for (int i = 1; i < GRID_DIVISIONS; ++i) {
        const double y = plot.y + static_cast<double>(i) * plot.height / GRID_DIVISIONS;
        const double x = plot.x + static_cast<double>(i) * plot.width / GRID_DIVISIONS;
        path << QLineF(target.flipped(plot.x, y), target.flipped(plot.x + plot.width, y));
        painter.drawLines(path);
        path << QLineF(target.flipped(x, plot.y), target.flipped(x, plot.y + plot.height));
        painter.drawLines(path);
    }
}

// The curve's colour key beside its values.
void drawChartyItem::paint_axis_band(canvas& target, const value_axis& axis,
                                     const chart_area& plot) {
    QColor from = setMyColor(axis.index);
    QColor to = from;
    from.setAlphaF(0.7F);
    to.setAlphaF(0.15F);
    target.fill_gradient(QRectF(axis.x, plot.y, AXIS_BAND_WIDTH, plot.height), from, to, 1.0);
}

void drawChartyItem::print_axis_values_4_grid(canvas& target, const value_axis& axis,
                                              const chart_area& plot) {
    const axis_marks marks = marks_of_axis(axis.lower, axis.upper, plot);
    const QFont value_font = image_font(QStringLiteral("Helvetica"), 13);
    for (std::size_t i = 0; i < marks.texts.size(); ++i) {
        const QString text = qstring(marks.texts[i]);
        // Not beyond the right edge, which would cut long values of a second axis.
        const double x = std::min(axis.x + 5, target.width() - text_width(value_font, text));
        target.text_edge(x, marks.y[i], text, value_font, casing_of(AXIS_VALUE), CASING_WIDTH);
        target.text(x, marks.y[i], text, value_font, AXIS_VALUE);
    }
    target.text(axis.x - 2, plot.y + plot.height - 2, QLatin1Char(' ') + qstring(axis.units),
                image_font(QStringLiteral("Arial"), 12), LEGEND);
}

void drawChartyItem::paint_highlight(canvas& target, bool selected) {
    QPainter& painter = target.painter();
    painter.setBrush(selected ? SELECTED : NOT_SELECTED);
    painter.setPen(QPen(GRAY, 1.0));
    painter.drawRoundedRect(QRectF(0, 0, target.width(), target.height()), HIGHLIGHT_RADIUS,
                            HIGHLIGHT_RADIUS);
}
