#include "editor/windows/stock_model.h"

#include "frame/windows/art.h"
#include "frame/windows/qt_text.h"
#include "frame/windows/theme.h"

#include <QMimeData>

#include <algorithm>
#include <unordered_set>

namespace zandor {

void StockModel::setRows(std::vector<StockListRow> rows) {
    beginResetModel();
    rows_.clear();
    rows_.reserve(rows.size());
    for (const StockListRow& row : rows) {
        const QString text = toQt(row.text);
        rows_.push_back({toQt(row.key),
                         text,
                         names_.sortKey(text),
                         {row.icon, row.brakeIcon, row.couplingIcon},
                         row.unused});
    }
    sortRows();
    endResetModel();
}

void StockModel::updateUnused(const std::vector<StockListRow>& rows) {
    std::unordered_set<std::string> unused;
    for (const StockListRow& row : rows)
        if (row.unused)
            unused.insert(row.key);
    for (Row& row : rows_)
        row.unused = unused.contains(fromQt(row.key));
    if (!rows_.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1), {Qt::ForegroundRole});
}

void StockModel::setTitles(const QStringList& titles) {
    titles_ = titles;
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

void StockModel::sortRows() {
    std::ranges::stable_sort(rows_, [this](const Row& a, const Row& b) {
        return order_ == Qt::AscendingOrder ? a.sortKey < b.sortKey : b.sortKey < a.sortKey;
    });
}

void StockModel::setNameOrder(const QCollator& names) {
    names_ = names;
    beginResetModel();
    for (Row& row : rows_)
        row.sortKey = names_.sortKey(row.text);
    sortRows();
    endResetModel();
}

void StockModel::sort(int, Qt::SortOrder order) {
    order_ = order;
    beginResetModel();
    sortRows();
    endResetModel();
}

QModelIndex StockModel::indexOfKey(const QString& key) const {
    const auto row = std::ranges::find(rows_, key, &Row::key);
    return row == rows_.end() ? QModelIndex() : index(static_cast<int>(row - rows_.begin()), NameColumn);
}

int StockModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int StockModel::columnCount(const QModelIndex&) const {
    return ColumnCount;
}

QVariant StockModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const Row& row = rows_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return index.column() == NameColumn ? QVariant(row.text) : QVariant();
    case Qt::ToolTipRole:
        return plainTip(description(row, index.column()));
    case Qt::AccessibleTextRole:
        return description(row, index.column());
    case KeyRole:
        return row.key;
    case Qt::DecorationRole:
        return icons_.of(row.icons[static_cast<std::size_t>(index.column())]);
    case Qt::ForegroundRole:
        return row.unused ? theme::Unused : textColour_.isValid() ? QVariant(textColour_) : QVariant();
    default:
        return {};
    }
}

QIcon StockModel::Icons::of(int number) const {
    const auto [place, isNew] = known_.try_emplace(number);
    if (isNew && number > 0)
        place->second = listIcon(number);
    return place->second;
}

QVariant StockModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
        return titles_.value(section);
    return {};
}

Qt::ItemFlags StockModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
}

QMimeData* StockModel::mimeData(const QModelIndexList& indexes) const {
    if (indexes.isEmpty())
        return nullptr;
    auto* data = new QMimeData;
    data->setData(MimeType, indexes.first().data(KeyRole).toString().toUtf8());
    return data;
}

} // namespace zandor
