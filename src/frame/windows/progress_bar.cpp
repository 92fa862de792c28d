#include "frame/windows/progress_bar.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace zandor {

namespace {
constexpr int Steps = 1000; // what an assistive program is told
constexpr QColor Cyan{0, 255, 255}, Back{8, 22, 43}, Frame{120, 170, 215};

QPalette colours() {
    QPalette palette;
    palette.setColor(QPalette::Base, Back);
    palette.setColor(QPalette::Text, Cyan);
    palette.setColor(QPalette::Highlight, Cyan);
    palette.setColor(QPalette::HighlightedText, Back);
    palette.setColor(QPalette::Mid, Frame);
    return palette;
}
} // namespace

ProgressBar::ProgressBar(QWidget* parent) : QProgressBar(parent) {
    setObjectName("pctPROGRESS");
    setPalette(colours());
    setRange(0, Steps);
    setValue(0);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize ProgressBar::sizeHint() const {
    return {fontMetrics().averageCharWidth() * 60, fontMetrics().height() * 3 / 2 + 2};
}

void ProgressBar::setStep(int lower, int upper, int current, const QString& text) {
    share_ = current == lower || upper <= 0 ? 0 : std::clamp(double(current) / upper, 0.0, 1.0);
    text_ = text;
    setValue(static_cast<int>(share_ * Steps));
    update();
}

void ProgressBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    const double round = std::min(6.0, height() / 4.0);
    QPainterPath shape;
    shape.addRoundedRect(frame, round, round);
    const QString shown =
        isTextVisible() ? fontMetrics().elidedText(text_, Qt::ElideMiddle, width() - 16) : QString();
    painter.fillPath(shape, palette().color(QPalette::Base));
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(rect(), Qt::AlignCenter, shown);

    painter.save();
    painter.setClipRect(QRectF(0, 0, width() * share_, height()));
    painter.fillPath(shape, palette().color(QPalette::Highlight));
    painter.setPen(palette().color(QPalette::HighlightedText));
    painter.drawText(rect(), Qt::AlignCenter, shown);
    painter.restore();

    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(shape);
}

} // namespace zandor
