// frmModifieValeur: the faulty values of one file, corrected without an editor.
#pragma once

#include "verify/windows/verify_session.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QLayout;
class QPushButton;

namespace zandor {

class ElidedLabel;
class ResultView;

// Accepted when the file has no fault left.
class frmModifieValeur final : public QDialog {
    Q_OBJECT
  public:
    // `file`, `line`: positions in InvalidFiles and in its Lines, from 0.
    frmModifieValeur(VerifySession& session, int file, int line, QWidget* parent);

  private:
    QLayout* buildForm();
    QLayout* buildButtons();
    void connectControls();
    void applyLanguage();
    void showFile(int line);
    void showKey();
    void write();

    const InvalidFile& record() const;
    const ErrorLine* chosenLine() const; // nullptr: none

    VerifySession& session_;
    int file_;
    ElidedLabel* lblFILE_;
    QLabel *lblERRORS_, *lblKEY_, *lblVALUE_, *lblREPLACE_, *lblNEW_;
    ResultView* lstKEY_;
    QLineEdit *tbKEY_, *tbVALUE_, *tbNewValue_;
    QComboBox* cmbREPLACE_;
    QPushButton *cmdOK_, *cmdCANCEL_;
};

} // namespace zandor
