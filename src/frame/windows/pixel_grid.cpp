#include "frame/windows/pixel_grid.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace zandor {

namespace {

constexpr int Dash = 4, Gap = 2; // of a dashed line, in its own width

} // namespace

PixelGrid::PixelGrid(QPainter& painter) : painter_(painter), toPixels_(painter.deviceTransform()) {
    painter_.save();
    painter_.setTransform(toPixels_.inverted(), true);
}

PixelGrid::~PixelGrid() {
    painter_.restore();
}

QPoint PixelGrid::point(const QPointF& place) const {
    return toPixels_.map(place).toPoint();
}

int PixelGrid::length(double width) const {
    return qRound(width * toPixels_.m11());
}

QRect PixelGrid::inside(const QRectF& area) const {
    const QRectF pixels = toPixels_.mapRect(area);
    return {QPoint(static_cast<int>(std::ceil(pixels.left())), static_cast<int>(std::ceil(pixels.top()))),
            QPoint(static_cast<int>(std::floor(pixels.right())) - 1,
                   static_cast<int>(std::floor(pixels.bottom())) - 1)};
}

void PixelGrid::line(QRect pixels, const QColor& colour, Qt::PenStyle style) const {
    if (style == Qt::SolidLine)
        return painter_.fillRect(pixels, colour);
    const bool across = pixels.width() > pixels.height();
    const int width = across ? pixels.height() : pixels.width();
    const int end = across ? pixels.right() : pixels.bottom();
    for (int at = across ? pixels.left() : pixels.top(); at <= end; at += (Dash + Gap) * width) {
        const int length = std::min(Dash * width, end - at + 1);
        painter_.fillRect(across ? QRect(at, pixels.top(), length, width)
                                 : QRect(pixels.left(), at, width, length),
                          colour);
    }
}

void PixelGrid::frame(const QRect& pixels, int width, const QColor& colour, Qt::PenStyle style) const {
    const int thick = std::max(1, static_cast<int>(width * toPixels_.m11()));
    line({pixels.left(), pixels.top(), pixels.width(), thick}, colour, style);
    line({pixels.left(), pixels.bottom() - thick + 1, pixels.width(), thick}, colour, style);
    line({pixels.left(), pixels.top(), thick, pixels.height()}, colour, style);
    line({pixels.right() - thick + 1, pixels.top(), thick, pixels.height()}, colour, style);
}

} // namespace zandor
