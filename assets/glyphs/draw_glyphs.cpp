// Draws the pictures of lists, menus, the strip, the splash and the desktop: draw_glyphs <folder>. Each is
// saved once for a plain screen and once ("@2x") for one of double resolution, the splash for the latter
// alone.
#include "art.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <cstdio>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr QColor Air{0, 70, 200}, Vacuum{200, 30, 30}, Electronic{225, 165, 0}, Steel{70, 80, 95};
constexpr QColor Paper{255, 255, 255}, Ink{31, 41, 55}, Accent{31, 95, 160};

void stroke(QPainter& p, const QColor& colour, double width) {
    p.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
}

void fill(QPainter& p, const QColor& colour) {
    p.setPen(Qt::NoPen);
    p.setBrush(colour);
}

// A white disc or plate behind a mark keeps it in sight on any list colour.
void plate(QPainter& p) {
    p.setPen(QPen(Steel, 0.8));
    p.setBrush(Paper);
    p.drawRoundedRect(QRectF(0.5, 0.5, 15, 15), 3, 3);
}

// ---- brakes: a pipe is a bar; a vehicle that only passes the air on has a hollow one

Drawing pipes(const QColor& colour, int count, bool hollow) {
    return [=](QPainter& p) {
        plate(p);
        for (int i = 0; i < count; ++i) {
            const double top = count == 1 ? 6.5 : 4 + 5 * i;
            p.setPen(hollow ? QPen(colour, 1.3) : QPen(Qt::NoPen));
            p.setBrush(hollow ? Paper : colour);
            p.drawRoundedRect(QRectF(2.5, top, 11, 3), 1, 1);
        }
    };
}

Drawing flash(const QColor& colour, const QColor& pipe) {
    return [=](QPainter& p) {
        pipes(pipe, 2, false)(p);
        fill(p, colour);
        p.setPen(QPen(Ink, 0.6));
        p.drawPolygon(QPolygonF({{9.5, 1.5}, {4.5, 9}, {7.5, 9}, {6, 14.5}, {11.5, 6.5}, {8.3, 6.5}}));
    };
}

// ---- couplings

void chain(QPainter& p) {
    stroke(p, Accent, 1.7);
    p.drawEllipse(QRectF(1.8, 5, 7.2, 6));
    p.drawEllipse(QRectF(7, 5, 7.2, 6));
}
void bar(QPainter& p) {
    stroke(p, QColor(150, 70, 20), 2);
    p.drawLine(QPointF(3.2, 8), QPointF(12.8, 8));
    p.drawLine(QPointF(3.2, 4.5), QPointF(3.2, 11.5));
    p.drawLine(QPointF(12.8, 4.5), QPointF(12.8, 11.5));
}
void knuckle(QPainter& p) {
    stroke(p, QColor(20, 120, 60), 2);
    p.drawArc(QRectF(2.5, 3, 7.5, 7.5), 60 * 16, 215 * 16);
    p.drawArc(QRectF(6, 5.5, 7.5, 7.5), 240 * 16, 215 * 16);
}
void drop(QPainter& p) {
    QPainterPath path({8, 2.5});
    path.cubicTo(12.8, 8, 12.6, 13.3, 8, 13.3);
    path.cubicTo(3.4, 13.3, 3.2, 8, 8, 2.5);
    p.setPen(QPen(Ink, 0.8));
    p.setBrush(QColor(90, 60, 170));
    p.drawPath(path);
}

using Mark = void (*)(QPainter&);

// The front's mark left, the rear's right.
Drawing coupling(Mark front, Mark rear = nullptr) {
    return [=](QPainter& p) {
        plate(p);
        front(p);
        if (!rear)
            return;
        p.translate(17, 0);
        plate(p);
        rear(p);
    };
}

struct CouplingRow {
    int number;
    Mark front, rear;
};
constexpr CouplingRow Couplings[] = {
    {10, knuckle, nullptr}, {11, bar, nullptr},  {12, chain, nullptr}, {13, drop, nullptr},
    {14, chain, bar},       {15, bar, knuckle},  {16, chain, knuckle}, {17, drop, knuckle},
    {18, drop, bar},        {19, drop, chain},   {23, bar, chain},     {24, knuckle, bar},
    {25, knuckle, chain},   {26, knuckle, drop}, {27, bar, drop},      {28, chain, drop},
};

// ---- the rest of the lists

void cab(QPainter& p) {
    p.setPen(QPen(Paper, 1));
    p.setBrush(Accent);
    p.drawRoundedRect(QRectF(1.5, 1.5, 13, 12), 3.5, 3.5);
    fill(p, QColor(210, 235, 255));
    p.drawRect(QRectF(3.8, 4, 3.6, 3.2));
    p.drawRect(QRectF(8.6, 4, 3.6, 3.2));
    fill(p, QColor(255, 220, 120));
    p.drawEllipse(QPointF(5, 10.4), 1.2, 1.2);
    p.drawEllipse(QPointF(11, 10.4), 1.2, 1.2);
}
void noCab(QPainter& p) {
    p.setPen(QPen(QColor(110, 120, 135), 1.2));
    p.setBrush(QColor(222, 228, 236));
    p.drawRoundedRect(QRectF(1.5, 4.5, 13, 6), 1.5, 1.5);
    fill(p, Steel);
    p.drawEllipse(QPointF(4.5, 12), 1.7, 1.7);
    p.drawEllipse(QPointF(11.5, 12), 1.7, 1.7);
}
void inService(QPainter& p) {
    plate(p);
    stroke(p, QColor(20, 120, 60), 2.2);
    p.drawPolyline(QPolygonF({{3.8, 8.4}, {6.8, 11.4}, {12.3, 4.8}}));
}
void notInService(QPainter& p) {
    plate(p);
    stroke(p, QColor(150, 158, 170), 2);
    p.drawLine(QPointF(4.5, 8), QPointF(11.5, 8));
}

// ---- flags, 20 x 14 units

Drawing stripes(std::vector<QColor> colours, bool upright) {
    return [=](QPainter& p) {
        const double count = double(colours.size());
        for (std::size_t i = 0; i < colours.size(); ++i)
            p.fillRect(upright ? QRectF(20 / count * double(i), 0, 20 / count, 14)
                               : QRectF(0, 14 / count * double(i), 20, 14 / count),
                       colours[i]);
        stroke(p, Steel, 0.8);
        p.drawRect(QRectF(0.4, 0.4, 19.2, 13.2));
    };
}
void unionFlag(QPainter& p) {
    p.fillRect(QRectF(0, 0, 20, 14), QColor(1, 33, 105));
    for (const auto& [colour, width] : {std::pair{Paper, 3.0}, {QColor(200, 16, 46), 1.2}}) {
        p.setPen(QPen(colour, width, Qt::SolidLine, Qt::FlatCap));
        p.drawLine(QPointF(0, 0), QPointF(20, 14));
        p.drawLine(QPointF(20, 0), QPointF(0, 14));
    }
    for (const auto& [colour, width] : {std::pair{Paper, 4.6}, {QColor(200, 16, 46), 2.6}}) {
        p.setPen(QPen(colour, width, Qt::SolidLine, Qt::FlatCap));
        p.drawLine(QPointF(10, 0), QPointF(10, 14));
        p.drawLine(QPointF(0, 7), QPointF(20, 7));
    }
    stroke(p, Steel, 0.8);
    p.drawRect(QRectF(0.4, 0.4, 19.2, 13.2));
}

// ---- the program's own: the nose of an engine on the rails

void program(QPainter& p) {
    QLinearGradient sky(0, 0, 0, 16);
    sky.setColorAt(0, QColor(116, 178, 230));
    sky.setColorAt(1, QColor(190, 222, 246));
    p.setPen(Qt::NoPen);
    p.setBrush(sky);
    p.drawRoundedRect(QRectF(0, 0, 16, 16), 3.2, 3.2);
    fill(p, QColor(92, 84, 78));
    p.drawPolygon(QPolygonF({{3, 15.4}, {5, 12}, {6, 12}, {4.6, 15.4}}));
    p.drawPolygon(QPolygonF({{13, 15.4}, {11, 12}, {10, 12}, {11.4, 15.4}}));
    fill(p, QColor(31, 79, 140));
    p.drawRoundedRect(QRectF(3.4, 2, 9.2, 10.6), 2.6, 2.6);
    fill(p, QColor(242, 236, 214));
    p.drawRect(QRectF(3.4, 8.2, 9.2, 1.5));
    fill(p, QColor(215, 238, 255));
    p.drawRoundedRect(QRectF(4.6, 3.6, 3, 3.4), 0.6, 0.6);
    p.drawRoundedRect(QRectF(8.4, 3.6, 3, 3.4), 0.6, 0.6);
    fill(p, QColor(255, 214, 90));
    p.drawEllipse(QPointF(5.4, 10.9), 0.95, 0.95);
    p.drawEllipse(QPointF(10.6, 10.9), 0.95, 0.95);
}
void consistFile(QPainter& p) {
    p.setPen(QPen(Steel, 0.7));
    p.setBrush(Paper);
    p.drawPolygon(QPolygonF({{3, 0.8}, {10, 0.8}, {13, 3.8}, {13, 15.2}, {3, 15.2}}));
    p.translate(4.2, 5.2);
    p.scale(0.48, 0.48);
    program(p);
}

std::vector<Glyph> glyphs() {
    const QSize small(16, 16), pair(33, 16), flag(20, 14);
    std::vector<Glyph> all{
        {"list-2", small, pipes(Air, 1, false)},
        {"list-3", small, pipes(Air, 2, false)},
        {"list-4", small, pipes(Vacuum, 1, false)},
        {"list-5", small, pipes(Vacuum, 2, false)},
        {"list-6", small, flash(QColor(255, 240, 120), Air)},
        {"list-7", small, pipes(Air, 1, true)},
        {"list-8", small, pipes(Vacuum, 1, true)},
        {"list-22", small, flash(QColor(255, 240, 120), Electronic)},
        {"list-20", small, cab},
        {"list-21", small, noCab},
        {"ROUTE_YES", small, inService},
        {"ROUTE_NO", small, notInService},
        {"flag-1", flag, stripes({{0, 38, 84}, Paper, {206, 17, 38}}, true)},
        {"flag-2", flag, unionFlag},
        {"flag-3", flag, stripes({{0, 0, 0}, {221, 0, 0}, {255, 206, 0}}, false)},
        {"flag-4", flag, stripes({{0, 146, 70}, Paper, {206, 43, 55}}, true)},
        {"flag-5", flag, stripes({{170, 21, 27}, {241, 191, 0}, {241, 191, 0}, {170, 21, 27}}, false)},
        {"flag-6", flag, stripes({{174, 28, 40}, Paper, {33, 70, 139}}, false)},
    };
    for (const CouplingRow& row : Couplings)
        all.push_back(
            {"list-" + std::to_string(row.number), row.rear ? pair : small, coupling(row.front, row.rear)});
    for (Glyph& glyph : stripGlyphs())
        all.push_back(std::move(glyph));
    return all;
}

bool save(const Drawing& draw, QSize size, double scale, const QString& file) {
    QImage picture(size * scale, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    draw(painter);
    painter.end();
    if (QDir().mkpath(QFileInfo(file).path()) && picture.save(file, "PNG"))
        return true;
    std::fprintf(stderr, "Can't write %s\n", qPrintable(file));
    return false;
}

bool saveDesktopIcons(const QDir& folder) {
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        const QString base = folder.filePath(QString("hicolor/%1x%1/").arg(size));
        if (!save(program, {16, 16}, size / 16.0, base + "apps/zandor.png") ||
            !save(consistFile, {16, 16}, size / 16.0, base + "mimetypes/application-x-msts-consist.png"))
            return false;
    }
    return save(program, {16, 16}, 4, folder.filePath("art/zandor.png"));
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2)
        return 2;
    const QDir folder(argv[1]);
    for (const Glyph& glyph : glyphs()) {
        const QString base = folder.filePath("art/" + QString::fromStdString(glyph.name));
        if (!save(glyph.draw, glyph.size, 1, base + ".png") ||
            !save(glyph.draw, glyph.size, 2, base + "@2x.png"))
            return 1;
    }
    return save(drawSplash, SplashSize, 2, folder.filePath("art/splash.png")) && saveDesktopIcons(folder) ? 0
                                                                                                          : 1;
}
