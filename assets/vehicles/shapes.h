// Outlines and the light on them, from above; what stands out is lit on its left side.
#pragma once

#include <QColor>
#include <QPainter>
#include <QPainterPath>

#include <initializer_list>

namespace art {

struct Corner {
    double x, y;
    double radius = 0;
};
// A closed outline with rounded corners.
QPainterPath profile(std::initializer_list<Corner> corners);
QPainterPath box(double left, double top, double right, double bottom, double radius = 0);
QPainterPath disc(double x, double y, double radius);

enum class Form { Flat, Wall, Barrel, Roof };
void fill(QPainter& painter, const QPainterPath& shape, const QColor& colour, Form form = Form::Flat);
// A dark line along the inside of the outline, one pixel wide.
void edge(QPainter& painter, const QPainterPath& shape, const QColor& colour);
void line(QPainter& painter, std::initializer_list<QPointF> points, const QColor& colour, double width = 1);

QColor withAlpha(QColor colour, int alpha);

} // namespace art
