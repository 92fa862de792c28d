// The main window: shows the consist under edit and turns the user's actions into operations on it.
#pragma once

#include "editor/windows/principal_controls.h"

#include <QWidget>

#include <optional>

namespace zandor {

struct MaterielInfo;

class frmPrincipal final : public QWidget {
    Q_OBJECT
  public:
    explicit frmPrincipal(Editor& editor);

    void applyLanguage();
    void applyListColours(); // Color7 and Color8 of the settings
    void fillStockList();    // the class chosen in cmbMATERIEL
    void openFile(const std::string& path);
    // Every control as the document stands.
    void refresh();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void connectButtons();
    void connectInputs();
    void connectStock();
    void connectStrip();
    void addShortcuts();

    void newPressed();
    void openPressed();
    void savePressed();
    void aboutPressed();

    void appendFromList(const QString& key);
    void finishStockDrag();
    void showStockInfo(const QString& key);
    void showInfo(const MaterielInfo& info);
    void lookUp(int materielIndex);
    void stripResized();
    void refreshNames();
    void refreshScrollBar();
    void updateUnusedStock();

    Editor& editor_;
    PrincipalControls controls_;
    std::optional<int> droppedStock_; // a drop whose drag hasn't ended yet
};

} // namespace zandor
