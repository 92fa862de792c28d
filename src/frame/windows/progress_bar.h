// The drawn progress bar of the splash and of frmProgress.
#pragma once

#include <QProgressBar>

namespace zandor {

// Cyan for the share that is done, dark behind, the text on both.
class ProgressBar final : public QProgressBar {
    Q_OBJECT
  public:
    explicit ProgressBar(QWidget* parent);
    void setStep(int lower, int upper, int current, const QString& text);
    QString text() const override { return text_; }
    double share() const { return share_; } // of the bar that is filled, 0 to 1

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    double share_ = 0;
    QString text_;
};

} // namespace zandor
