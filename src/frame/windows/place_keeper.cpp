#include "frame/windows/place_keeper.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace zandor {

namespace {

// A desktop moves, sizes and frames a window in steps; a maximised one has its new size before its new state.
constexpr int SettledAfter = 60; // ms
constexpr int LongestWait = 20;  // times that; some desktops have no frames

FrameMargins framesOf(const QWidget& window) {
    const QRect inner = window.geometry(), outer = window.frameGeometry();
    return {inner.left() - outer.left(), inner.top() - outer.top(), outer.right() - inner.right(),
            outer.bottom() - inner.bottom()};
}

bool isNone(const FrameMargins& frame) {
    return frame.left == 0 && frame.top == 0 && frame.right == 0 && frame.bottom == 0;
}

// At 150 % the frame's true width isn't a whole number, nor is the window's.
FrameMargins withRoundings(FrameMargins frame, double pixelRatio) {
    if (pixelRatio != std::floor(pixelRatio)) {
        ++frame.right;
        ++frame.bottom;
    }
    return frame;
}

// The first screen first.
std::vector<ScreenArea> screensNow() {
    std::vector<ScreenArea> areas;
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect area = screen->availableGeometry();
        areas.insert(screen == QGuiApplication::primaryScreen() ? areas.begin() : areas.end(),
                     {area.left(), area.top(), area.width(), area.height()});
    }
    return areas;
}

bool hasOwnSize(const QWidget& window) {
    return window.isVisible() &&
           !(window.windowState() & (Qt::WindowMaximized | Qt::WindowMinimized | Qt::WindowFullScreen));
}

WindowPlace inTheMiddle(const QSize& size) {
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    return {area.left() + (area.width() - size.width()) / 2, area.top() + (area.height() - size.height()) / 2,
            size.width(), size.height(), false};
}

} // namespace

PlaceKeeper::PlaceKeeper(QWidget& window, const Frame& frame, const char* section, const char* prefix,
                         const QSize& defaultSize)
    : QObject(&window), window_(window), section_(section), prefix_(prefix) {
    const auto kept = readWindowPlace(frame, section, prefix);
    WindowPlace wanted = kept.value_or(inTheMiddle(defaultSize));
    const QSize least = window.minimumSizeHint(); // it may have grown since
    wanted.width = std::max(wanted.width, least.width());
    wanted.height = std::max(wanted.height, least.height());
    place_ = placeOnScreen(wanted, screensNow(), framesOf(window));
    give(place_);
    if (place_.maximised)
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
    settling_.setSingleShot(true);
    settling_.setInterval(SettledAfter);
    connect(&settling_, &QTimer::timeout, this, &PlaceKeeper::settled);
    window.installEventFilter(this);
}

void PlaceKeeper::give(const WindowPlace& place) {
    window_.resize(place.width, place.height);
    window_.move(place.left, place.top);
}

WindowPlace PlaceKeeper::current() const {
    return {window_.x(), window_.y(), window_.width(), window_.height(), false};
}

std::vector<IniValue> PlaceKeeper::values() const {
    WindowPlace place = hasOwnSize(window_) ? current() : place_;
    place.maximised = window_.isMaximized();
    return windowPlaceValues(section_, prefix_, place);
}

bool PlaceKeeper::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::WindowStateChange:
        settling_.start();
        break;
    default:
        break;
    }
    return false;
}

void PlaceKeeper::settled() {
    if (!hasOwnSize(window_))
        return;
    if (!held_)
        return holdOnScreen();
    place_ = current();
}

// How wide the frame is shows only with the window itself. One that has got another size meanwhile stays.
void PlaceKeeper::holdOnScreen() {
    const FrameMargins frame = framesOf(window_);
    if (isNone(frame) && ++waited_ < LongestWait)
        return settling_.start();
    held_ = true;
    const bool asGiven = window_.size() == QSize(place_.width, place_.height);
    place_ = current();
    if (!asGiven)
        return;
    place_ = placeOnScreen(place_, screensNow(), withRoundings(frame, window_.devicePixelRatio()));
    give(place_);
}

} // namespace zandor
