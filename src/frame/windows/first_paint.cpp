#include "frame/windows/first_paint.h"

#include <QEvent>
#include <QWidget>

namespace zandor {

namespace {
constexpr int CheckEvery = 20;    // ms
constexpr int LongestWait = 1000; // ms
} // namespace

FirstPaintTimer::FirstPaintTimer(QWidget* window, std::function<void()> action)
    : QTimer(window), action_(std::move(action)) {
    setObjectName("Timer1");
    window->installEventFilter(this);
    connect(this, &QTimer::timeout, this, &FirstPaintTimer::check);
    start(CheckEvery);
}

bool FirstPaintTimer::eventFilter(QObject*, QEvent* event) {
    painted_ = painted_ || event->type() == QEvent::Paint;
    return false;
}

void FirstPaintTimer::check() {
    if (!painted_ && ++checks_ * CheckEvery < LongestWait)
        return;
    stop();
    action_();
}

} // namespace zandor
