// A row of buttons that goes on in the next one where the window is too narrow.
#pragma once

#include <QLayout>

#include <cstdint>
#include <vector>

namespace zandor {

class ButtonBar : public QLayout {
    Q_OBJECT
  public:
    explicit ButtonBar(int gap) { setSpacing(gap); }
    ~ButtonBar() override;

    // What is added from here on stands at the right-hand end, as long as one row holds them all.
    void beginRightEnd() { rightEnd_ = items_.size(); }

    void addItem(QLayoutItem* item) override { items_.push_back(item); }
    int count() const override { return static_cast<int>(items_.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    QSize sizeHint() const override;    // of one row
    QSize minimumSize() const override; // of as many rows as there are now
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    void setGeometry(const QRect& area) override;

  private:
    int rowHeight() const;
    int heightOf(int rows) const { return rows * rowHeight() + (rows - 1) * spacing(); }
    std::vector<std::vector<std::size_t>> rowsWithin(int width) const;

    std::vector<QLayoutItem*> items_;
    std::size_t rightEnd_ = SIZE_MAX;
    int rows_ = 1;
};

} // namespace zandor
