#include "editor/windows/row_model.h"

#include <algorithm>
#include <utility>

namespace zandor {

void RowModel::takeRows(std::vector<ListRow> rows) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

void RowModel::setTitles(const QStringList& titles) {
    titles_ = titles;
    emit headerDataChanged(Qt::Horizontal, 0, columns_ - 1);
}

int RowModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int RowModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns_;
}

QVariant RowModel::data(const QModelIndex& index, int role) const {
    const ListRow& row = rowAt(index);
    switch (role) {
    case Qt::DisplayRole:
        return row.texts[static_cast<std::size_t>(index.column())];
    case Qt::ForegroundRole:
        return textColour_.isValid() ? QVariant(textColour_) : QVariant();
    case KeyRole:
        return QString("KEY_%1").arg(row.number);
    case NumberRole:
        return row.number;
    default:
        return {};
    }
}

QVariant RowModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    return role == Qt::DisplayRole || role == Qt::ToolTipRole ? QVariant(titles_.value(section)) : QVariant();
}

Qt::ItemFlags RowModel::flags(const QModelIndex& index) const {
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren
                           : Qt::NoItemFlags;
}

RowOrder::RowOrder(RowModel& rows, QObject* parent) : QSortFilterProxyModel(parent), rows_(rows) {
    connect(&rows, &QAbstractItemModel::modelAboutToBeReset, this, [this] { keys_.clear(); });
    setSourceModel(&rows);
}

void RowOrder::setNameOrder(const QCollator& names) {
    names_ = names;
    keys_.clear();
    invalidate();
}

void RowOrder::sort(int column, Qt::SortOrder order) {
    keys_.clear();
    QSortFilterProxyModel::sort(column, order);
}

QModelIndex RowOrder::indexOf(int number) const {
    const auto row = std::ranges::find(rows_.rows(), number, &ListRow::number);
    return row == rows_.rows().end()
               ? QModelIndex()
               : mapFromSource(rows_.index(static_cast<int>(row - rows_.rows().begin()), 0));
}

// A key a row: two texts are compared many times.
void RowOrder::makeKeys(int column) const {
    keys_.reserve(rows_.rows().size());
    for (const ListRow& row : rows_.rows())
        keys_.push_back(names_.sortKey(row.texts[static_cast<std::size_t>(column)]));
}

bool RowOrder::lessThan(const QModelIndex& left, const QModelIndex& right) const {
    if (keys_.empty())
        makeKeys(left.column());
    return keys_[static_cast<std::size_t>(left.row())] < keys_[static_cast<std::size_t>(right.row())];
}

} // namespace zandor
