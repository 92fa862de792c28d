// What is seen while the catalogue is loaded.
#pragma once

#include "frame/windows/progress_bar.h"
#include "frame/windows/qt_progress.h"

#include <QPixmap>
#include <QWidget>

#include <functional>

class QPainter;

namespace zandor {

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
    void paintTitle(QPainter& painter);
    void paintLegal(QPainter& painter);

    QString title_;
    QStringList legal_;
    double scale_; // of a dot at 96 dots an inch
    QPixmap art_;
    ProgressBar* bar_;
    bool ended_ = false;
};

} // namespace zandor
