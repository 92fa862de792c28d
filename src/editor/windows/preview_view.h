// picPREVIEW: the selected stock, as large as the place allows.
#pragma once

#include <QWidget>

#include <optional>

namespace zandor {

class PreviewView final : public QWidget {
    Q_OBJECT
  public:
    explicit PreviewView(QWidget* parent);
    void showClass(int stockClass);
    void clear();
    std::optional<int> shownClass() const { return stockClass_; }
    QSize sizeHint() const override { return {190, 132}; }
    QSize minimumSizeHint() const override { return {110, 90}; }

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    std::optional<int> stockClass_; // -1: of no class
};

} // namespace zandor
