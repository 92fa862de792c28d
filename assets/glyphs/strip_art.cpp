#include "art.h"

#include <QPainter>
#include <QPainterPath>

namespace {

constexpr QColor Ink{31, 41, 55}, Accent{31, 95, 160}, Warning{208, 24, 24}, Bin{200, 30, 30};
constexpr QSize MarkSize{18, 18}, PointerSize{32, 32};

void disc(QPainter& p, const QColor& edge, const QColor& inside) {
    p.setPen(QPen(edge, 1));
    p.setBrush(inside);
    p.drawEllipse(QRectF(0.5, 0.5, MarkSize.width() - 1, MarkSize.height() - 1));
    p.setBrush(Qt::NoBrush);
}

void chain(QPainter& p) {
    p.drawEllipse(QRectF(2.6, 6, 7.5, 6));
    p.drawEllipse(QRectF(8, 6, 7.5, 6));
}
void bar(QPainter& p) {
    p.drawLine(QPointF(4, 9), QPointF(14, 9));
    p.drawLine(QPointF(4, 6), QPointF(4, 12));
    p.drawLine(QPointF(14, 6), QPointF(14, 12));
}
void knuckles(QPainter& p) {
    p.drawArc(QRectF(3.5, 4, 8, 8), 60 * 16, 210 * 16);
    p.drawArc(QRectF(6.5, 6, 8, 8), 240 * 16, 210 * 16);
}
void drop(QPainter& p) {
    QPainterPath path;
    path.moveTo(9, 3.4);
    path.cubicTo(14, 9, 13.6, 14, 9, 14);
    path.cubicTo(4.4, 14, 4, 9, 9, 3.4);
    p.drawPath(path);
}

Drawing coupled(void (*kind)(QPainter&)) {
    return [kind](QPainter& p) {
        disc(p, Ink, Qt::white);
        p.setPen(QPen(Accent, 1.8, Qt::SolidLine, Qt::RoundCap));
        kind(p);
    };
}

void misfit(QPainter& p) {
    disc(p, Qt::white, Warning);
    p.setPen(QPen(Qt::white, 2.2, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(5.5, 5.5), QPointF(12.5, 12.5));
    p.drawLine(QPointF(12.5, 5.5), QPointF(5.5, 12.5));
}

void bin(QPainter& p) {
    p.setPen(QPen(Qt::white, 1.2));
    p.setBrush(Bin);
    p.drawRoundedRect(QRectF(8, 12, 16, 17), 2, 2);
    p.drawRoundedRect(QRectF(6, 8, 20, 3.5), 1, 1);
    p.drawRoundedRect(QRectF(13, 4.5, 6, 3), 1, 1);
    p.drawLine(QPointF(13, 15), QPointF(13, 26));
    p.drawLine(QPointF(19, 15), QPointF(19, 26));
}

} // namespace

std::vector<Glyph> stripGlyphs() {
    return {
        {"imgAUTO", MarkSize, coupled(knuckles)}, {"imgBAR", MarkSize, coupled(bar)},
        {"imgCHAIN", MarkSize, coupled(chain)},   {"imgHYDRO", MarkSize, coupled(drop)},
        {"imgNO_COMPATIBLE", MarkSize, misfit},   {"discard", PointerSize, bin},
    };
}
