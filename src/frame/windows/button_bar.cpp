#include "frame/windows/button_bar.h"

#include <QWidget>

#include <algorithm>
#include <utility>

namespace zandor {

ButtonBar::~ButtonBar() {
    for (QLayoutItem* item : items_)
        delete item;
}

QLayoutItem* ButtonBar::itemAt(int index) const {
    return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)] : nullptr;
}

QLayoutItem* ButtonBar::takeAt(int index) {
    QLayoutItem* const item = itemAt(index);
    if (item)
        items_.erase(items_.begin() + index);
    return item;
}

int ButtonBar::rowHeight() const {
    int height = 0;
    for (const QLayoutItem* item : items_)
        if (!item->isEmpty())
            height = std::max(height, item->sizeHint().height());
    return height;
}

QSize ButtonBar::sizeHint() const {
    int width = 0;
    for (const QLayoutItem* item : items_)
        if (!item->isEmpty())
            width += item->sizeHint().width() + (width > 0 ? spacing() : 0);
    return {width, rowHeight()};
}

QSize ButtonBar::minimumSize() const {
    int widest = 0;
    for (const QLayoutItem* item : items_)
        if (!item->isEmpty())
            widest = std::max(widest, item->sizeHint().width());
    return {widest, heightOf(rows_)};
}

// Positions of the buttons that are shown. The right-hand end begins a row of its own where one can't hold
// all.
std::vector<std::vector<std::size_t>> ButtonBar::rowsWithin(int width) const {
    std::vector<std::vector<std::size_t>> rows(1);
    const bool oneRow = sizeHint().width() <= width;
    int used = 0;
    for (std::size_t i = 0; i < items_.size(); ++i) {
        if (items_[i]->isEmpty())
            continue;
        const int wanted = items_[i]->sizeHint().width();
        if (!rows.back().empty() && !oneRow && (i == rightEnd_ || used + wanted > width)) {
            rows.emplace_back();
            used = 0;
        }
        used += wanted + spacing();
        rows.back().push_back(i);
    }
    return rows;
}

int ButtonBar::heightForWidth(int width) const {
    return heightOf(static_cast<int>(rowsWithin(width).size()));
}

void ButtonBar::setGeometry(const QRect& area) {
    QLayout::setGeometry(area);
    const auto rows = rowsWithin(area.width());
    const int spare = rows.size() == 1 ? area.width() - sizeHint().width() : 0;
    int y = area.top();
    for (const auto& row : rows) {
        int x = area.left();
        for (const std::size_t i : row) {
            if (i == rightEnd_)
                x += spare;
            const QSize size(items_[i]->sizeHint().width(), rowHeight());
            items_[i]->setGeometry(QRect(QPoint(x, y), size));
            x += size.width() + spacing();
        }
        y += rowHeight() + spacing();
    }
    if (const int count = static_cast<int>(rows.size()); std::exchange(rows_, count) != count)
        update(); // the window can't be as low as before
}

} // namespace zandor
