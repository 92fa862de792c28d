#include "editor/windows/stock_model.h"

#include "frame/windows/art.h"
#include "frame/windows/qt_text.h"
#include "frame/windows/theme.h"

#include <QMimeData>

#include <unordered_set>
#include <utility>

namespace zandor {

void StockModel::setRows(const std::vector<StockListRow>& rows) {
    std::vector<ListRow> taken;
    taken.reserve(rows.size());
    looks_.clear();
    looks_.reserve(rows.size());
    for (const StockListRow& row : rows) {
        taken.push_back({row.index, {toQt(row.text)}});
        looks_.push_back({{row.icon, row.brakeIcon, row.couplingIcon}, row.unused});
    }
    takeRows(std::move(taken));
}

void StockModel::updateUnused(const std::vector<StockListRow>& rows) {
    std::unordered_set<int> unused;
    for (const StockListRow& row : rows)
        if (row.unused)
            unused.insert(row.index);
    for (std::size_t i = 0; i < looks_.size(); ++i)
        looks_[i].unused = unused.contains(this->rows()[i].number);
    if (!looks_.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1), {Qt::ForegroundRole});
}

QString StockModel::description(const QModelIndex& index) const {
    return describe_ ? describe_(rowAt(index).number, static_cast<Column>(index.column())) : QString();
}

QVariant StockModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const Look& look = looks_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return index.column() == NameColumn ? RowModel::data(index, role) : QVariant();
    case Qt::ToolTipRole:
        return plainTip(description(index));
    case Qt::AccessibleTextRole:
        return description(index);
    case Qt::DecorationRole:
        return icons_.of(look.icons[static_cast<std::size_t>(index.column())]);
    case Qt::ForegroundRole:
        return look.unused ? QVariant(theme::Unused) : RowModel::data(index, role);
    default:
        return RowModel::data(index, role);
    }
}

QIcon StockModel::Icons::of(int number) const {
    const auto [place, isNew] = known_.try_emplace(number);
    if (isNew && number > 0)
        place->second = listIcon(number);
    return place->second;
}

Qt::ItemFlags StockModel::flags(const QModelIndex& index) const {
    return index.isValid() ? RowModel::flags(index) | Qt::ItemIsDragEnabled : Qt::NoItemFlags;
}

QMimeData* StockModel::mimeData(const QModelIndexList& indexes) const {
    if (indexes.isEmpty())
        return nullptr;
    auto* data = new QMimeData;
    data->setData(MimeType, QByteArray::number(indexes.first().data(NumberRole).toInt()));
    return data;
}

} // namespace zandor
