#include "frame/windows/elided_label.h"

#include "frame/windows/qt_text.h"

#include <QPainter>

namespace zandor {

ElidedLabel::ElidedLabel(QWidget* parent, Qt::TextElideMode mode) : QLabel(parent), mode_(mode) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize ElidedLabel::minimumSizeHint() const {
    return {0, fontMetrics().height() + 2};
}

QSize ElidedLabel::sizeHint() const {
    return {fontMetrics().horizontalAdvance(text()), fontMetrics().height() + 2};
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QString whole = text().trimmed();
    const QString shown = fontMetrics().elidedText(whole, mode_, width());
    if (const QString tip = shown == whole ? QString() : plainTip(whole); toolTip() != tip)
        setToolTip(tip);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect(), static_cast<int>(alignment()), shown);
}

} // namespace zandor
