#include "frame/windows/splash.h"

#include "frame/windows/first_paint.h"
#include "frame/windows/help.h"

#include <QGuiApplication>
#include <QImageReader>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>

namespace zandor {

namespace {

constexpr QSize SplashSize{480, 320};
constexpr QColor TitleColour{255, 255, 0};
constexpr QColor TitleShadow{192, 192, 0};
constexpr QColor Cyan{0, 255, 255};
constexpr double DotsAnInch = 96;
constexpr int TitleSize = 40; // dots
constexpr QPoint TitlePlace{29, 83};
constexpr int TitleMargin = 20;

// Sharp on its screen.
QPixmap loadArt(QSize size, qreal ratio) {
    QImageReader reader(":/art/splash.png");
    reader.setScaledSize(size * ratio);
    QPixmap art = QPixmap::fromImage(reader.read());
    art.setDevicePixelRatio(ratio);
    return art;
}

} // namespace

frmSplash::frmSplash(const QString& title, const QString& legal)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint), title_(title),
      scale_(std::max(1.0, logicalDpiX() / DotsAnInch)), bar_(new ProgressBar(this)) {
    setObjectName("frmSplash");
    setWindowTitle(title);
    setFixedSize(SplashSize * scale_);
    art_ = loadArt(size(), devicePixelRatioF());
    move(QGuiApplication::primaryScreen()->availableGeometry().center() - rect().center());
    setHelpContext(*this, helpContext::Main);
    setCursor(Qt::WaitCursor);
    const qsizetype cut = legal.indexOf(u'-');
    legal_ =
        cut < 0 ? QStringList{legal} : QStringList{legal.left(cut).trimmed(), legal.mid(cut + 1).trimmed()};
    bar_->setAccessibleName(title);
    const QRectF place(28, SplashSize.height() - 46, SplashSize.width() - 56, 24);
    bar_->setGeometry(QRectF(place.topLeft() * scale_, place.size() * scale_).toRect());
}

void frmSplash::whenPainted(std::function<void()> action) {
    new FirstPaintTimer(this, std::move(action));
}

void frmSplash::showStep(int lower, int upper, int current, const QString& text) {
    bar_->setStep(lower, upper, current, text);
}

void frmSplash::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawPixmap(0, 0, art_);
    painter.scale(scale_, scale_);
    paintTitle(painter);
    paintLegal(painter);
}

// Twice: the first print is the shadow.
void frmSplash::paintTitle(QPainter& painter) {
    QFont font("Arial Black");
    font.setPixelSize(TitleSize);
    font.setWeight(QFont::Black);
    font.setItalic(true);
    const int room = SplashSize.width() - TitlePlace.x() - TitleMargin;
    while (QFontMetrics(font).horizontalAdvance(title_) > room && font.pixelSize() > TitleSize / 2)
        font.setPixelSize(font.pixelSize() - 1);
    painter.setFont(font);
    painter.setPen(TitleShadow);
    painter.drawText(TitlePlace + QPoint(3, 3), title_);
    painter.setPen(TitleColour);
    painter.drawText(TitlePlace, title_);
}

void frmSplash::paintLegal(QPainter& painter) {
    QFont font = this->font();
    font.setPixelSize(13);
    painter.setFont(font);
    painter.setPen(Cyan);
    const QFontMetrics metrics(font);
    const int line = metrics.lineSpacing(), width = SplashSize.width() - 2 * TitleMargin;
    for (int i = 0; i < legal_.size(); ++i)
        painter.drawText(QRect(TitleMargin, 226 + i * line, width, line), Qt::AlignCenter,
                         metrics.elidedText(legal_[i], Qt::ElideRight, width));
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
