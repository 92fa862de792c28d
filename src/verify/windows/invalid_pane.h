// fmINVALIDE: the files with faults, the faults of the chosen one, and its text at the fault.
#pragma once

#include "verify/result_lists.h"
#include "verify/result_rows.h"
#include "verify/windows/verify_session.h"

#include <QWidget>

#include <optional>
#include <vector>

class QLabel;
class QLayout;
class QPushButton;

namespace zandor {

class Captions;
class ElidedLabel;
class FileView;
class ResultView;

class InvalidPane final : public QWidget {
    Q_OBJECT
  public:
    InvalidPane(VerifySession& session, QWidget* parent);

    void addCaptions(Captions& captions);
    void applyLanguage(); // the rest

    // The files in their lists. `keepPlace`: near the fault that was shown before, otherwise at the first one
    // of this kind.
    void showFiles(std::vector<FaultyFile> files, const std::optional<FaultKind>& kind, bool keepPlace);
    void setEmptyHint(const QString& hint);
    void focusFiles();
    void nextFault();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* buildFiles();
    QWidget* buildFaults();
    QLayout* buildButtons();
    void connectControls();
    void addKeys();

    const FaultyFile* currentFile() const; // nullptr: none
    const FileFault* currentFault() const; // nullptr: none
    const ErrorLine* currentLine() const;  // nullptr: none, or the fault is a missing key
    std::string currentPath() const;
    std::vector<FaultyFile> chosenFiles() const;
    void goTo(FaultRow place);
    void showFileErrors();
    void showErrorLine();
    void showFault(const FaultyFile& file, const FileFault& fault);
    void clearFault();
    void enableButtons();
    void editFile(bool atFault);
    void correct();
    void carryAway(FilesGone (*operation)(Editor&, VerifResults&, const std::vector<int>&));
    void showChosen();
    void showHint(ResultList list);

    VerifySession& session_;
    std::vector<FaultyFile> files_;
    std::vector<FileFault> faults_; // of the current file
    std::optional<FaultKind> kind_;
    bool going_ = false; // to a place: the lists are not complete yet

    QLabel *lblFILES_, *lblLINES_;
    ResultView *lstFILES_INVALIDES_, *lstLINES_ERROR_;
    ElidedLabel *lblSelection_, *lblDossier_, *lblINFOS_;
    QLabel* lblERREURS_;
    FileView* txtFILE_;
    QPushButton *cmdCORRECT_, *cmdEDIT_, *cmdNEXT_, *cmdSAVE_, *cmdDELETE_;
};

} // namespace zandor
