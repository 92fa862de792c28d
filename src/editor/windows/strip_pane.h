// The strip of the consist under edit with its totals, the selected vehicle, its menu and the scroll bar; and
// what is done to vehicles there.
#pragma once

#include "editor/windows/document_edits.h"

#include <QFrame>

#include <optional>
#include <vector>

class QLabel;
class QMenu;
class QPushButton;
class QScrollBar;
class QTimer;

namespace zandor {

class ElidedLabel;
class PictureStore;
class StripView;

class StripPane final : public QFrame {
    Q_OBJECT
  public:
    StripPane(DocumentEdits& edits, QWidget* parent);

    StripView* strip() const { return PicRAME_; }
    PictureStore& pictures();
    std::vector<QWidget*> tabOrder() const;
    void setMenu(QMenu* menu); // of what can be done with the selected vehicle
    void applyLanguage();

    // An entry of Materiels put onto the strip; a number that is none's does nothing.
    void append(int stock);
    void insertBefore(int stock); // in front of the selected vehicle
    void finishStockDrag();       // of a row of the list, wherever it was dropped
    void moveSelectedBy(int step);
    void remove(); // the selected vehicle
    // The strip of a consist just opened: from its beginning. Gives what is to be told of it.
    Findings showOpened();
    void sayNotInList(); // of the selected vehicle, until the next change

  signals:
    void lookedUp(int materielIndex); // a vehicle was let go over the preview; -1: it isn't in the catalogue

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void build();
    void connectControls();
    void refresh();
    void refreshScrollBar();
    void insert(const std::function<Outcome(Editor&)>& insertion);
    void takeDrop(int stock);
    void openMenu(const QContextMenuEvent& asked);

    DocumentEdits& edits_;
    QLabel* lblLongueurNewRame_;
    ElidedLabel* lblSTATUS_;  // the selected vehicle
    QPushButton* cmdVEHICLE_; // its menu
    StripView* PicRAME_;
    QScrollBar* HScrollRAME_;
    QTimer* Timer1_;
    std::optional<int> droppedStock_; // a drop whose drag hasn't ended yet
};

} // namespace zandor
