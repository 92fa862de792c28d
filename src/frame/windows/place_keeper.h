// Where a window stood when the program last ended, and how it comes back there.
#pragma once

#include "frame/window_place.h"

#include <QObject>
#include <QSize>
#include <QTimer>

class QWidget;

namespace zandor {

class PlaceKeeper final : public QObject {
    Q_OBJECT
  public:
    // Belongs to the window, which is not shown yet, and puts it to the place that the settings hold under
    // these names: whole on a screen that there is now. Without one it stands in the middle of the first
    // screen, at this size.
    PlaceKeeper(QWidget& window, const Frame& frame, const char* section, const char* prefix,
                const QSize& defaultSize);

    std::vector<IniValue> values() const; // the place, to be written to the settings

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void give(const WindowPlace& place);
    WindowPlace current() const;
    void settled();
    void holdOnScreen();

    QWidget& window_;
    const char* const section_;
    const char* const prefix_;
    WindowPlace place_; // the last one that was neither maximised nor minimised
    bool held_ = false; // the window has been brought onto the screen with its frame
    int waited_ = 0;    // times that the frame wasn't there yet
    QTimer settling_;
};

} // namespace zandor
