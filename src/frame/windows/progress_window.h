// The window of a reload.
#pragma once

#include "frame/frame.h"
#include "frame/windows/qt_progress.h"

#include <QDialog>

#include <functional>

class QLabel;

namespace zandor {

class ProgressBar;

// Runs a reload once it has been painted, shows its steps, and goes when it has ended. Closing it asks the
// reload to stop: the window stays up until it has.
class frmProgress final : public QDialog, public ProgressView {
    Q_OBJECT
  public:
    frmProgress(Frame& frame, QWidget* parent = nullptr);

    // Modal; `progress` shows its steps here meanwhile. False: the user has ended it.
    bool run(QtProgress& progress, std::function<void()> reload);

    void showStep(int lower, int upper, int current, const QString& text) override;
    bool ended() const override { return ended_; }

  public slots:
    void reject() override;

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    AppState& state_;
    QLabel* text_;
    ProgressBar* bar_;
    bool running_ = false;
    bool ended_ = false;
};

} // namespace zandor
