#include "editor/windows/preview_view.h"

#include "editor/windows/picture_store.h"
#include "frame/windows/qt_text.h"
#include "frame/windows/theme.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace zandor {

namespace {
constexpr int WarningSize = 24; // pixels
} // namespace

PreviewView::PreviewView(QWidget* parent) : QWidget(parent) {
    setObjectName("picPREVIEW");
}

void PreviewView::show(PictureStore& pictures, const PictureRef& picture) {
    pictures.askAgain(); // the file may have changed
    picture_ =
        picture.found() ? pictures.image({picture.kind == PictureRef::Resource, picture.name}) : QImage();
    update();
}

void PreviewView::clear() {
    picture_ = {};
    warn({});
    update();
}

void PreviewView::warn(const QString& text) {
    setToolTip(plainTip(text));
    setAccessibleDescription(text);
    update();
}

// The background goes on in the picture's own, so that a narrow one doesn't stand in a box.
void PreviewView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), picture_.isNull() ? theme::Sky : picture_.pixelColor(0, 0));
    if (picture_.isNull())
        return;
    const double scale = std::min(double(height()) / picture_.height(), double(width()) / picture_.width());
    const QSizeF size = QSizeF(picture_.size()) * scale;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(QPointF((width() - size.width()) / 2, (height() - size.height()) / 2), size),
                      picture_);
    if (!toolTip().isEmpty())
        style()->standardIcon(QStyle::SP_MessageBoxWarning).paint(&painter, {4, 4, WarningSize, WarningSize});
}

} // namespace zandor
