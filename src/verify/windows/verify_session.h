// What the panes of the verifier's tab share: the results of the last pass, and the run of whatever takes
// long.
#pragma once

#include "editor/consist_document.h"
#include "verify/checks.h"
#include "verify/external_editor.h"
#include "verify/verification.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>

namespace zandor {

// What stays chosen for the whole run of the program, also while the window is closed.
struct VerifyChoices {
    VerifiedKind kind = VerifiedKind::Engines;
    VerifOptions options{
        .CheckName = true, .CheckTextures = true, .CheckSounds = true, .CheckDuplicates = true};
};

// While something runs no other operation begins: the tab's controls are off, and the window, when it is
// closed, stays alive until the end.
class VerifySession final : public QObject {
    Q_OBJECT
  public:
    VerifySession(Editor& editor, VerifyChoices& choices, QObject* parent)
        : QObject(parent), editor_(editor), choices_(choices) {}

    Editor& editor() const { return editor_; }
    Frame& frame() const { return editor_.frame; }
    VerifyChoices& choices() const { return choices_; }
    VerifResults& results() const { return *results_; }
    bool verified() const { return verified_; }             // there has been a pass
    VerifiedKind verifiedKind() const { return passKind_; } // of that pass
    const VerifOptions& verifiedOptions() const { return passOptions_; }

    void verify(const VerifSelection& selection);
    // The external editor on `opened`, at a line of its record or at none; then the recheck of `path`:
    // another file when the fault stands in one that it names.
    void editFile(const std::string& path, const std::string& opened, const ErrorLine* line);
    VerifWork work() { return {frame(), passOptions_, *results_}; } // for one file at a time
    // Runs what may take long with the progress and the cancel of this tab. False: the window was closed
    // meanwhile, and nobody is there to show anything.
    bool carryOut(const std::function<void(Editor&)>& work);
    // The same for what waits for another program. The window is disabled meanwhile.
    bool waitFor(const std::function<void(EditorWait&)>& work);

    bool running() const { return running_; }
    bool cancelled() const { return cancelled_; }
    void cancel() { cancelled_ = true; }
    void close(); // the window goes

    void tellChange(); // of results and files

  signals:
    void filesWent(); // moved away or deleted
    void runStarted();
    void runEnded(); // also when the window was closed
    void step(int lower, int upper, int current, const QString& text);
    void canBeStopped();               // from now on, until the run ends; perhaps several times
    void waiting(const QString& text); // for another program
    void passEnded();
    void resultsChanged();
    void catalogueChanged();

  private:
    bool run(const std::function<void()>& work);

    Editor& editor_;
    VerifyChoices& choices_;
    std::unique_ptr<VerifResults> results_ = std::make_unique<VerifResults>();
    VerifOptions passOptions_;
    VerifiedKind passKind_ = VerifiedKind::Engines;
    bool verified_ = false, running_ = false, cancelled_ = false, closed_ = false;
};

} // namespace zandor
