#include "frame/windows/qt_progress.h"

#include "frame/windows/qt_text.h"

#include <QCoreApplication>
#include <QEventLoop>

namespace zandor {

namespace {
constexpr qint64 DrawEvery = 33;  // ms
constexpr qint64 ServeEvery = 20; // ms
constexpr int ServeFor = 10;      // ms
} // namespace

QtProgress::QtProgress() {
    sinceDrawn_.start();
    sinceServed_.start();
}

void QtProgress::setView(ProgressView* view) {
    view_ = view;
    waiting_ = false;
    sinceDrawn_.invalidate(); // the first step of a window is drawn at once
}

void QtProgress::ShowProgress(int lower, int upper, int current, std::string_view text) {
    if (upper == 0 || !view_)
        return;
    lower_ = lower;
    upper_ = upper;
    current_ = current;
    text_.assign(text);
    waiting_ = true;
    drawIfDue();
}

void QtProgress::drawIfDue() {
    if (!waiting_ || (sinceDrawn_.isValid() && sinceDrawn_.elapsed() < DrawEvery))
        return;
    waiting_ = false;
    view_->showStep(lower_, upper_, current_, toQt(text_));
    sinceDrawn_.start();
}

bool QtProgress::yield() {
    if (sinceServed_.elapsed() >= ServeEvery) {
        if (view_)
            drawIfDue();
        QCoreApplication::processEvents(QEventLoop::AllEvents, ServeFor);
        sinceServed_.start();
    }
    return !view_ || !view_->ended();
}

} // namespace zandor
