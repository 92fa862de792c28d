// picPREVIEW: the picture of the selected stock at the height of the place, in the middle of its width.
#pragma once

#include "catalogue/pictures.h"

#include <QImage>
#include <QWidget>

namespace zandor {

class PictureStore;

class PreviewView final : public QWidget {
    Q_OBJECT
  public:
    explicit PreviewView(QWidget* parent);
    void show(PictureStore& pictures, const PictureRef& picture);
    void clear();
    // A sign in the corner, which explains itself by this tool tip; empty: no sign.
    void warn(const QString& text);
    bool isEmpty() const { return picture_.isNull(); }
    QSize sizeHint() const override { return {260, 132}; }
    QSize minimumSizeHint() const override { return {110, 32}; }

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    QImage picture_;
};

} // namespace zandor
