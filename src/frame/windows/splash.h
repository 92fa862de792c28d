// What is seen while the catalogue is loaded.
#pragma once

#include "frame/windows/qt_progress.h"

#include <QWidget>

#include <functional>

namespace zandor {

// The drawn progress bar.
class ProgressBar final : public QWidget {
    Q_OBJECT
  public:
    explicit ProgressBar(QWidget* parent);
    void setStep(int lower, int upper, int current, const QString& text);
    QString text() const { return text_; }
    double share() const { return share_; } // of the bar that is filled, 0 to 1

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    double share_ = 0;
    QString text_;
};

class frmSplash final : public QWidget, public ProgressView {
    Q_OBJECT
  public:
    // `legal`: the line under the title, cut in two at its first "-".
    frmSplash(const QString& title, const QString& legal);

    // Runs once the window has been seen, so that a load that follows doesn't keep it from being painted.
    void whenPainted(std::function<void()> action);

    void showStep(int lower, int upper, int current, const QString& text) override;
    bool ended() const override { return ended_; }

  protected:
    void paintEvent(QPaintEvent*) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    QString title_;
    QStringList legal_;
    ProgressBar* bar_;
    bool painted_ = false;
    bool ended_ = false;
};

} // namespace zandor
