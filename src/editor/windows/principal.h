// The main window: shows the consist under edit and turns the user's actions into operations on it.
#pragma once

#include "editor/windows/principal_controls.h"

#include <QWidget>

#include <optional>

class QMenu;

namespace zandor {

struct MaterielInfo;
class PlaceKeeper;
class StripActions;

class frmPrincipal final : public QWidget {
    Q_OBJECT
  public:
    explicit frmPrincipal(Editor& editor);

    void applyLanguage();
    void applyListColours(); // Color7 and Color8 of the settings
    void fillStockList();    // the class chosen in cmbMATERIEL
    // False: it can't be opened, and the user was told.
    bool openFile(const std::string& path);
    // Every control as the document stands.
    void refresh();

    // A consist from outside: the question about unsaved changes comes first.
    void offerFile(const std::string& path);
    void chooseLanguage(const std::string& name);

  signals:
    void helpAsked();
    void languageChosen();
    void closeAsked();

  protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void connectButtons();
    void connectInputs();
    void connectStock();
    void connectStrip();
    void connectActions();
    void addShortcuts();
    void openContextMenu();
    void captionLanguages();
    void actionTriggered(int id);
    void refreshActions();
    bool filterStrip(QEvent* event);
    bool filterName(QObject* box, QEvent* event);
    void orderStockList();

    void newPressed();
    void openPressed();
    void savePressed();
    void aboutPressed();

    void appendFromList(int stock);
    void finishStockDrag();
    QPixmap carriedPicture();
    void showStockInfo(int stock);
    void showInfo(const MaterielInfo& info);
    void lookUp(int materielIndex);
    void sayNotInList();
    void finishInsertion(const Outcome& outcome, bool endWasHidden);
    bool tell(const Outcome& outcome); // whether it was done
    void refreshNames();
    void refreshScrollBar();
    QString describeStock(int stock, int column) const;
    void updateUnusedStock();

    Editor& editor_;
    PrincipalControls controls_;
    StripActions* actions_ = nullptr;
    QMenu* languages_ = nullptr;
    PlaceKeeper* place_ = nullptr;
    std::optional<int> droppedStock_; // a drop whose drag hasn't ended yet
};

} // namespace zandor
