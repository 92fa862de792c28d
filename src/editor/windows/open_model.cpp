#include "editor/windows/open_model.h"

#include "frame/windows/art.h"
#include "frame/windows/name_order.h"
#include "frame/windows/qt_text.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace zandor {

namespace {

constexpr QColor IncompleteColour{255, 0, 0};

constexpr std::pair<const char*, Message> Columns[OpenModel::ColumnCount] = {
    {"C_NAME", Message::ColumnFullName},
    {"C_COMPO", Message::ColumnComposition},
    {"C_FILE", Message::ColumnFile},
};

} // namespace

OpenModel::OpenModel(const Frame& frame, QObject* parent)
    : QAbstractTableModel(parent), names_(nameOrder(toQt(frame.state.Language))),
      inServiceTip_(toQt(frame.text(Message::TipUsedByService))),
      notInServiceTip_(toQt(frame.text(Message::TipUsedByNoService))),
      incompleteTip_(toQt(frame.text(Message::TipIncomplete))), inServiceIcon_(artIcon(RouteMarkYes.data())),
      notInServiceIcon_(artIcon(RouteMarkNo.data())) {
    for (std::size_t i = 0; i < ColumnCount; ++i)
        titles_[i] = toQt(frame.text(Columns[i].second));
    incompleteFont_.setBold(true);
}

void OpenModel::setRows(const std::vector<ConsistSummary>& summaries, const std::vector<int>& rows) {
    beginResetModel();
    rows_.clear();
    rows_.reserve(rows.size());
    for (const int index : rows) {
        const ConsistSummary& summary = summaries[static_cast<std::size_t>(index)];
        rows_.push_back({QString("KEY_%1").arg(index),
                         {toQt(summary.FullName), toQt(summary.Composition), toQt(summary.FileName)},
                         summary.RouteMark == RouteMarkYes,
                         summary.Complete});
    }
    endResetModel();
}

void OpenModel::sort(int column, Qt::SortOrder order) {
    std::vector<std::pair<QCollatorSortKey, std::size_t>> keys;
    keys.reserve(rows_.size());
    for (const Row& row : rows_)
        keys.emplace_back(names_.sortKey(row.texts[static_cast<std::size_t>(column)]), keys.size());
    std::ranges::stable_sort(keys, [order](const auto& a, const auto& b) {
        return order == Qt::AscendingOrder ? a.first < b.first : b.first < a.first;
    });

    beginResetModel();
    std::vector<Row> sorted;
    sorted.reserve(rows_.size());
    for (const auto& [key, row] : keys)
        sorted.push_back(std::move(rows_[row]));
    rows_ = std::move(sorted);
    endResetModel();
}

QModelIndex OpenModel::indexOfKey(const QString& key) const {
    const auto row = std::ranges::find(rows_, key, &Row::key);
    return row == rows_.end() ? QModelIndex() : index(static_cast<int>(row - rows_.begin()), NameColumn);
}

QString OpenModel::longestText(Column column) const {
    QString longest = titles_[column];
    for (const Row& row : rows_)
        if (row.texts[column].size() > longest.size())
            longest = row.texts[column];
    return longest;
}

int OpenModel::incompleteCount() const {
    return static_cast<int>(std::ranges::count(rows_, false, &Row::complete));
}

int OpenModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int OpenModel::columnCount(const QModelIndex&) const {
    return ColumnCount;
}

QString OpenModel::toolTip(const Row& row) const {
    const QString& service = row.inService ? inServiceTip_ : notInServiceTip_;
    return row.complete ? service : incompleteTip_ + u'\n' + service;
}

QVariant OpenModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const Row& row = rows_[static_cast<std::size_t>(index.row())];
    const QString& text = row.texts[static_cast<std::size_t>(index.column())];
    const bool isName = index.column() == NameColumn;
    switch (role) {
    case Qt::DisplayRole:
        return text;
    case Qt::ToolTipRole:
        return plainTip(text + u'\n' + toolTip(row));
    case Qt::AccessibleTextRole: // what colour and icon say
        return isName ? text + u'\n' + toolTip(row) : text;
    case Qt::DecorationRole:
        return isName ? QVariant(row.inService ? inServiceIcon_ : notInServiceIcon_) : QVariant();
    case Qt::ForegroundRole:
        return row.complete ? (textColour_.isValid() ? QVariant(textColour_) : QVariant()) : IncompleteColour;
    case Qt::FontRole:
        return row.complete ? QVariant() : incompleteFont_;
    case KeyRole:
        return row.key;
    default:
        return {};
    }
}

QVariant OpenModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return titles_[static_cast<std::size_t>(section)];
    case KeyRole:
        return Columns[section].first;
    case Qt::TextAlignmentRole:
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    default:
        return {};
    }
}

} // namespace zandor
