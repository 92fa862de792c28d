// Work that waits until its window has been seen.
#pragma once

#include <QTimer>

#include <functional>

namespace zandor {

// The timer of a window that shows the progress of a long operation: it runs the operation once, as soon as
// the window has been painted. A window that no screen shows isn't waited for without end.
class FirstPaintTimer final : public QTimer {
    Q_OBJECT
  public:
    // Belongs to the window, under the name Timer1.
    FirstPaintTimer(QWidget* window, std::function<void()> action);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void check();

    std::function<void()> action_;
    int checks_ = 0;
    bool painted_ = false;
};

} // namespace zandor
