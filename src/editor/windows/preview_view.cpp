#include "editor/windows/preview_view.h"

#include "editor/windows/vehicle_art.h"
#include "frame/windows/theme.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace zandor {

PreviewView::PreviewView(QWidget* parent) : QWidget(parent) {
    setObjectName("picPREVIEW");
}

void PreviewView::showClass(int stockClass) {
    stockClass_ = stockClass;
    update();
}

void PreviewView::clear() {
    stockClass_.reset();
    update();
}

void PreviewView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath frame;
    frame.addRoundedRect(rect(), 6, 6);
    painter.setClipPath(frame);
    painter.fillRect(rect(), theme::Sky);
    if (!stockClass_)
        return;
    const double scale = std::min(double(height()) / ArtHeight, double(width()) / ArtWidth);
    const QSizeF size(ArtWidth * scale, ArtHeight * scale);
    const QPointF corner((width() - size.width()) / 2, (height() - size.height()) / 2);
    paintVehicleArt(painter, QRectF(corner, size), *stockClass_, false);
}

} // namespace zandor
