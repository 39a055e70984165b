// Paints into an image in image units with the origin at the lower left, whatever the image's pixel
// scale. Lives while a picture is being painted.
#pragma once

#include <QColor>
#include <QFont>
#include <QHash>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QString>

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

// An empty image of `size` image units at `scale` pixels per unit.
QImage empty_image(QSizeF size, double scale);
// The same filled with one colour. An opaque one makes the whole picture opaque, which halves the
// time to show it.
QImage filled_image(QSizeF size, double scale, const QColor& ground);
// Makes `to` a deep copy of `from`, reusing its memory if it fits.
void copy_picture(const QImage& from, QImage& to);

// The same for these pixels only; both have the same size.
void copy_pixels(const QImage& from, QImage& to, const QRect& pixels);

// Blends `added` over pixels of which `rest` 255ths remain, byte by byte. In 16 bits, so that it
// vectorises.
inline void lay_over(QRgb* pixels, const QRgb* rest, const QRgb* added, std::size_t count) {
    auto* __restrict ground = reinterpret_cast<std::uint8_t*>(pixels);
    const auto* __restrict left = reinterpret_cast<const std::uint8_t*>(rest);
    const auto* __restrict more = reinterpret_cast<const std::uint8_t*>(added);
    for (std::size_t i = 0; i < count * sizeof(QRgb); ++i) {
        const auto product = static_cast<std::uint16_t>(ground[i] * left[i]);
        const auto rounded = static_cast<std::uint16_t>(product + (product >> 8) + 128);
        ground[i] = static_cast<std::uint8_t>((rounded >> 8) + more[i]);
    }
}
// The same for many pixels.
void lay_over_many(QRgb* pixels, const QRgb* rest, const QRgb* added, std::size_t count);
// The `rest` of a pixel below one of this alpha.
constexpr QRgb rest_below(int alpha) {
    return static_cast<QRgb>(255 - alpha) * 0x01010101U;
}

// Makes `to` the picture with fewer lines, each the mean of those it replaces: like
// QImage::scaled() apart from rounding, in a fraction of the time. From 1 to as many lines as
// `from` has.
void squeeze(const QImage& picture, int lines, QImage& to);

// A detail that seldom changes, painted on a transparent ground. Owned by the painter of the
// picture.
struct kept_detail {
    std::string what;
    QSize picture_size;
    QImage image;
    QPoint at; // its upper-left corner, in pixels
};

// A font of `pixels` image units, sharp at every scale.
QFont image_font(const QString& family, int pixels, bool bold = false);
double text_width(const QFont& font, const QString& text);

// Caches the widths of texts in one font, for its latest size.
class kept_widths {
  public:
    double of(const QFont& font, const QString& text);

  private:
    QHash<QString, double> widths_;
    int pixels_ = 0;
};

QString qstring(std::string_view utf8);

// Colour components from 0 to 1, clamped.
QColor colour(double red, double green, double blue, double alpha = 1);

class canvas {
  public:
    explicit canvas(QImage& image);

    // For anything this class does not offer; y of its points must be flipped.
    QPainter& painter() { return painter_; }
    // The picture itself, premultiplied, to set pixels directly.
    QImage& pixels() { return image_; }
    double width() const { return size_.width(); }
    double height() const { return size_.height(); }
    QPointF flipped(double x, double y) const { return {x, height() - y}; }
    QRectF flipped(const QRectF& area) const;

    // (x, y) is the lower-left corner of the text's line box, descent included.
    void text(double x, double y, const QString& text, const QFont& font, const QColor& ink);
    // A casing that separates such a text from its background, `width` units around its letters.
    void text_edge(double x, double y, const QString& text, const QFont& font, const QColor& edge,
                   double width);
    // Like text(), but at most `room` wide: in smaller letters, down to `smallest`, then with an
    // ellipsis at `cut`. The baseline is that of the full size.
    void text_within(double room, int smallest, double x, double y, const QString& text, QFont font,
                     const QColor& ink, Qt::TextElideMode cut = Qt::ElideRight);
    void fill(const QRectF& area, const QBrush& brush);
    // A translucent rectangle, to the nearest pixel: QPainter distributes one this large among
    // threads, which takes longer than painting it.
    void shade(const QRectF& area, const QColor& shade);
    // Draws the detail that `paint` paints; calls it again only if `what` it shows has changed.
    void put(kept_detail& detail, const std::string& what,
             const std::function<void(canvas&)>& paint);
    // All pixels touched by painting within the area.
    QRect pixels_of(const QRectF& area) const;
    // From the first colour to the second along `degrees`, counter-clockwise from rightwards; the
    // corners of the area get the pure colours.
    void fill_gradient(const QRectF& area, const QColor& from, const QColor& to, double degrees);
    // The shadow that an opaque area casts; the area itself is not painted.
    void shadow_of(const QRectF& area, const QColor& shade, QPointF offset, double blur_radius);

  private:
    void text_on_base_line(double x, double base_y, const QString& text, const QFont& font,
                           const QColor& ink);

    QImage& image_;
    QSizeF size_;
    QPainter painter_;
};
