#include "editor/windows/vehicle_art.h"

#include "frame/windows/theme.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace zandor {

namespace {

// All in a box of ArtWidth x ArtHeight, front on the left, the rail at 86.
constexpr double Rail = 86;
constexpr QColor Metal{44, 50, 60}, Glass{214, 236, 252}, RailColour{92, 84, 78};

void wheels(QPainter& p, std::initializer_list<double> centres, double radius) {
    p.setPen(QPen(Metal, 2));
    p.setBrush(QColor(122, 130, 142));
    for (const double x : centres)
        p.drawEllipse(QPointF(x, Rail - radius - 1), radius, radius);
    p.setPen(Qt::NoPen);
}

void underframe(QPainter& p, double left, double right) {
    p.fillRect(QRectF(left, 71, right - left, 4), Metal);
    p.fillRect(QRectF(left - 3, 69, 4, 4), Metal);
    p.fillRect(QRectF(right - 1, 69, 4, 4), Metal);
}

void windows(QPainter& p, double from, double to, double step, double top, QSizeF size) {
    p.setBrush(Glass);
    for (double x = from; x + size.width() <= to; x += step)
        p.drawRoundedRect(QRectF(QPointF(x, top), size), 1, 1);
}

// A body with a slope at either end.
void slopedBody(QPainter& p, const QColor& colour, const QRectF& box, double frontSlope, double rearSlope) {
    QPainterPath path;
    path.moveTo(box.left(), box.bottom());
    path.lineTo(box.left(), box.top() + box.height() * 0.45);
    path.quadTo(box.left() + 1, box.top(), box.left() + frontSlope, box.top());
    path.lineTo(box.right() - rearSlope, box.top());
    path.quadTo(box.right() - 1, box.top(), box.right(), box.top() + box.height() * 0.45);
    path.lineTo(box.right(), box.bottom());
    path.closeSubpath();
    p.setBrush(colour);
    p.drawPath(path);
}

void pantograph(QPainter& p, double x) {
    p.setPen(QPen(Metal, 1.4));
    p.drawPolyline(QPolygonF({{x, 33}, {x + 8, 27}, {x + 1, 22}}));
    p.drawLine(QPointF(x - 5, 22), QPointF(x + 8, 22));
    p.setPen(Qt::NoPen);
}

void electric(QPainter& p) {
    const QColor blue(30, 78, 140);
    underframe(p, 5, 116);
    slopedBody(p, blue, {4, 33, 113, 38}, 14, 14);
    p.fillRect(QRectF(4, 66, 113, 3), QColor(230, 235, 240));
    windows(p, 9, 22, 20, 38, {11, 9});
    windows(p, 101, 114, 20, 38, {11, 9});
    windows(p, 34, 92, 13, 39, {8, 5});
    pantograph(p, 27);
    pantograph(p, 90);
    wheels(p, {18, 34, 87, 103}, 5.5);
}

void diesel(QPainter& p) {
    const QColor red(146, 43, 38);
    underframe(p, 5, 116);
    slopedBody(p, red, {4, 40, 113, 31}, 8, 8);
    slopedBody(p, red, {10, 29, 32, 30}, 5, 3);
    p.fillRect(QRectF(4, 66, 113, 3), QColor(244, 190, 70));
    windows(p, 14, 40, 13, 33, {10, 9});
    p.fillRect(QRectF(70, 34, 8, 6), Metal);
    p.setBrush(QColor(116, 30, 27));
    for (double x = 50; x < 108; x += 8)
        p.drawRect(QRectF(x, 44, 4, 5));
    wheels(p, {18, 34, 87, 103}, 5.5);
}

void steam(QPainter& p) {
    const QColor black(38, 42, 50);
    p.setBrush(black);
    p.drawRect(QRectF(14, 27, 9, 16));
    p.drawRect(QRectF(12, 25, 13, 4));
    p.drawEllipse(QRectF(45, 34, 16, 16));
    p.drawRoundedRect(QRectF(8, 42, 82, 28), 5, 5);
    p.drawRect(QRectF(82, 33, 33, 38));
    p.drawRoundedRect(QRectF(79, 29, 38, 5), 2, 2);
    p.fillRect(QRectF(30, 42, 2, 28), QColor(190, 150, 60));
    p.fillRect(QRectF(66, 42, 2, 28), QColor(190, 150, 60));
    windows(p, 90, 110, 20, 38, {14, 11});
    underframe(p, 6, 116);
    wheels(p, {14}, 4.5);
    wheels(p, {36, 56, 76}, 8.5);
    wheels(p, {102}, 4.5);
    p.setPen(QPen(QColor(196, 202, 210), 2));
    p.drawLine(QPointF(36, Rail - 9), QPointF(76, Rail - 9));
    p.setPen(Qt::NoPen);
}

void carriage(QPainter& p) {
    underframe(p, 4, 117);
    slopedBody(p, QColor(28, 92, 72), {3, 32, 115, 39}, 5, 5);
    p.fillRect(QRectF(3, 50, 115, 1.5), QColor(222, 206, 150));
    windows(p, 20, 102, 12, 38, {9, 9});
    p.setBrush(QColor(20, 70, 54));
    p.drawRect(QRectF(7, 37, 9, 34));
    p.drawRect(QRectF(105, 37, 9, 34));
    wheels(p, {18, 33, 88, 103}, 5.5);
}

void freight(QPainter& p) {
    underframe(p, 5, 116);
    p.setBrush(QColor(110, 78, 50));
    p.drawRect(QRectF(5, 34, 111, 37));
    p.setBrush(QColor(92, 64, 40));
    for (double x = 12; x < 112; x += 12)
        p.drawRect(QRectF(x, 34, 2, 37));
    p.fillRect(QRectF(4, 32, 113, 3), Metal);
    wheels(p, {22, 99}, 6);
}

void tender(QPainter& p) {
    QPainterPath coal;
    coal.moveTo(14, 48);
    coal.cubicTo(24, 32, 44, 30, 58, 34);
    coal.cubicTo(78, 30, 96, 36, 106, 48);
    p.setBrush(QColor(24, 26, 30));
    p.drawPath(coal);
    p.setBrush(QColor(52, 58, 68));
    p.drawRoundedRect(QRectF(6, 45, 109, 26), 2, 2);
    underframe(p, 6, 115);
    wheels(p, {22, 46, 75, 99}, 5.5);
}

void otherStock(QPainter& p) {
    underframe(p, 5, 116);
    p.setBrush(QColor(86, 98, 114));
    p.drawRoundedRect(QRectF(5, 34, 111, 37), 5, 5);
    wheels(p, {22, 99}, 6);
}

constexpr void (*Drawings[])(QPainter&) = {electric, diesel, steam, carriage, freight, tender};

void paintInBox(QPainter& painter, const QRectF& area, bool mirrored, void (*draw)(QPainter&)) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.translate(mirrored ? area.right() : area.left(), area.top());
    painter.scale((mirrored ? -1 : 1) * area.width() / ArtWidth, area.height() / ArtHeight);
    draw(painter);
    painter.restore();
}

void (*drawingOf(int stockClass))(QPainter&) {
    const bool known = stockClass >= 0 && stockClass < static_cast<int>(std::size(Drawings));
    return known ? Drawings[stockClass] : otherStock;
}

void paintRail(QPainter& painter, const QRectF& area) {
    const double scale = area.height() / ArtHeight;
    painter.fillRect(QRectF(area.left(), area.top() + Rail * scale, area.width(), 1.6 * scale), RailColour);
}

void chainMark(QPainter& p) {
    p.drawEllipse(QRectF(2.6, 6, 7.5, 6));
    p.drawEllipse(QRectF(8, 6, 7.5, 6));
}
void barMark(QPainter& p) {
    p.drawLine(QPointF(4, 9), QPointF(14, 9));
    p.drawLine(QPointF(4, 6), QPointF(4, 12));
    p.drawLine(QPointF(14, 6), QPointF(14, 12));
}
void autoMark(QPainter& p) {
    p.drawArc(QRectF(3.5, 4, 8, 8), 60 * 16, 210 * 16);
    p.drawArc(QRectF(6.5, 6, 8, 8), 240 * 16, 210 * 16);
}
void hydroMark(QPainter& p) {
    QPainterPath drop;
    drop.moveTo(9, 3.4);
    drop.cubicTo(14, 9, 13.6, 14, 9, 14);
    drop.cubicTo(4.4, 14, 4, 9, 9, 3.4);
    p.drawPath(drop);
}

struct MarkRow {
    std::string_view kind;
    void (*draw)(QPainter&);
};
constexpr MarkRow Marks[] = {
    {"AUTO", autoMark}, {"BAR", barMark}, {"CHAIN", chainMark}, {"HYDRO", hydroMark}};

} // namespace

void paintVehicleArt(QPainter& painter, const QRectF& area, int stockClass, bool mirrored) {
    painter.fillRect(area, theme::Sky);
    paintRail(painter, area);
    paintInBox(painter, area, mirrored, drawingOf(stockClass));
}

void paintMissingArt(QPainter& painter, const QRectF& area) {
    painter.fillRect(area, theme::Sky);
    paintRail(painter, area);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(120, 40, 40), 1.5, Qt::DashLine));
    painter.setBrush(QColor(60, 66, 78));
    painter.drawRoundedRect(area.adjusted(5, area.height() * 0.38, -5, -area.height() * 0.34), 5, 5);
    painter.restore();
}

QPixmap dragPixmap(int stockClass, double pixelRatio) {
    const QSize size(ArtWidth / 2, ArtHeight / 2);
    QPixmap picture(size * pixelRatio);
    picture.setDevicePixelRatio(pixelRatio);
    QPainter painter(&picture);
    paintVehicleArt(painter, QRectF(QPointF(), QSizeF(size)), stockClass, false);
    return picture;
}

void paintCouplingMark(QPainter& painter, const QPointF& topLeft, std::string_view kind) {
    for (const MarkRow& row : Marks) {
        if (row.kind != kind)
            continue;
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(topLeft);
        painter.setPen(QPen(theme::Ink, 1));
        painter.setBrush(Qt::white);
        painter.drawEllipse(QRectF(0.5, 0.5, MarkSize - 1, MarkSize - 1));
        painter.setPen(QPen(theme::Accent, 1.8, Qt::SolidLine, Qt::RoundCap));
        painter.setBrush(Qt::NoBrush);
        row.draw(painter);
        painter.restore();
    }
}

void paintBadCouplingMark(QPainter& painter, const QPointF& topLeft) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(topLeft);
    painter.setPen(QPen(Qt::white, 1));
    painter.setBrush(QColor(208, 24, 24));
    painter.drawEllipse(QRectF(0.5, 0.5, MarkSize - 1, MarkSize - 1));
    painter.setPen(QPen(Qt::white, 2.2, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(5.5, 5.5), QPointF(12.5, 12.5));
    painter.drawLine(QPointF(12.5, 5.5), QPointF(5.5, 12.5));
    painter.restore();
}

} // namespace zandor
