// frmOptions: the tool window, a tab for each tool. It stands beside the main window; both can be used.
#pragma once

#include "verify/windows/verify_session.h"

#include <QWidget>

class QTabWidget;

namespace zandor {

class PlaceKeeper;
class VerifyTab;

// Deletes itself when it is closed, at once or, while a tool runs, when that has come to its end.
class frmOptions final : public QWidget {
    Q_OBJECT
  public:
    frmOptions(Editor& editor, VerifyChoices& choices);

    void applyLanguage();
    bool isClosed() const { return closed_; }

  signals:
    void catalogueChanged(); // a tool has changed files that the catalogue knows
    void helpAsked(int context);

  protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void addTab(QWidget* page, std::string_view key);
    void runEnded();

    Frame& frame_;
    QTabWidget* TabStrip1_;
    VerifyTab* verify_;
    PlaceKeeper* place_;
    bool closed_ = false;
};

} // namespace zandor
