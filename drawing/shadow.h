// Soft shadows, which QPainter lacks.
#pragma once

#include <QColor>
#include <QImage>
#include <QPointF>
#include <QRectF>

#include <functional>

class QPainter;

struct cast_shadow {
    QImage image;
    QPointF at; // upper-left corner, in the painter's units
};

// The shadow of what `paint_shape` paints within `bounds` (painter's units, y downwards) in any
// opaque colour, at `scale` pixels a unit, softened over `blur_radius` units around its edge.
cast_shadow cast_shadow_of(const QRectF& bounds, double blur_radius, double scale,
                           const QColor& shade, const std::function<void(QPainter&)>& paint_shape);
