// A line of text that is shortened where the place is too narrow; its tool tip then holds the whole.
#pragma once

#include <QLabel>

namespace zandor {

class ElidedLabel final : public QLabel {
    Q_OBJECT
  public:
    ElidedLabel(QWidget* parent, Qt::TextElideMode mode);
    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    Qt::TextElideMode mode_;
};

} // namespace zandor
