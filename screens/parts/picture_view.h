// Shows one instrument at the top centre, as large as fits with its aspect ratio kept.
// pixel_scale() is the scale to draw at; a picture of another scale is stretched until the next
// one.
#pragma once

#include "spoken.h"

#include <QImage>
#include <QWidget>

#include <functional>

class picture_view final : public QWidget, public spoken {
  public:
    // `units`: the picture's size in its own units.
    picture_view(const QString& name, QSizeF units, QWidget* parent);

    // Only these pixels differ from the picture shown before.
    void set_image(const QImage& image, const QRect& changed);
    void set_image(const QImage& image) { set_image(image, image.rect()); }
    // Releases the picture, so that the next one can be drawn in the same memory.
    void let_go() { image_ = QImage(); }
    // Pixels per unit; 0 while nothing is visible.
    double pixel_scale() const;

    QSize sizeHint() const override { return units_.toSize(); }

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QRectF shown_rect() const;
    bool fits(const QRectF& place) const;

    QSizeF units_;
    QImage image_;
};
