#include "verify/windows/verify_session.h"

#include "frame/windows/qt_progress.h"
#include "frame/windows/qt_text.h"
#include "verify/messages.h"
#include "verify/recheck.h"

#include <QEventLoop>
#include <QTimer>
#include <QWidget>

namespace zandor {

namespace {

class SessionView final : public ProgressView {
  public:
    explicit SessionView(VerifySession& session) : session_(session) {}
    void showStep(int lower, int upper, int current, const QString& text) override {
        if (upper - lower > 1) // of one step there is nothing to stop
            emit session_.canBeStopped();
        emit session_.step(lower, upper, current, text);
    }
    bool ended() const override { return session_.cancelled(); }

  private:
    VerifySession& session_;
};

class WindowWait final : public EditorWait {
  public:
    WindowWait(VerifySession& session, QWidget& window) : session_(session), window_(window) {
        window_.setEnabled(false);
    }
    ~WindowWait() override {
        window_.setEnabled(true);
        if (session_.cancelled())
            return;
        window_.raise();
        window_.activateWindow();
    }
    WindowWait(const WindowWait&) = delete;
    WindowWait& operator=(const WindowWait&) = delete;

    bool wait(std::chrono::milliseconds time) override {
        QEventLoop loop;
        QTimer::singleShot(time, &loop, &QEventLoop::quit);
        loop.exec();
        return !session_.cancelled();
    }

  private:
    VerifySession& session_;
    QWidget& window_;
};

} // namespace

bool VerifySession::run(const std::function<void()>& work) {
    running_ = true;
    cancelled_ = false;
    emit runStarted();
    work();
    running_ = false;
    emit runEnded();
    return !closed_;
}

bool VerifySession::carryOut(const std::function<void(Editor&)>& work) {
    return run([&] {
        SessionView view(*this);
        QtProgress progress;
        progress.setView(&view);
        const Frame& outer = editor_.frame;
        Frame frame{outer.state,     outer.files,   outer.profiles, outer.registry,
                    outer.processes, outer.dialogs, progress,       outer.language};
        Editor editor{frame, editor_.catalogue, editor_.document};
        work(editor);
    });
}

bool VerifySession::waitFor(const std::function<void(EditorWait&)>& work) {
    return run([&] {
        const std::string text = frame().text(message::WaitingForEditor);
        emit waiting(toQt(text));
        WindowWait wait(*this, *static_cast<QWidget*>(parent())->window());
        work(wait);
    });
}

void VerifySession::verify(const VerifSelection& selection) {
    auto results = std::make_unique<VerifResults>();
    const VerifOptions options = optionsFor(selection.kind, choices_.options);
    const bool here = carryOut([&](Editor& editor) {
        emit canBeStopped();
        (void)RunVerification(editor.frame, selection, options, *results);
    });
    if (!here)
        return;
    results_ = std::move(results);
    passOptions_ = options;
    passKind_ = selection.kind;
    verified_ = true;
    emit passEnded();
    frame().show(closingReport(frame(), selection, options, *results_), style::Information);
}

void VerifySession::close() {
    closed_ = cancelled_ = true;
}

void VerifySession::tellChange() {
    emit resultsChanged();
    emit catalogueChanged();
}

void VerifySession::editFile(const std::string& path, const std::string& opened, const ErrorLine* line) {
    EditorRun ran;
    const bool here = waitFor([&](EditorWait& wait) {
        VerifWork one = work();
        ran = editAndRecheck(one, editor_.catalogue, path, opened, line, wait);
    });
    if (!here)
        return;
    if (ran.changed)
        tellChange();
    showFindings(frame(), ran.told);
}

} // namespace zandor
