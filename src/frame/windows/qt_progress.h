// Progress on a window, at the pace of the eye.
#pragma once

#include "frame/progress.h"

#include <QElapsedTimer>
#include <QString>

namespace zandor {

// A window that shows the steps of a long operation.
class ProgressView {
  public:
    virtual ~ProgressView() = default;
    virtual void showStep(int lower, int upper, int current, const QString& text) = 0;
    virtual bool ended() const = 0; // the user wants no more of it
};

// Cheap to call: it draws 30 times a second at most and serves the events as often.
class QtProgress final : public Progress {
  public:
    QtProgress();
    // Borrowed; nullptr when no window is up: the operations then run without a sign, and can't be ended.
    void setView(ProgressView* view);

    void ShowProgress(int lower, int upper, int current, std::string_view text) override;
    bool yield() override;

  private:
    void drawIfDue();

    ProgressView* view_ = nullptr;
    QElapsedTimer sinceDrawn_, sinceServed_;
    int lower_ = 0, upper_ = 0, current_ = 0;
    std::string text_;
    bool waiting_ = false; // a step isn't drawn yet
};

} // namespace zandor
