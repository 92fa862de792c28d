#include "shapes.h"

#include <QLinearGradient>
#include <QPainterPathStroker>

#include <cmath>
#include <vector>

namespace art {

namespace {

// The point at `distance` from `from` towards `to`, at most half the way.
QPointF towards(const QPointF& from, const QPointF& to, double distance) {
    const QPointF way = to - from;
    const double length = std::hypot(way.x(), way.y());
    return length == 0 ? from : from + way * std::min(distance / length, 0.5);
}

struct Stop {
    double at;
    int lightness; // 100: the colour itself; more: nearer to white; less: nearer to black
};
struct Light {
    Form form;
    std::vector<Stop> stops; // from the top to the bottom
};
const Light Lights[] = {
    {Form::Flat, {{0, 100}, {1, 100}}},
    {Form::Wall, {{0, 128}, {0.10, 112}, {0.5, 100}, {0.86, 86}, {1, 72}}},
    {Form::Barrel, {{0, 76}, {0.16, 136}, {0.30, 126}, {0.62, 88}, {1, 52}}},
    {Form::Roof, {{0, 136}, {0.35, 112}, {1, 80}}},
};

QColor lit(const QColor& colour, int lightness) {
    const double towards = lightness > 100 ? 255 : 0, share = std::abs(lightness - 100) / 100.0;
    const auto mix = [&](int channel) { return int(std::lround(channel + (towards - channel) * share)); };
    return {mix(colour.red()), mix(colour.green()), mix(colour.blue()), colour.alpha()};
}

QLinearGradient lightOn(const QRectF& area, const QColor& colour, Form form) {
    QLinearGradient gradient(area.topLeft(), area.bottomLeft());
    for (const Light& light : Lights)
        if (light.form == form)
            for (const Stop& stop : light.stops)
                gradient.setColorAt(stop.at, lit(colour, stop.lightness));
    return gradient;
}

} // namespace

QPainterPath profile(std::initializer_list<Corner> corners) {
    const std::vector<Corner> all(corners);
    QPainterPath path;
    for (std::size_t i = 0; i < all.size(); ++i) {
        const Corner& here = all[i];
        const Corner& before = all[(i + all.size() - 1) % all.size()];
        const Corner& after = all[(i + 1) % all.size()];
        const QPointF point(here.x, here.y);
        const QPointF in = towards(point, {before.x, before.y}, here.radius);
        if (i == 0)
            path.moveTo(in);
        else
            path.lineTo(in);
        if (here.radius > 0)
            path.quadTo(point, towards(point, {after.x, after.y}, here.radius));
    }
    path.closeSubpath();
    return path;
}

QPainterPath box(double left, double top, double right, double bottom, double radius) {
    QPainterPath path;
    path.addRoundedRect(QRectF(QPointF(left, top), QPointF(right, bottom)), radius, radius);
    return path;
}

QPainterPath disc(double x, double y, double radius) {
    QPainterPath path;
    path.addEllipse(QPointF(x, y), radius, radius);
    return path;
}

void fill(QPainter& painter, const QPainterPath& shape, const QColor& colour, Form form) {
    if (form == Form::Flat)
        painter.fillPath(shape, colour);
    else
        painter.fillPath(shape, lightOn(shape.boundingRect(), colour, form));
}

void edge(QPainter& painter, const QPainterPath& shape, const QColor& colour) {
    QPainterPathStroker stroker;
    stroker.setWidth(2);
    stroker.setJoinStyle(Qt::MiterJoin);
    painter.fillPath(stroker.createStroke(shape).intersected(shape), colour);
}

void line(QPainter& painter, std::initializer_list<QPointF> points, const QColor& colour, double width) {
    painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.drawPolyline(QPolygonF(QList<QPointF>(points)));
    painter.setPen(Qt::NoPen);
}

QColor withAlpha(QColor colour, int alpha) {
    colour.setAlpha(alpha);
    return colour;
}

} // namespace art
