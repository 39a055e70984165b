#include "shadow.h"

#include "canvas.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr int PASSES = 3; // repeated box blurs approximate a Gaussian

// Averages each pixel with its neighbours up to `reach` away along one line of `count` pixels
// `stride` apart.
void blur_line(uchar* line, qsizetype stride, int count, int reach, std::vector<uchar>& copy) {
    copy.resize(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        copy[static_cast<std::size_t>(i)] = line[i * stride];
    const auto at = [&](int i) {
        return i < 0 || i >= count ? 0 : int{copy[static_cast<std::size_t>(i)]};
    };
    const int width = 2 * reach + 1;
    int sum = 0;
    for (int i = -reach; i < reach; ++i)
        sum += at(i);
    for (int i = 0; i < count; ++i) {
        sum += at(i + reach);
        line[i * stride] = static_cast<uchar>((sum + width / 2) / width);
        sum -= at(i - reach);
    }
}

void blur(QImage& mask, int reach) {
    std::vector<uchar> copy;
    uchar* const bits = mask.bits();
    const qsizetype bytes_a_line = mask.bytesPerLine();
    for (int pass = 0; pass < PASSES; ++pass) {
        for (int y = 0; y < mask.height(); ++y)
            blur_line(bits + y * bytes_a_line, 1, mask.width(), reach, copy);
        for (int x = 0; x < mask.width(); ++x)
            blur_line(bits + x, bytes_a_line, mask.height(), reach, copy);
    }
}

} // namespace

cast_shadow cast_shadow_of(const QRectF& bounds, double blur_radius, double scale,
                           const QColor& shade, const std::function<void(QPainter&)>& paint_shape) {
    // Three boxes of this reach blur an edge over about the radius.
    const int reach = std::max(1, static_cast<int>(std::lround(blur_radius * scale / PASSES)));
    const double margin = std::ceil((PASSES * reach + 1) / scale);
    const QRectF whole = bounds.adjusted(-margin, -margin, margin, margin).toAlignedRect();

    QImage shape = empty_image(whole.size(), scale);
    {
        QPainter painter(&shape);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(-whole.topLeft());
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::black);
        paint_shape(painter);
    }
    QImage mask = shape.convertToFormat(QImage::Format_Alpha8);
    blur(mask, reach);

    cast_shadow cast{empty_image(whole.size(), scale), whole.topLeft()};
    QPainter painter(&cast.image);
    painter.fillRect(QRectF(QPointF(0, 0), whole.size()), shade);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(QPointF(0, 0), mask);
    return cast;
}
