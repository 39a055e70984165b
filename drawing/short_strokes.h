// Lines a few pixels long, of which a curve has hundreds: QPainter takes longer to set each up than
// to paint it. Painted like QPainter, antialiased, with an opaque pen and square ends. Lives while
// a curve is being painted; lines and widths are in pixels.
#pragma once

#include <QImage>
#include <QLineF>

#include <array>

class short_strokes {
  public:
    // For a picture of premultiplied or opaque pixels.
    short_strokes(QImage& image, double width, QRgb ink);

    bool is_short(const QLineF& line) const;
    void stroke(const QLineF& line);

  private:
    static constexpr int ALL = 255; // of a pixel

    QImage& image_;
    double width_;
    std::array<QRgb, ALL + 1> added_, rest_; // by how much of a pixel a stroke covers
};
