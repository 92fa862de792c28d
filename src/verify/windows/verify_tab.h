// The tab VERIF_FILE: what is to be checked, the run of a pass, and what it has found.
#pragma once

#include "verify/windows/verify_session.h"

#include <QWidget>

#include <QPointer>

class QLabel;
class QLayout;
class QProgressBar;
class QPushButton;
class QTabWidget;

namespace zandor {

class CandidatesPane;
class ElidedLabel;
class ResultsPane;

class VerifyTab final : public QWidget {
    Q_OBJECT
  public:
    VerifyTab(Editor& editor, VerifyChoices& choices, QWidget* parent);

    void applyLanguage();
    bool holdsResults() const { return !isClean(session_->results()); }
    bool running() const { return session_->running(); }
    void close(); // the window goes; what runs ends

  signals:
    void runStarted();
    void runEnded();
    void catalogueChanged();
    void helpAsked();
    void closeAsked();

  private:
    void build();
    QLayout* buildFoot();
    void connectControls();
    void addKeys();
    void verifyPressed();
    void startRun();
    void offerStop();
    void endRun();
    void showStep(int lower, int upper, int current, const QString& text);
    void showPass();
    void captionVerify();
    void enableVerify();
    void search();

    VerifySession* session_;
    QTabWidget* tbsVERIF_;
    CandidatesPane* fmVERIF_FILES_;
    ResultsPane* fmRESULTATS_;
    ElidedLabel* lblANALYSE_;
    QProgressBar* ProgressBar1_;
    QPushButton *cmdVERIF_, *cmdHELP_, *cmdCANCEL_;
    QString verifyCaption_, stopCaption_;
    bool stopOffered_ = false;      // by cmdVERIF, for the run
    QPointer<QWidget> focusBefore_; // the run
};

} // namespace zandor
