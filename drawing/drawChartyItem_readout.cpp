#include "canvas.h"
#include "drawChartyItem.h"
#include "fixed_decimals.h"
#include "parameters.h"

#include <QGuiApplication>

namespace {

constexpr int LARGE_SEGMENTS = 12;
constexpr int THUMBNAIL_SEGMENTS = 20;
constexpr int NAME_BELOW_VALUE = 12;
constexpr double RIGHT_MARGIN = 4;

QColor white(double alpha) {
    return colour(1, 1, 1, alpha);
}
const QColor SHADE = colour(0, 0, 0, 0.3);

QFont system_font(int pixels) {
    return image_font(QGuiApplication::font().family(), pixels);
}

} // namespace

struct drawChartyItem::readout_look {
    int value_pixels, smallest_value_pixels;
    double value_alpha;
    int name_pixels, smallest_name_pixels;
    int segments;
    double squeeze = 1; // of the letters' width
};

namespace {

// Condensed letters, which get their proportions back where the picture is stretched.
void squeezed_text(canvas& target, double squeeze, double room, int smallest, double x, double y,
                   const QString& text, const QFont& font, const QColor& ink) {
    QPainter& painter = target.painter();
    painter.save();
    painter.scale(squeeze, 1);
    target.text_within(room / squeeze, smallest, x / squeeze, y, text, font, ink);
    painter.restore();
}

} // namespace

void drawChartyItem::display_value(canvas& target) {
    const int width = static_cast<int>(target.width());
    const int height = static_cast<int>(target.height());
    const int third = height / 3;
    const int bottom = 2 * height / 3;
    target.shade(QRectF(0, bottom, width, third), SHADE);
    paint_readout(target, width / 3, bottom + third / 3, {30, 12, 0.7, 10, 10, LARGE_SEGMENTS});
}

void drawChartyItem::display_value_4_thumbnail(canvas& target) {
    const double width = target.width();
    const double height = target.height();
    target.shade(QRectF(0, height / 3, width, height), SHADE);
    paint_readout(target, width / 3, height / 3 + height * 0.25,
                  {70, 18, 0.9, 20, 16, THUMBNAIL_SEGMENTS, 1 / stretch_});
}

void drawChartyItem::paint_readout(canvas& target, double x, double y, const readout_look& look) {
    const auto k = static_cast<std::size_t>(cur_item_2_PLOT);
    if (cur_item_2_PLOT < 0 || k >= cur_sample_set.size() || k >= names_.size())
        return;
    const double room = target.width() - x - RIGHT_MARGIN;
    squeezed_text(target, look.squeeze, room, look.smallest_value_pixels, x, y,
                  qstring(cur_sample_set[k][1]),
                  image_font(QStringLiteral("Arial"), look.value_pixels), white(look.value_alpha));
    const double name_y = y - NAME_BELOW_VALUE;
    target.put(readout_name_, names_[k], [&](canvas& alone) {
        squeezed_text(alone, look.squeeze, room, look.smallest_name_pixels, x, name_y,
                      qstring(names_[k]), system_font(look.name_pixels), white(0.8));
    });
    paint_level_bar(target, look.segments);
}

// The lowest segment is lit even at the minimum.
void drawChartyItem::paint_level_bar(canvas& target, int segments) {
    const auto k = static_cast<std::size_t>(cur_item_2_PLOT);
    if (k >= _pid_logitems_list.size())
        return;
    const std::string& pid = _pid_logitems_list[k];
    const value_range range = parameter_range(toolies, pid);
    const int level =
        level_of(leading_number(cur_sample_set[k][1]), range.low, range.high, segments);
    target.put(level_bar_, std::to_string(level), [&](canvas& alone) {
        const QColor lit = colour(1, 1, 0, 0.4);
        for (int i = 0; i < segments; ++i) {
            const QRectF segment(4 * i + alone.width() / 3 + 1, alone.height() - 20, 4, 15);
            alone.fill(segment.adjusted(1, 1, -1, -1), i <= level ? lit : white(0.4));
        }
    });
}
