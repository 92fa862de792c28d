// fmVERIF_FILES: which files a pass looks at, and what for.
#pragma once

#include "verify/windows/verify_session.h"

#include <QGroupBox>

#include <array>
#include <vector>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace zandor {

class Captions;
class ResultView;

class CandidatesPane final : public QWidget {
    Q_OBJECT
  public:
    CandidatesPane(VerifySession& session, QWidget* parent);

    void addCaptions(Captions& captions);
    void applyLanguage(); // the rest
    void fill();          // the candidates of the chosen kind, none selected
    void refresh();       // when files have gone; the filter stays, and what is selected and still there
    void focusFilter();

    bool anyChosen() const;
    VerifSelection selection() const;
    void passEnded(); // the boxes as the Editor allows

  signals:
    void chosenChanged();

  private:
    struct Box;
    static const Box Boxes[];

    void build();
    QWidget* buildKinds();
    QWidget* buildBoxes();
    QWidget* buildList();
    void connectControls();
    void chooseKind(VerifiedKind kind);
    void showOptions();
    void enableBoxes();
    void enableAll();
    void list();
    void showRows();
    void showRowsChoosing(const std::vector<bool>& chosen);
    void selectAll();
    void deselectAll();
    void selectionChanged();
    void editChosen();

    VerifySession& session_;
    VerifSelection candidates_;
    std::vector<std::string> searched_; // the candidates' names and folders, lower case

    QGroupBox *grpKIND_, *grpCHECK_, *grpREPAIR_, *grpFILES_;
    std::array<QRadioButton*, 3> kinds_{};
    std::vector<QCheckBox*> boxes_;
    QLineEdit* tbFILTER_;
    ResultView* lstFILES_;
    QCheckBox *chkSELECT_, *chkDESELECT_;
    QLabel* lblCOUNT_;
    QPushButton* cmdEditeur_;
    bool selecting_ = false; // by one of the two boxes
};

} // namespace zandor
