// The main window: arranges its panes and joins them, and has the commands for the whole consist.
#pragma once

#include "editor/windows/document_edits.h"

#include <QWidget>

class QMenu;

namespace zandor {

class CommandBar;
class ConsistPane;
class PlaceKeeper;
class StockPane;
class StripActions;
class StripPane;

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
    // The same after another window has changed files that the catalogue knows.
    void catalogueChanged();

    // A consist from outside: the question about unsaved changes comes first.
    void offerFile(const std::string& path);
    void chooseLanguage(const std::string& name);

  signals:
    void helpAsked();
    void optionsAsked();
    void languageChosen();
    void closeAsked();
    void closed(); // it was, whatever it asked

  protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void arrange();
    void setTabOrders();
    void connectPanes();
    void connectMenus();
    void openContextMenu();
    void captionLanguages();

    void actionTriggered(int id);
    void refreshCommands();
    void lookUp(int materielIndex);

    void commandTriggered(int command);
    void openPressed();
    void savePressed();

    DocumentEdits edits_;
    StripPane* strip_;
    StockPane* stock_;
    ConsistPane* consist_;
    CommandBar* commands_;
    StripActions* actions_;
    QMenu* languages_;
    PlaceKeeper* place_ = nullptr;
};

} // namespace zandor
