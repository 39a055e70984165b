#include "canvas.h"
#include "drawChartyItem.h"
#include "fixed_decimals.h"

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

void drawChartyItem::display_value(canvas& target) const {
    const int width = static_cast<int>(target.width());
    const int height = static_cast<int>(target.height());
    const int third = height / 3;
    const int bottom = 2 * height / 3;
    target.fill(QRectF(0, bottom, width, third), SHADE);

    const auto k = static_cast<std::size_t>(cur_item_2_PLOT);
    if (cur_item_2_PLOT < 0 || k >= cur_sample_set.size() || k >= names_.size())
        return;
    const int x = width / 3;
    const int y = bottom + third / 3;
    const double room = width - x - RIGHT_MARGIN;
    target.text_within(room, 12, x, y, qstring(cur_sample_set[k][1]),
                       image_font(QStringLiteral("Arial"), 30), white(0.7));
    target.text_within(room, 10, x, y - NAME_BELOW_VALUE, qstring(names_[k]), system_font(10),
                       white(0.8));
    paint_level_bar(target, LARGE_SEGMENTS);
}

void drawChartyItem::display_value_4_thumbnail(canvas& target) const {
    const double width = target.width();
    const double height = target.height();
    target.fill(QRectF(0, height / 3, width, height), SHADE);

    const auto k = static_cast<std::size_t>(cur_item_2_PLOT);
    if (cur_item_2_PLOT < 0 || k >= cur_sample_set.size() || k >= names_.size())
        return;
    const double x = width / 3;
    const double y = height / 3 + height * 0.25;
    const double room = width - x - RIGHT_MARGIN;
    target.text_within(room, 18, x, y, qstring(cur_sample_set[k][1]),
                       image_font(QStringLiteral("Arial"), 70), white(0.9));
    target.text_within(room, 16, x, y - NAME_BELOW_VALUE, qstring(names_[k]), system_font(20),
                       white(0.8));
    paint_level_bar(target, THUMBNAIL_SEGMENTS);
}

// The lowest segment is lit even at the minimum.
void drawChartyItem::paint_level_bar(canvas& target, int segments) const {
    const auto k = static_cast<std::size_t>(cur_item_2_PLOT);
    if (k >= _pid_logitems_list.size())
        return;
    const std::string& pid = _pid_logitems_list[k];
    const int level =
        level_of(leading_number(cur_sample_set[k][1]), toolies.get_PID_min_max(pid, false),
                 toolies.get_PID_min_max(pid, true), segments);
    const QColor lit = colour(1, 1, 0, 0.4);
    for (int i = 0; i < segments; ++i) {
        const QRectF segment(4 * i + target.width() / 3 + 1, target.height() - 20, 4, 15);
        target.fill(segment.adjusted(1, 1, -1, -1), i <= level ? lit : white(0.4));
    }
}
