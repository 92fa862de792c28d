// The pointer while something runs: set for the life of an object.
#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace zandor {

class PointerShape {
  public:
    explicit PointerShape(const QCursor& cursor) { QGuiApplication::setOverrideCursor(cursor); }
    ~PointerShape() { QGuiApplication::restoreOverrideCursor(); }
    PointerShape(const PointerShape&) = delete;
    PointerShape& operator=(const PointerShape&) = delete;
};

// The hourglass of a longer step.
class BusyPointer : PointerShape {
  public:
    BusyPointer() : PointerShape(Qt::WaitCursor) {}
};

} // namespace zandor
