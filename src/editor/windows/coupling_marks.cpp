#include "editor/windows/coupling_marks.h"

#include "frame/windows/theme.h"

#include <QPainter>
#include <QPainterPath>

namespace zandor {

namespace {

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
