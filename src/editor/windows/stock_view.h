// lstViewMATERIEL: the stock of one class, from which vehicles are dragged or sent to the strip.
#pragma once

#include "editor/windows/row_view.h"
#include "editor/windows/stock_model.h"

#include <functional>

namespace zandor {

class StockView final : public RowView {
    Q_OBJECT
  public:
    explicit StockView(QWidget* parent);

    StockModel* stock() const { return model_; }
    int currentStock() const; // the index in Materiels, -1 when nothing is selected
    void selectStock(int index);
    void selectFirst();
    void setColours(const QColor& background, const QColor& text); // an invalid colour stays as it is
    void setNameOrder(const QCollator& names) { order_->setNameOrder(names); }
    void setEmptyHint(const QString& hint); // shown in place of rows
    // The picture that goes with a dragged row.
    void setDragPicture(std::function<QPixmap()> picture) { dragPicture_ = std::move(picture); }

  signals:
    void currentStockChanged(int index);
    void chosen(int index); // double click or Enter
    void dragEnded();

  protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void startDrag(Qt::DropActions actions) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void toggleOrder();
    void show(const QModelIndex& index);

    StockModel* model_;
    RowOrder* order_;
    std::function<QPixmap()> dragPicture_;
    QString emptyHint_;
};

} // namespace zandor
