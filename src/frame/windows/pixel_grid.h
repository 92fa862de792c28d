// Painting in whole device pixels. At 125 or 150 % a widget may begin in the middle of one, and a line that
// is drawn there is blurred, or cut off at the widget's edge.
#pragma once

#include <QRect>
#include <QTransform>

class QColor;
class QPainter;

namespace zandor {

// While it lives, the painter counts in device pixels. What it is asked is in the coordinates from before.
class PixelGrid {
  public:
    explicit PixelGrid(QPainter& painter);
    ~PixelGrid();
    PixelGrid(const PixelGrid&) = delete;
    PixelGrid& operator=(const PixelGrid&) = delete;

    QPoint point(const QPointF& place) const; // the nearest corner of a pixel
    int length(double width) const;           // rounded
    QRect inside(const QRectF& area) const;   // the pixels that lie in it whole
    // A frame within these pixels, solid or dashed. Its line is `width` wide, at least one pixel.
    void frame(const QRect& pixels, int width, const QColor& colour,
               Qt::PenStyle style = Qt::SolidLine) const;

  private:
    void line(QRect pixels, const QColor& colour, Qt::PenStyle style) const;

    QPainter& painter_;
    const QTransform toPixels_;
};

} // namespace zandor
