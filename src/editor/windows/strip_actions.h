// What can be done with the selected vehicle and the selected stock by the keyboard and from a menu: the
// twins of what the mouse does on the strip.
#pragma once

#include "frame/frame.h"

#include <QObject>

#include <array>

class QAction;
class QMenu;
class QWidget;

namespace zandor {

class StripActions final : public QObject {
    Q_OBJECT
  public:
    enum Id { InsertEnd, InsertBefore, MoveLeft, MoveRight, Flip, Remove, FindInList, Renumber, Count };

    // The shortcuts of the vehicle work where the focus is in `strip`, those of the stock in the whole
    // window.
    StripActions(QWidget& window, QWidget& strip);

    void caption(const Frame& frame);
    // Which of them make sense now.
    void enable(bool stockSelected, bool vehicleSelected, bool vehicleMissing, bool hasVehicles);
    QAction* action(Id id) const { return actions_[id]; }
    QMenu* stripMenu() const { return stripMenu_; }
    QMenu* stockMenu() const { return stockMenu_; }

  signals:
    void triggered(int id); // of Id

  private:
    std::array<QAction*, Count> actions_{};
    QMenu* stripMenu_;
    QMenu* stockMenu_;
};

} // namespace zandor
