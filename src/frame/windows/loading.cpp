#include "frame/windows/loading.h"

#include "frame/windows/window_parts.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QHBoxLayout>

namespace zandor {

namespace {
constexpr int PaintFor = 20; // ms: until the window system has shown it
} // namespace

frmLoading::frmLoading(const QString& message, QWidget* parent)
    : QFrame(parent, Qt::Dialog | Qt::FramelessWindowHint) {
    setObjectName("frmLoading");
    setWindowTitle(message);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setWindowModality(Qt::ApplicationModal);
    setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    setCursor(Qt::WaitCursor);

    auto* text = new WrappedText(this);
    text->setObjectName("Label1");
    text->setText(message);
    text->setTextInteractionFlags(Qt::NoTextInteraction);
    auto* layout = new QHBoxLayout(this);
    const int space = fontMetrics().height() * 2;
    layout->setContentsMargins(space, space, space, space);
    layout->addWidget(text);
    adjustSize();
    if (parent)
        move(parent->window()->frameGeometry().center() - rect().center());
    show();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, PaintFor);
    repaint();
}

} // namespace zandor
