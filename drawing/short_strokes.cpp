#include "short_strokes.h"

#include "canvas.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace {

constexpr double LONGEST = 24, WIDEST = 40;
constexpr int TOGETHER = 8;  // pixels whose coverage is computed at once
constexpr double UNIT = 256; // of a pixel's side, so that short lengths fit in 16 bits

std::int16_t in_units(double pixels) {
    return static_cast<std::int16_t>(std::lrint(pixels * UNIT));
}

// A rectangle at any angle, and its coverage of a pixel: exact to within a twentieth.
class bar {
  public:
    bar(const QLineF& line, double width)
        : centre_(line.center()), half_length_((line.length() + width) / 2), half_width_(width / 2),
          most_(static_cast<std::int16_t>(std::min(width, 1.0) * 255)) {
        const double length = line.length();
        along_ = length > 0 ? (line.p2() - line.p1()) / length : QPointF(1, 0);
        for (int i = 0; i < TOGETHER; ++i) {
            along_steps_[i] = in_units(i * along_.x());
            across_steps_[i] = in_units(i * along_.y());
        }
    }

    QRect pixels() const {
        const double right = std::abs(along_.x()), down = std::abs(along_.y());
        const QPointF reach(right * half_length_ + down * half_width_ + 0.5,
                            down * half_length_ + right * half_width_ + 0.5);
        return QRectF(centre_ - reach, centre_ + reach).toAlignedRect();
    }

    // For TOGETHER pixels from that one on, in 255ths.
    void cover(int px, int py, std::int16_t* __restrict covers) const {
        const QPointF from = QPointF(px + 0.5, py + 0.5) - centre_;
        const std::int16_t along = in_units(from.x() * along_.x() + from.y() * along_.y());
        const std::int16_t across = in_units(from.x() * along_.y() - from.y() * along_.x());
        const std::int16_t length = in_units(half_length_ + 0.5);
        const std::int16_t width = in_units(half_width_ + 0.5);
        for (int i = 0; i < TOGETHER; ++i) {
            const auto a = static_cast<std::int16_t>(along + along_steps_[i]);
            const auto b = static_cast<std::int16_t>(across + across_steps_[i]);
            const std::uint16_t both = inside(length, a) * inside(width, b);
            const auto part = static_cast<std::int16_t>((both + ROUNDING) >> 8);
            covers[i] = std::min(part, most_);
        }
    }

  private:
    static constexpr std::uint16_t ROUNDING = 255; // makes 255 out of 255 * 255

    static std::uint16_t inside(std::int16_t reach, std::int16_t at) {
        const auto distance = std::max<std::int16_t>(at, static_cast<std::int16_t>(-at));
        const auto left = static_cast<std::int16_t>(reach - distance);
        return static_cast<std::uint16_t>(
            std::min<std::int16_t>(std::max<std::int16_t>(left, 0), 255));
    }

    QPointF centre_, along_;
    double half_length_, half_width_;
    std::int16_t most_;
    std::int16_t along_steps_[TOGETHER], across_steps_[TOGETHER];
};

} // namespace

short_strokes::short_strokes(QImage& image, double width, QRgb ink) : image_(image), width_(width) {
    for (int cover = 0; cover <= ALL; ++cover) {
        const auto at = static_cast<std::size_t>(cover);
        rest_[at] = rest_below(cover);
        added_[at] = qPremultiply(qRgba(qRed(ink), qGreen(ink), qBlue(ink), cover));
    }
}

bool short_strokes::is_short(const QLineF& line) const {
    return width_ <= WIDEST && std::abs(line.dx()) <= LONGEST && std::abs(line.dy()) <= LONGEST;
}

void short_strokes::stroke(const QLineF& line) {
    const bar shape(line, width_);
    const QRect pixels = shape.pixels() & image_.rect();
    std::int16_t covers[TOGETHER];
    QRgb rest[TOGETHER], added[TOGETHER];
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        auto* const target = reinterpret_cast<QRgb*>(image_.scanLine(y));
        for (int x = pixels.left(); x <= pixels.right(); x += TOGETHER) {
            shape.cover(x, y, covers);
            for (int i = 0; i < TOGETHER; ++i) {
                rest[i] = rest_[static_cast<std::size_t>(covers[i])];
                added[i] = added_[static_cast<std::size_t>(covers[i])];
            }
            if (const int count = image_.width() - x; count >= TOGETHER)
                lay_over(target + x, rest, added, TOGETHER);
            else
                lay_over(target + x, rest, added, static_cast<std::size_t>(count));
        }
    }
}
