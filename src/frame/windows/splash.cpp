#include "frame/windows/splash.h"

#include "frame/windows/theme.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <memory>

namespace zandor {

namespace {

constexpr QSize SplashSize{480, 320};
constexpr QColor TitleColour{255, 255, 0};
constexpr QColor TitleShadow{192, 192, 0};
constexpr QColor Cyan{0, 255, 255};
constexpr QColor NightTop{13, 33, 62}, NightBottom{30, 84, 140};
constexpr QColor Silhouette{9, 24, 46};
constexpr int PaintCheckEvery = 20;    // ms
constexpr int LongestPaintWait = 1000; // ms: a window that no screen shows is never painted

// A train against the sky, from `x` to the right edge.
void paintTrain(QPainter& painter, int x, int railY, int width) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(Silhouette);
    QPainterPath nose;
    nose.moveTo(x, railY - 8);
    nose.quadTo(x + 6, railY - 34, x + 44, railY - 40);
    nose.lineTo(x + 140, railY - 40);
    nose.lineTo(x + 140, railY - 8);
    nose.closeSubpath();
    painter.drawPath(nose);
    for (int car = x + 144; car < width; car += 118)
        painter.drawRoundedRect(car, railY - 40, 114, 32, 3, 3);
    for (int wheel = x + 22; wheel < width; wheel += 29)
        painter.drawEllipse(QPoint(wheel, railY - 6), 6, 6);
    painter.setBrush(QColor(255, 214, 120, 210));
    for (int window = x + 58; window < width; window += 16)
        if ((window - x) % 118 > 24)
            painter.drawRect(window, railY - 33, 9, 8);
    painter.fillRect(0, railY, width, 3, QColor(190, 205, 222));
}

} // namespace

ProgressBar::ProgressBar(QWidget* parent) : QWidget(parent) {
    setObjectName("pctPROGRESS");
}

void ProgressBar::setStep(int lower, int upper, int current, const QString& text) {
    share_ = current == lower || upper <= 0 ? 0 : std::clamp(double(current) / upper, 0.0, 1.0);
    text_ = text;
    update();
}

void ProgressBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    QPainterPath shape;
    shape.addRoundedRect(frame, 6, 6);
    painter.fillPath(shape, QColor(8, 22, 43));
    const QString shown = painter.fontMetrics().elidedText(text_, Qt::ElideMiddle, width() - 16);
    painter.setPen(Cyan);
    painter.drawText(rect(), Qt::AlignCenter, shown);

    painter.save();
    painter.setClipRect(QRectF(0, 0, width() * share_, height()));
    painter.fillPath(shape, Cyan);
    painter.setPen(QColor(8, 22, 43));
    painter.drawText(rect(), Qt::AlignCenter, shown);
    painter.restore();

    painter.setPen(QColor(120, 170, 215));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(shape);
}

frmSplash::frmSplash(const QString& title, const QString& legal)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint), title_(title), bar_(new ProgressBar(this)) {
    setObjectName("frmSplash");
    setWindowTitle(title);
    setFixedSize(SplashSize);
    move(QGuiApplication::primaryScreen()->availableGeometry().center() - rect().center());
    setCursor(Qt::WaitCursor);
    const qsizetype cut = legal.indexOf(u'-');
    legal_ =
        cut < 0 ? QStringList{legal} : QStringList{legal.left(cut).trimmed(), legal.mid(cut + 1).trimmed()};
    bar_->setGeometry(28, SplashSize.height() - 46, SplashSize.width() - 56, 24);
}

void frmSplash::whenPainted(std::function<void()> action) {
    auto* timer = new QTimer(this);
    timer->setObjectName("Timer1");
    auto waited = std::make_shared<int>(0);
    connect(timer, &QTimer::timeout, this, [this, timer, waited, action = std::move(action)] {
        if (!painted_ && ++*waited * PaintCheckEvery < LongestPaintWait)
            return;
        timer->stop();
        action();
    });
    timer->start(PaintCheckEvery);
}

void frmSplash::showStep(int lower, int upper, int current, const QString& text) {
    bar_->setStep(lower, upper, current, text);
}

void frmSplash::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, height());
    sky.setColorAt(0, NightTop);
    sky.setColorAt(1, NightBottom);
    painter.fillRect(rect(), sky);
    paintTrain(painter, 120, 208, width());

    QFont font("Arial Black", 30);
    font.setWeight(QFont::Black);
    font.setItalic(true);
    painter.setFont(font);
    painter.setPen(TitleShadow.darker(180));
    painter.drawText(QPoint(32, 86), title_);
    painter.setPen(TitleColour);
    painter.drawText(QPoint(29, 83), title_);

    font = this->font();
    painter.setFont(font);
    painter.setPen(Cyan);
    const int line = painter.fontMetrics().lineSpacing();
    for (int i = 0; i < legal_.size(); ++i)
        painter.drawText(QRect(20, 226 + i * line, width() - 40, line), Qt::AlignCenter,
                         painter.fontMetrics().elidedText(legal_[i], Qt::ElideRight, width() - 40));
    painted_ = true;
}

void frmSplash::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        ended_ = true;
}

void frmSplash::closeEvent(QCloseEvent* event) {
    ended_ = true;
    QWidget::closeEvent(event);
}

} // namespace zandor
