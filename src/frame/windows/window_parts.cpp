#include "frame/windows/window_parts.h"

#include "frame/windows/loading.h"
#include "frame/windows/qt_text.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QScreen>

#include <algorithm>
#include <cmath>

namespace zandor {

namespace {

constexpr int WidestLine = 78; // letters of a message's line
constexpr double PartOfScreen = 0.6;

QRect screenOf(const QWidget& widget) {
    return widget.screen()->availableGeometry();
}

class WheelGuard final : public QObject {
  public:
    using QObject::QObject;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus())
            return false;
        event->ignore();
        return true;
    }
};

} // namespace

QWidget* parentOfDialogs() {
    // What only waits makes room for a message.
    if (auto* waiting = qobject_cast<frmLoading*>(QApplication::activeModalWidget()))
        waiting->hide();
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    if (QWidget* active = QApplication::activeWindow())
        return active;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->isWindow())
            return window;
    return nullptr;
}

QString textOr(const Frame& frame, Message message, const char* french) {
    return toQt(textOr(frame.language, message, french));
}

QLabel* makeIconLabel(QWidget* parent, const QIcon& icon) {
    auto* label = new QLabel(parent);
    const int size = parent->style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, parent);
    label->setPixmap(icon.pixmap(QSize(size, size), parent->devicePixelRatioF()));
    label->setAlignment(Qt::AlignTop | Qt::AlignHCenter);
    return label;
}

QIcon programIcon() {
    return QApplication::windowIcon();
}

WrappedText::WrappedText(QWidget* parent) : QTextEdit(parent) {
    setReadOnly(true);
    setFrameShape(QFrame::NoFrame);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    viewport()->setBackgroundRole(QPalette::Window);
    viewport()->setCursor(Qt::IBeamCursor);
    document()->setDocumentMargin(0);
}

void WrappedText::setText(const QString& text) {
    setPlainText(QString(text).remove(u'\r'));
    setAccessibleName(text);
    measure();
    // A text that is seen whole is no stop on the way of the Tab key.
    setFocusPolicy(scrolls() ? Qt::StrongFocus : Qt::ClickFocus);
    setVerticalScrollBarPolicy(scrolls() ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
}

void WrappedText::copyAll() {
    if (textCursor().hasSelection())
        copy();
    else
        QApplication::clipboard()->setText(toPlainText());
}

void WrappedText::measure() {
    const double widest = std::min<double>(WidestLine * fontMetrics().averageCharWidth(),
                                           PartOfScreen * screenOf(*this).width());
    QTextDocument measured;
    measured.setDefaultFont(font());
    measured.setDocumentMargin(0);
    measured.setPlainText(toPlainText());
    QTextOption option = measured.defaultTextOption();
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    measured.setDefaultTextOption(option);
    const double width = std::min(std::ceil(measured.idealWidth()) + 1, widest);
    measured.setTextWidth(width);
    wanted_ = {static_cast<int>(width), static_cast<int>(std::ceil(measured.size().height()))};
    updateGeometry();
}

int WrappedText::longest() const {
    return static_cast<int>(PartOfScreen * screenOf(*this).height());
}

QSize WrappedText::sizeHint() const {
    if (!scrolls())
        return wanted_;
    return {wanted_.width() + style()->pixelMetric(QStyle::PM_ScrollBarExtent), longest()};
}

QSize WrappedText::minimumSizeHint() const {
    return scrolls() ? QSize(sizeHint().width(), fontMetrics().lineSpacing() * 5) : wanted_;
}

void WrappedText::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy))
        copyAll();
    else
        QTextEdit::keyPressEvent(event);
}

void WrappedText::changeEvent(QEvent* event) {
    QTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        measure();
}

void keepFromWheel(QWidget& widget) {
    widget.setFocusPolicy(Qt::StrongFocus); // not by the wheel itself
    widget.installEventFilter(new WheelGuard(&widget));
}

void makeSameWidth(const std::vector<QPushButton*>& buttons) {
    int width = 0;
    for (const QPushButton* button : buttons)
        width = std::max(width, button->sizeHint().width());
    for (QPushButton* button : buttons)
        button->setMinimumWidth(width);
}

} // namespace zandor
