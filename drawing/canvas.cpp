#include "canvas.h"

#include "shadow.h"

#include <QFontMetricsF>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <numbers>
#include <utility>
#include <vector>

QImage filled_image(QSizeF size, double scale, const QColor& ground) {
    const QSize pixels = (size * scale).toSize().expandedTo(QSize(1, 1));
    QImage image(pixels, ground.alpha() == 255 ? QImage::Format_RGB32
                                               : QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(ground);
    return image;
}

QImage empty_image(QSizeF size, double scale) {
    return filled_image(size, scale, Qt::transparent);
}

void copy_picture(const QImage& from, QImage& to) {
    const bool fits = to.size() == from.size() && to.format() == from.format() &&
                      to.devicePixelRatio() == from.devicePixelRatio() && to.isDetached();
    if (fits)
        std::memcpy(to.bits(), from.constBits(), static_cast<std::size_t>(from.sizeInBytes()));
    else
        to = from.copy();
}

void copy_pixels(const QImage& from, QImage& to, const QRect& pixels) {
    const QRect inside = pixels & from.rect();
    const auto left = inside.left() * qsizetype(sizeof(QRgb));
    for (int y = inside.top(); y <= inside.bottom(); ++y)
        std::memcpy(to.scanLine(y) + left, from.constScanLine(y) + left,
                    static_cast<std::size_t>(inside.width()) * sizeof(QRgb));
}

// Processors of the last ten years have vectors twice as wide as the oldest supported ones.
// Sanitizers cannot instrument the dispatch between them.
#if defined(__x86_64__) && !defined(__clang__) && !defined(__SANITIZE_ADDRESS__)
#define ALSO_FOR_NEWER __attribute__((target_clones("avx2", "default")))
#else
#define ALSO_FOR_NEWER
#endif

ALSO_FOR_NEWER void lay_over_many(QRgb* pixels, const QRgb* rest, const QRgb* added,
                                  std::size_t count) {
    lay_over(pixels, rest, added, count);
}

namespace {

constexpr int ONE = 256; // the sum of the weights of a line's sources

// Vectorises: the sums fit into 16 bits.
ALSO_FOR_NEWER void add_weighted(std::uint16_t* __restrict sums, const uchar* __restrict source,
                                 std::uint16_t weight, std::size_t bytes) {
    for (std::size_t i = 0; i < bytes; ++i)
        sums[i] = static_cast<std::uint16_t>(sums[i] + source[i] * weight);
}

ALSO_FOR_NEWER void mix(uchar* __restrict target, const uchar* __restrict one, std::uint16_t weight,
                        const uchar* __restrict other, std::uint16_t other_weight,
                        std::size_t bytes) {
    for (std::size_t i = 0; i < bytes; ++i) {
        const auto sum =
            static_cast<std::uint16_t>(one[i] * weight + other[i] * other_weight + ONE / 2);
        target[i] = static_cast<uchar>(sum / ONE);
    }
}

} // namespace

void squeeze(const QImage& picture, int lines, QImage& to) {
    const QSize size(picture.width(), lines);
    if (to.size() != size || to.format() != picture.format())
        to = QImage(size, picture.format());
    const auto bytes = static_cast<std::size_t>(picture.width()) * sizeof(QRgb);
    std::vector<std::uint16_t> sums(bytes);
    std::vector<std::uint16_t> weights;
    const double step = static_cast<double>(picture.height()) / lines;
    for (int y = 0; y < lines; ++y) {
        const double end = std::min((y + 1) * step, double(picture.height()));
        const int first = static_cast<int>(y * step);
        int given = 0;
        weights.clear();
        for (int from = first; from < end; ++from) {
            const double along = std::min<double>(from + 1, end) - y * step;
            const int upto = from + 1 >= end ? ONE : static_cast<int>(along / step * ONE + 0.5);
            weights.push_back(static_cast<std::uint16_t>(upto - given));
            given = upto;
        }
        uchar* const target = to.scanLine(y);
        if (weights.size() <= 2) {
            const bool two = weights.size() == 2;
            mix(target, picture.constScanLine(first), weights.front(),
                picture.constScanLine(two ? first + 1 : first), two ? weights.back() : 0, bytes);
        } else {
            std::ranges::fill(sums, ONE / 2);
            for (std::size_t i = 0; i < weights.size(); ++i)
                add_weighted(sums.data(), picture.constScanLine(first + static_cast<int>(i)),
                             weights[i], bytes);
            for (std::size_t i = 0; i < bytes; ++i)
                target[i] = static_cast<uchar>(sums[i] / ONE);
        }
    }
}

QFont image_font(const QString& family, int pixels, bool bold) {
    QFont font(family);
    font.setPixelSize(pixels);
    font.setBold(bold);
    // Letters have the same relative widths at every scale.
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

double text_width(const QFont& font, const QString& text) {
    return QFontMetricsF(font).horizontalAdvance(text);
}

double kept_widths::of(const QFont& font, const QString& text) {
    constexpr qsizetype MOST = 256;
    if (std::exchange(pixels_, font.pixelSize()) != font.pixelSize())
        widths_.clear();
    if (const auto found = widths_.constFind(text); found != widths_.constEnd())
        return *found;
    if (widths_.size() == MOST)
        widths_.clear();
    return widths_[text] = text_width(font, text);
}

QString qstring(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QColor colour(double red, double green, double blue, double alpha) {
    const auto component = [](double c) { return static_cast<float>(std::clamp(c, 0.0, 1.0)); };
    return QColor::fromRgbF(component(red), component(green), component(blue), component(alpha));
}

namespace {

// Both of premultiplied pixels.
void lay_over(QRgb* ground, const QRgb* picture, int count) {
    for (int i = 0; i < count; ++i) {
        const QRgb rest = 255U - static_cast<QRgb>(qAlpha(picture[i]));
        const auto left_of = [rest](QRgb two_bytes) {
            const QRgb product = (two_bytes & 0x00FF00FF) * rest;
            return ((product + ((product >> 8) & 0x00FF00FF) + 0x00800080) >> 8) & 0x00FF00FF;
        };
        ground[i] = picture[i] + (left_of(ground[i]) | (left_of(ground[i] >> 8) << 8));
    }
}

QRect painted_pixels(const QImage& picture) {
    QRect painted;
    for (int y = 0; y < picture.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        const auto* end = line + picture.width();
        const auto* first = std::find_if(line, end, [](QRgb pixel) { return pixel != 0; });
        if (first == end)
            continue;
        const auto* last = end - 1;
        while (*last == 0)
            --last;
        painted |= QRect(QPoint(static_cast<int>(first - line), y),
                         QPoint(static_cast<int>(last - line), y));
    }
    return painted;
}

} // namespace

canvas::canvas(QImage& image)
    : image_(image), size_(image.deviceIndependentSize()), painter_(&image) {
    // QPainter ignores a device pixel ratio below 1.
    if (const double scale = image.devicePixelRatio(); scale < 1)
        painter_.scale(scale, scale);
    painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                            QPainter::SmoothPixmapTransform);
}

QRectF canvas::flipped(const QRectF& area) const {
    return {area.x(), height() - area.y() - area.height(), area.width(), area.height()};
}

void canvas::text_on_base_line(double x, double base_y, const QString& text, const QFont& font,
                               const QColor& ink) {
    painter_.setFont(font);
    painter_.setPen(ink);
    painter_.drawText(flipped(x, base_y), text);
}

void canvas::text(double x, double y, const QString& text, const QFont& font, const QColor& ink) {
    text_on_base_line(x, y + QFontMetricsF(font).descent(), text, font, ink);
}

void canvas::text_edge(double x, double y, const QString& text, const QFont& font,
                       const QColor& edge, double width) {
    QPainterPath letters;
    letters.addText(flipped(x, y + QFontMetricsF(font).descent()), font, text);
    painter_.strokePath(letters, QPen(edge, 2 * width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void canvas::text_within(double room, int smallest, double x, double y, const QString& text,
                         QFont font, const QColor& ink, Qt::TextElideMode cut) {
    const double base_y = y + QFontMetricsF(font).descent();
    const double wide = text_width(font, text);
    if (wide <= room) {
        text_on_base_line(x, base_y, text, font, ink);
        return;
    }
    const int fitting = static_cast<int>(font.pixelSize() * room / wide);
    font.setPixelSize(std::max(smallest, fitting));
    const bool too_long = fitting < smallest;
    text_on_base_line(x, base_y, too_long ? QFontMetricsF(font).elidedText(text, cut, room) : text,
                      font, ink);
}

void canvas::fill(const QRectF& area, const QBrush& brush) {
    painter_.fillRect(flipped(area), brush);
}

void canvas::shade(const QRectF& area, const QColor& shade) {
    const double scale = image_.devicePixelRatio();
    const QRectF shown = flipped(area);
    const QRect pixels =
        QRectF(shown.topLeft() * scale, shown.size() * scale).toRect() & image_.rect();
    const auto count = static_cast<std::size_t>(pixels.width());
    const std::vector<QRgb> rest(count, rest_below(shade.alpha()));
    const std::vector<QRgb> added(count, qPremultiply(shade.rgba()));
    for (int y = pixels.top(); y <= pixels.bottom(); ++y)
        lay_over_many(reinterpret_cast<QRgb*>(image_.scanLine(y)) + pixels.left(), rest.data(),
                      added.data(), count);
}

void canvas::put(kept_detail& detail, const std::string& what,
                 const std::function<void(canvas&)>& paint) {
    if (detail.what != what || detail.picture_size != image_.size()) {
        QImage picture = empty_image(size_, image_.devicePixelRatio());
        {
            canvas alone(picture);
            paint(alone);
        }
        const QRect pixels = painted_pixels(picture);
        detail = {what, image_.size(), picture.copy(pixels), pixels.topLeft()};
    }
    for (int y = 0; y < detail.image.height(); ++y)
        lay_over(reinterpret_cast<QRgb*>(image_.scanLine(detail.at.y() + y)) + detail.at.x(),
                 reinterpret_cast<const QRgb*>(detail.image.constScanLine(y)),
                 detail.image.width());
}

QRect canvas::pixels_of(const QRectF& area) const {
    const double scale = image_.devicePixelRatio();
    const QRectF shown = flipped(area);
    return QRectF(shown.topLeft() * scale, shown.size() * scale)
               .toAlignedRect()
               .adjusted(-1, -1, 1, 1) &
           image_.rect();
}

void canvas::fill_gradient(const QRectF& area, const QColor& from, const QColor& to,
                           double degrees) {
    const double angle = degrees * std::numbers::pi / 180;
    const QPointF along(std::cos(angle), std::sin(angle));
    const double reach =
        (std::fabs(along.x()) * area.width() + std::fabs(along.y()) * area.height()) / 2;
    const QPointF centre = area.center();
    QLinearGradient gradient(
        flipped(centre.x() - along.x() * reach, centre.y() - along.y() * reach),
        flipped(centre.x() + along.x() * reach, centre.y() + along.y() * reach));
    gradient.setColorAt(0, from);
    gradient.setColorAt(1, to);
    fill(area, gradient);
}

void canvas::shadow_of(const QRectF& area, const QColor& shade, QPointF offset,
                       double blur_radius) {
    const QRectF shape = flipped(area.translated(offset));
    const cast_shadow cast =
        cast_shadow_of(shape, blur_radius, std::max(1.0, image_.devicePixelRatio()), shade,
                       [&shape](QPainter& painter) { painter.drawRect(shape); });
    painter_.drawImage(cast.at, cast.image);
}
