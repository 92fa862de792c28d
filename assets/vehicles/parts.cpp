#include "parts.h"

#include <QLinearGradient>
#include <QRadialGradient>

#include <cmath>
#include <numbers>

namespace art {

namespace {

constexpr QColor Iron{38, 41, 47}, IronLight{92, 99, 109}, IronMid{60, 65, 73};
constexpr QColor Steel{168, 176, 186}, Bellows{46, 48, 54};
constexpr QColor GlassTop{34, 48, 63}, GlassBottom{84, 112, 136}, GlassShine{208, 230, 246, 120};

// Calls `draw` with the left edge of each piece of the row.
void eachOf(const Row& row, const std::function<void(double)>& draw) {
    const double gap = row.count > 1 ? (row.to - row.from - row.width) / (row.count - 1) : 0;
    for (int i = 0; i < row.count; ++i)
        draw(std::round(row.from + i * gap));
}

void drawGlass(QPainter& p, const QPainterPath& shape) {
    const QRectF area = shape.boundingRect();
    QLinearGradient glass(area.topLeft(), area.bottomLeft());
    glass.setColorAt(0, GlassTop);
    glass.setColorAt(1, GlassBottom);
    p.fillPath(shape, glass);
    QPainterPath shine;
    const double lean = area.height() * 0.45, wide = std::min(area.width() * 0.34, 4.0);
    const double left = area.left() + area.width() * 0.16;
    shine.addPolygon(QPolygonF({{left + lean, area.top()},
                                {left + lean + wide, area.top()},
                                {left + wide, area.bottom()},
                                {left, area.bottom()}}));
    p.fillPath(shine.intersected(shape), GlassShine);
}

void drawWheel(QPainter& p, double x, double radius) {
    const QPointF centre(x, RailTop - radius);
    p.fillPath(disc(centre.x(), centre.y(), radius), Iron);
    QRadialGradient face(centre - QPointF(radius, radius) * 0.3, radius * 1.4);
    face.setColorAt(0, Steel);
    face.setColorAt(1, IronMid);
    p.fillPath(disc(centre.x(), centre.y(), radius - 1.4), face);
    p.fillPath(disc(centre.x(), centre.y(), radius * 0.34), IronMid);
}

void drawAxleBox(QPainter& p, double x, double y) {
    fill(p, box(x - 2.5, y - 2.5, x + 2.5, y + 2.5, 0.8), IronLight);
    line(p, {{x - 2, y - 1.5}, {x + 2, y - 1.5}}, Steel.darker(110));
}

// Coils of a spring that stands on `bottom`.
void drawCoil(QPainter& p, double x, double top, double bottom) {
    fill(p, box(x - 2, top, x + 2, bottom), Iron);
    for (double y = top + 0.5; y < bottom; y += 2)
        line(p, {{x - 2, y}, {x + 2, y}}, IronLight);
}

Part row(const Row& pieces, std::function<void(QPainter&, double)> draw) {
    return [=](const Canvas& c) { eachOf(pieces, [&](double x) { draw(c.painter, x); }); };
}

std::vector<double> wheelPlaces(double wheelBase, int axles) {
    std::vector<double> places;
    for (int i = 0; i < axles; ++i)
        places.push_back(-wheelBase / 2 + i * wheelBase / (axles - 1));
    return places;
}

} // namespace

Part group(Parts parts) {
    return [parts = std::move(parts)](const Canvas& c) {
        for (const Part& part : parts)
            part(c);
    };
}

Part at(std::initializer_list<double> places, Part part) {
    return [places = std::vector<double>(places), part = std::move(part)](const Canvas& c) {
        for (const double x : places) {
            c.painter.save();
            c.painter.translate(x, 0);
            part(c);
            c.painter.restore();
        }
    };
}

Part both(Part part) {
    return group({part, atRear(part)});
}

Part atRear(Part part) {
    return [part = std::move(part)](const Canvas& c) {
        c.painter.save();
        c.painter.translate(c.length, 0);
        c.painter.scale(-1, 1);
        part(c);
        c.painter.restore();
    };
}

Part buffers() {
    return [](const Canvas& c) {
        line(c.painter, {{5, 69.5}, {0.5, 69.5}, {0.5, 73}, {2.5, 75}}, Iron, 1.4);
        fill(c.painter, box(1, BufferLine - 1.5, 6, BufferLine + 1.5), IronLight, Form::Barrel);
        fill(c.painter, box(4, BufferLine - 2.5, 7, BufferLine + 2.5), IronMid, Form::Barrel);
        fill(c.painter, box(0, BufferLine - 4, 2, BufferLine + 4, 1), Iron);
    };
}

Part knuckle() {
    return [](const Canvas& c) {
        fill(c.painter, box(3, 66, 9, 70), IronMid, Form::Barrel);
        fill(c.painter, profile({{0, 64.5, 1}, {5, 64, 1}, {5, 72, 1}, {0, 71.5, 1}}), Iron);
        line(c.painter, {{1.5, 65.5}, {4.5, 65.5}}, IronLight);
        line(c.painter, {{2.5, 72}, {2.5, 75}}, Iron, 1.5);
    };
}

Part drawBar() {
    return [](const Canvas& c) { fill(c.painter, box(0, 67, 8, 70), IronMid, Form::Barrel); };
}

Part shortCoupler() {
    return [](const Canvas& c) {
        fill(c.painter, box(1, 67.5, 8, 70), IronMid, Form::Barrel);
        fill(c.painter, box(0, 66, 2.5, 72, 1), Iron);
    };
}

Part gangway(double top) {
    return [top](const Canvas& c) {
        fill(c.painter, box(0, top, 5, 66), Bellows);
        for (const double x : {0.5, 2.5})
            line(c.painter, {{x, top}, {x, 66}}, withAlpha(Steel, 60));
    };
}

Part wheel(double radius) {
    return [radius](const Canvas& c) { drawWheel(c.painter, 0, radius); };
}

Part spokedWheel(double radius, const QColor& colour) {
    return [=](const Canvas& c) {
        QPainter& p = c.painter;
        const double y = RailTop - radius;
        p.fillPath(disc(0, y, radius - 1), withAlpha(Iron, 150));
        const int spokes = radius > 8 ? 12 : 8;
        for (int i = 0; i < spokes; ++i) {
            const double angle = 2 * std::numbers::pi * (i + 0.5) / spokes;
            const QPointF rim(std::cos(angle) * (radius - 1.5), y + std::sin(angle) * (radius - 1.5));
            line(p, {{0, y}, rim}, colour, 1);
        }
        p.setPen(QPen(colour, 1.4));
        p.setBrush(Qt::NoBrush);
        p.drawEllipse(QPointF(0, y), radius - 2, radius - 2);
        p.setPen(QPen(Iron, 1.6));
        p.drawEllipse(QPointF(0, y), radius - 0.8, radius - 0.8);
        p.setPen(QPen(withAlpha(Steel, 200), 0.8));
        p.drawArc(QRectF(-radius + 0.5, y - radius + 0.5, 2 * radius - 1, 2 * radius - 1), 100 * 16, 80 * 16);
        p.setPen(Qt::NoPen);
        p.fillPath(disc(0, y, radius * 0.24), colour.darker(120));
    };
}

Part bogie(double wheelBase, int axles) {
    return [=](const Canvas& c) {
        QPainter& p = c.painter;
        const double end = wheelBase / 2 + 7;
        const std::vector<double> places = wheelPlaces(wheelBase, axles);
        for (const double x : places)
            drawWheel(p, x, 5.75);
        for (std::size_t i = 1; i < places.size(); ++i)
            drawCoil(p, (places[i - 1] + places[i]) / 2, 73, 77);
        fill(p,
             profile(
                 {{-end, 69, 1}, {end, 69, 1}, {end, 73, 1}, {end - 3, 74}, {-end + 3, 74}, {-end, 73, 1}}),
             IronMid);
        line(p, {{-end + 1, 70.5}, {end - 1, 70.5}}, IronLight);
        for (const double x : places)
            drawAxleBox(p, x, RailTop - 5.75);
    };
}

Part plateBogie(double wheelBase) {
    return [=](const Canvas& c) {
        QPainter& p = c.painter;
        const double half = wheelBase / 2;
        for (const double x : {-half, half})
            drawWheel(p, x, 5.75);
        const QPainterPath plate = profile({{-half - 4, 69},
                                            {half + 4, 69},
                                            {half + 4, 76, 1},
                                            {half - 4, 76, 2},
                                            {half - 6, 73, 2},
                                            {-half + 6, 73, 2},
                                            {-half + 4, 76, 2},
                                            {-half - 4, 76, 1}});
        fill(p, plate, Iron);
        line(p, {{-half - 3, 69.5}, {half + 3, 69.5}}, IronLight);
        for (const double x : {-half, half})
            drawAxleBox(p, x, RailTop - 5.75);
    };
}

Part axle(double radius) {
    return [radius](const Canvas& c) {
        QPainter& p = c.painter;
        const double y = RailTop - radius;
        drawWheel(p, 0, radius);
        line(p, {{-5, 68}, {-2.5, y}}, Iron, 1.4);
        line(p, {{5, 68}, {2.5, y}}, Iron, 1.4);
        drawAxleBox(p, 0, y);
        QPainterPath spring(QPointF(-8, 68.5));
        spring.quadTo(0, 73.5, 8, 68.5);
        p.setPen(QPen(Iron, 1.6));
        p.setBrush(Qt::NoBrush);
        p.drawPath(spring);
        p.setPen(Qt::NoPen);
    };
}

Part rods(std::vector<double> wheels, double radius, double cylinder) {
    return [=](const Canvas& c) {
        QPainter& p = c.painter;
        const double y = RailTop - radius + 3;
        const double driven = wheels[wheels.size() / 2];
        line(p, {{wheels.front(), y}, {wheels.back(), y}}, Iron, 3.2);
        line(p, {{wheels.front(), y - 0.3}, {wheels.back(), y - 0.3}}, Steel, 1.8);
        line(p, {{cylinder, 69}, {cylinder + 12, 69}}, Steel, 1.2);
        line(p, {{cylinder + 10, 69}, {driven, y}}, Steel, 1.6);
        line(p, {{cylinder + 4, 65.5}, {driven - 3, 66.5}}, Steel.darker(130), 1);
        for (const double x : wheels)
            p.fillPath(disc(x, y, 1.5), Steel.lighter(115));
    };
}

Part solebar(double left, double right, double top) {
    return [=](const Canvas& c) {
        fill(c.painter, box(left, top, right, top + 4), IronMid);
        line(c.painter, {{left, top + 0.5}, {right, top + 0.5}}, IronLight);
        line(c.painter, {{left, top + 3.5}, {right, top + 3.5}}, Iron);
    };
}

Part crate(double left, double right, double top, double bottom) {
    return [=](const Canvas& c) {
        const QPainterPath shape = box(left, top, right, bottom, 1);
        fill(c.painter, shape, IronMid, Form::Wall);
        for (double x = left + 6; x < right - 3; x += 7)
            line(c.painter, {{std::floor(x) + 0.5, top + 1}, {std::floor(x) + 0.5, bottom - 1}}, Iron);
        edge(c.painter, shape, withAlpha(Iron, 180));
    };
}

Part tank(double left, double right, const QColor& colour) {
    return [=](const Canvas& c) { fill(c.painter, box(left, 69, right, 77, 3), colour, Form::Barrel); };
}

Part truss(double left, double right) {
    return [=](const Canvas& c) {
        const double third = (right - left) / 3;
        line(c.painter, {{left, 69}, {left + third, 75}, {right - third, 75}, {right, 69}}, Iron, 1.2);
        for (const double x : {left + third, right - third})
            line(c.painter, {{x, 69}, {x, 75}}, Iron, 1.2);
    };
}

Part steps(double x) {
    return [x](const Canvas& c) {
        fill(c.painter, box(x, 69, x + 6, 75), withAlpha(Iron, 120));
        for (const double y : {71.5, 74.5})
            line(c.painter, {{x - 0.5, y}, {x + 6.5, y}}, IronLight);
    };
}

Part solid(QPainterPath shape, const QColor& colour, Form form, std::vector<Band> bands) {
    return [=](const Canvas& c) {
        fill(c.painter, shape, colour, form);
        const QRectF area = shape.boundingRect();
        for (const Band& band : bands) {
            const QPainterPath part =
                box(area.left() - 1, band.top, area.right() + 1, band.bottom).intersected(shape);
            fill(c.painter, part, band.colour, band.bottom - band.top > 4 ? Form::Wall : Form::Flat);
        }
        edge(c.painter, shape, withAlpha(colour.darker(260), 170));
    };
}

Part roof(double left, double right, double top, double bottom, const QColor& colour) {
    const double bend = bottom - top;
    return solid(profile({{left, bottom}, {left, top, bend}, {right, top, bend}, {right, bottom}}), colour,
                 Form::Roof);
}

Part upright(double x, double top, double bottom, const QColor& colour, double width) {
    return stroke({{x, top}, {x, bottom}}, colour, width);
}

Part level(double y, double left, double right, const QColor& colour, double width) {
    return stroke({{left, y}, {right, y}}, colour, width);
}

Part stroke(std::initializer_list<QPointF> points, const QColor& colour, double width) {
    return [points = QList<QPointF>(points), colour, width](const Canvas& c) {
        c.painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
        c.painter.drawPolyline(QPolygonF(points));
        c.painter.setPen(Qt::NoPen);
    };
}

Part windows(Row pieces, double top, double bottom) {
    return row(pieces, [=](QPainter& p, double x) {
        fill(p, box(x - 1, top - 1, x + pieces.width + 1, bottom + 1, 2), withAlpha(Iron, 90));
        drawGlass(p, box(x, top, x + pieces.width, bottom, 1.2));
    });
}

Part pane(QPainterPath shape) {
    return [shape](const Canvas& c) { drawGlass(c.painter, shape); };
}

Part doors(Row pieces, double top, double bottom, const QColor& colour) {
    return row(pieces, [=](QPainter& p, double x) {
        const QPainterPath leaf = box(x, top, x + pieces.width, bottom, 1);
        fill(p, leaf, colour, Form::Wall);
        edge(p, leaf, withAlpha(colour.darker(240), 200));
        const double height = bottom - top;
        drawGlass(p, box(x + 2, top + 3, x + pieces.width - 2, top + height * 0.45, 1));
        line(p,
             {{x + pieces.width - 2.5, top + height * 0.58}, {x + pieces.width - 2.5, top + height * 0.72}},
             Steel);
    });
}

Part grilles(Row pieces, double top, double bottom, const QColor& colour) {
    return row(pieces, [=](QPainter& p, double x) {
        fill(p, box(x, top, x + pieces.width, bottom), colour.darker(170));
        for (double y = top + 1.5; y < bottom; y += 2)
            line(p, {{x + 1, y}, {x + pieces.width - 1, y}}, colour.lighter(120));
    });
}

Part ribs(Row pieces, double top, double bottom, const QColor& colour) {
    return row(pieces, [=](QPainter& p, double x) {
        fill(p, box(x, top, x + pieces.width, bottom), colour.lighter(118), Form::Wall);
        fill(p, box(x + pieces.width, top, x + pieces.width + 1, bottom), withAlpha(colour.darker(220), 150));
    });
}

Part lamp(double x, double y, const QColor& colour) {
    return [=](const Canvas& c) {
        c.painter.fillPath(disc(x, y, 2.4), Iron);
        c.painter.fillPath(disc(x, y, 1.6), colour);
    };
}

Part pantograph(double base, bool raised) {
    return [=](const Canvas& c) {
        QPainter& p = c.painter;
        const double head = raised ? base - 15 : base - 5.5, knee = raised ? base - 8 : base - 3.5;
        for (const double x : {-9.0, 7.0})
            fill(p, box(x, base - 2.5, x + 2.5, base), QColor(150, 84, 52));
        line(p, {{-11, base - 2.5}, {12, base - 2.5}}, Iron, 1.4);
        line(p, {{-6, base - 3}, {raised ? 9.0 : 12.0, knee}}, Iron, 1.7);
        line(p, {{raised ? 9.0 : 12.0, knee}, {-3, head}}, Iron, 1.3);
        line(p, {{-9, head + 2}, {-7, head}, {2, head}, {4, head + 2}}, Iron, 1.5);
        line(p, {{-7, head - 1}, {2, head - 1}}, IronLight);
    };
}

Part insulators(Row pieces, double base) {
    return row(pieces, [=](QPainter& p, double x) {
        fill(p, box(x, base - 4, x + pieces.width, base), QColor(150, 84, 52), Form::Barrel);
        fill(p, box(x - 0.5, base - 5, x + pieces.width + 0.5, base - 4), Iron);
    });
}

Part vents(Row pieces, double base) {
    return row(pieces, [=](QPainter& p, double x) {
        fill(p, box(x, base - 2.5, x + pieces.width, base + 1, 1), IronLight, Form::Roof);
    });
}

Part heap(double left, double right, double base, double height, const QColor& colour) {
    return [=](const Canvas& c) {
        const double width = right - left;
        QPainterPath shape(QPointF(left, base));
        shape.cubicTo(left + width * 0.12, base - height, left + width * 0.28, base - height * 1.1,
                      left + width * 0.4, base - height * 0.86);
        shape.cubicTo(left + width * 0.55, base - height * 1.2, left + width * 0.85, base - height * 0.95,
                      right, base);
        shape.closeSubpath();
        fill(c.painter, shape, colour, Form::Roof);
        // Lumps, each with its light side: the same ones at every drawing.
        for (int i = 0; i < int(width * height / 11); ++i) {
            const QPointF lump(left + 3 + std::fmod(i * 0.618034, 1) * (width - 6),
                               base - 1 - std::fmod(i * 0.754878, 1) * height);
            if (!shape.contains(lump + QPointF(0, -2)))
                continue;
            fill(c.painter, box(lump.x() - 1.5, lump.y() - 1, lump.x() + 1.5, lump.y() + 1, 1),
                 colour.darker(150));
            fill(c.painter, box(lump.x() - 1.5, lump.y() - 1.5, lump.x() + 0.5, lump.y() - 0.2, 0.6),
                 colour.lighter(150));
        }
    };
}

Part hazardStripes(QPainterPath shape) {
    return [shape](const Canvas& c) {
        const QRectF area = shape.boundingRect();
        fill(c.painter, shape, QColor(238, 190, 44));
        for (double x = area.left() - area.height(); x < area.right(); x += 8) {
            const QPainterPath stripe = profile({{x + area.height(), area.top()},
                                                 {x + area.height() + 4, area.top()},
                                                 {x + 4, area.bottom()},
                                                 {x, area.bottom()}});
            fill(c.painter, stripe.intersected(shape), Iron);
        }
    };
}

Part questionMark(double x, double top, double bottom, const QColor& colour) {
    return [=](const Canvas& c) {
        const double height = bottom - top, radius = height * 0.25;
        QPainterPath hook;
        hook.arcMoveTo(QRectF(x - radius, top, 2 * radius, 2 * radius), 170);
        hook.arcTo(QRectF(x - radius, top, 2 * radius, 2 * radius), 170, -215);
        hook.quadTo(x, top + height * 0.52, x, top + height * 0.70);
        c.painter.strokePath(hook, QPen(colour, height * 0.15, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
        c.painter.fillPath(disc(x, bottom - height * 0.07, height * 0.1), colour);
    };
}

} // namespace art
