#include "canvas.h"
#include "drawChartyItem.h"
#include "fixed_decimals.h"
#include "parameters.h"

#include <QGuiApplication>

#include <algorithm>

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

// Condensed letters, which regain their proportions when the picture is stretched.
void squeezed(canvas& target, double squeeze, const std::function<void()>& write) {
    QPainter& painter = target.painter();
    painter.save();
    painter.scale(squeeze, 1);
    write();
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
    const double room = (target.width() - x - RIGHT_MARGIN) / look.squeeze;
    const double left = x / look.squeeze;
    squeezed(target, look.squeeze,
             [&] { write_value(target, room, left, y, qstring(cur_sample_set[k][1]), look); });
    target.put(readout_name_, names_[k], [&](canvas& alone) {
        squeezed(alone, look.squeeze, [&] {
            alone.text_within(room, look.smallest_name_pixels, left, y - NAME_BELOW_VALUE,
                              qstring(names_[k]), system_font(look.name_pixels), white(0.8),
                              Qt::ElideMiddle); // bank and sensor are at its end
        });
    });
    paint_level_bar(target, look.segments);
}

// As large as the widest value so far allows: figures that change size with each value are
// illegible.
void drawChartyItem::write_value(canvas& target, double room, double x, double y,
                                 const QString& value, const readout_look& look) {
    if (widest_of_ != cur_item_2_PLOT) {
        widest_of_ = cur_item_2_PLOT;
        widest_value_ = 0;
    }
    QFont font = image_font(QStringLiteral("Arial"), look.value_pixels);
    const double width = value_widths_.of(font, value);
    widest_value_ = std::max(widest_value_, width);
    if (widest_value_ > room)
        font.setPixelSize(std::max(look.smallest_value_pixels,
                                   static_cast<int>(look.value_pixels * room / widest_value_)));
    if (width * font.pixelSize() <= room * look.value_pixels)
        target.text(x, y, value, font, white(look.value_alpha));
    else
        target.text_within(room, look.smallest_value_pixels, x, y, value, font,
                           white(look.value_alpha));
}

// The lowest segment is lit even at the minimum, but none without a value.
void drawChartyItem::paint_level_bar(canvas& target, int segments) {
    const auto k = static_cast<std::size_t>(cur_item_2_PLOT);
    if (k >= _pid_logitems_list.size())
        return;
    const std::string& pid = _pid_logitems_list[k];
    const value_range range = parameter_range(toolies, pid);
    const std::string& text = cur_sample_set[k][1];
    const bool number = text.find_first_of("0123456789") < 2; // perhaps after a sign
    const int level = number ? level_of(leading_number(text), range.low, range.high, segments) : -1;
    target.put(level_bar_, std::to_string(level), [&](canvas& alone) {
        const QColor lit = colour(1, 1, 0, 0.4);
        for (int i = 0; i < segments; ++i) {
            const QRectF segment(4 * i + alone.width() / 3 + 1, alone.height() - 20, 4, 15);
            alone.fill(segment.adjusted(1, 1, -1, -1), i <= level ? lit : white(0.4));
        }
    });
}
