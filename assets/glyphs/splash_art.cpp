#include "art.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr QColor NightTop{13, 33, 62}, NightBottom{30, 84, 140};
constexpr QColor Silhouette{9, 24, 46}, Lit{255, 214, 120, 210}, Rail{190, 205, 222};
constexpr int NoseAt = 120, RailY = 208;

void drawBodies(QPainter& p) {
    p.setPen(Qt::NoPen);
    p.setBrush(Silhouette);
    QPainterPath nose;
    nose.moveTo(NoseAt, RailY - 8);
    nose.quadTo(NoseAt + 6, RailY - 34, NoseAt + 44, RailY - 40);
    nose.lineTo(NoseAt + 140, RailY - 40);
    nose.lineTo(NoseAt + 140, RailY - 8);
    nose.closeSubpath();
    p.drawPath(nose);
    for (int car = NoseAt + 144; car < SplashSize.width(); car += 118)
        p.drawRoundedRect(car, RailY - 40, 114, 32, 3, 3);
    for (int wheel = NoseAt + 22; wheel < SplashSize.width(); wheel += 29)
        p.drawEllipse(QPoint(wheel, RailY - 6), 6, 6);
}

void drawWindows(QPainter& p) {
    p.setBrush(Lit);
    for (int window = NoseAt + 58; window < SplashSize.width(); window += 16)
        if ((window - NoseAt) % 118 > 24)
            p.drawRect(window, RailY - 33, 9, 8);
}

} // namespace

void drawSplash(QPainter& p) {
    QLinearGradient sky(0, 0, 0, SplashSize.height());
    sky.setColorAt(0, NightTop);
    sky.setColorAt(1, NightBottom);
    p.fillRect(QRect(QPoint(), SplashSize), sky);
    drawBodies(p);
    drawWindows(p);
    p.fillRect(0, RailY, SplashSize.width(), 3, Rail);
}
