#include "editor/windows/stock_view.h"

#include <QDrag>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>

#include <memory>

namespace zandor {

StockView::StockView(QWidget* parent)
    : RowView(parent), model_(new StockModel(this)), order_(new RowOrder(*model_, this)) {
    setObjectName("lstViewMATERIEL");
    order_->sort(StockModel::NameColumn, Qt::AscendingOrder);
    setModel(order_);
    setDragEnabled(true);
    setDragDropMode(DragOnly);
    setTextElideMode(Qt::ElideRight);
    setIconSize({33, 16}); // two marks beside each other

    QHeaderView* columns = header();
    columns->setSortIndicatorShown(true);
    columns->setSortIndicator(StockModel::NameColumn, Qt::AscendingOrder);
    connect(columns, &QHeaderView::sectionClicked, this, &StockView::toggleOrder);
}

int StockView::currentStock() const {
    return currentIndex().isValid() ? currentIndex().data(StockModel::NumberRole).toInt() : -1;
}

void StockView::show(const QModelIndex& index) {
    if (!index.isValid())
        return;
    setCurrentIndex(index);
    scrollTo(index);
}

void StockView::selectStock(int index) {
    show(order_->indexOf(index));
}

void StockView::selectFirst() {
    show(order_->index(0, 0));
}

void StockView::setColours(const QColor& background, const QColor& text) {
    showColours(background, text);
    model_->setTextColour(text);
}

void StockView::setEmptyHint(const QString& hint) {
    emptyHint_ = hint;
    viewport()->update();
}

void StockView::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    if (model_->rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const QRect place = viewport()->rect().adjusted(12, 12, -12, -12);
    painter.drawText(place, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, emptyHint_);
}

void StockView::toggleOrder() {
    QHeaderView* columns = header();
    const bool wasAscending = order_->sortOrder() == Qt::AscendingOrder;
    const Qt::SortOrder order = wasAscending ? Qt::DescendingOrder : Qt::AscendingOrder;
    order_->sort(StockModel::NameColumn, order);
    columns->setSortIndicator(StockModel::NameColumn, order);
    show(currentIndex());
}

// The names get what the two other columns leave; as soon as the user has sized one, they stay.
void StockView::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    if (sizedByUser())
        return;
    for (const int column : {StockModel::BrakeColumn, StockModel::CouplingColumn})
        sizeColumn(column, header()->sectionSizeHint(column));
}

void StockView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTreeView::currentChanged(current, previous);
    if (current.isValid())
        emit currentStockChanged(currentStock());
}

void StockView::mousePressEvent(QMouseEvent* event) {
    const int before = currentStock();
    QTreeView::mousePressEvent(event);
    // A click on the row that is current already shows it again: the panel may have shown another vehicle
    // since.
    if (event->button() == Qt::LeftButton && indexAt(event->position().toPoint()) == currentIndex() &&
        currentStock() == before)
        emit currentStockChanged(before);
}

void StockView::mouseDoubleClickEvent(QMouseEvent* event) {
    const QModelIndex index = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && index.isValid())
        emit chosen(index.data(StockModel::NumberRole).toInt());
    else
        QTreeView::mouseDoubleClickEvent(event);
}

void StockView::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && currentIndex().isValid())
        emit chosen(currentStock());
    else
        QTreeView::keyPressEvent(event);
}

void StockView::startDrag(Qt::DropActions) {
    std::unique_ptr<QMimeData> row(order_->mimeData({currentIndex()}));
    if (!currentIndex().isValid() || !row)
        return;
    auto* drag = new QDrag(this);
    drag->setMimeData(row.release());
    if (dragPicture_) {
        drag->setPixmap(dragPicture_());
        drag->setHotSpot({-14, -6}); // right of the pointer, whose place on the strip stays in sight
    }
    drag->exec(Qt::CopyAction);
    emit dragEnded();
}

} // namespace zandor
