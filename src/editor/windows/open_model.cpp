#include "editor/windows/open_model.h"

#include "editor/messages.h"
#include "frame/windows/art.h"
#include "frame/windows/qt_text.h"

#include <algorithm>
#include <utility>

namespace zandor {

namespace {

constexpr QColor IncompleteColour{255, 0, 0};

constexpr std::pair<const char*, Message> Columns[OpenModel::ColumnCount] = {
    {"C_NAME", message::ColumnFullName},
    {"C_COMPO", message::ColumnComposition},
    {"C_FILE", message::ColumnFile},
};

} // namespace

OpenModel::OpenModel(const Frame& frame, QObject* parent)
    : RowModel(ColumnCount, parent), inServiceTip_(toQt(frame.text(message::TipUsedByService))),
      notInServiceTip_(toQt(frame.text(message::TipUsedByNoService))),
      incompleteTip_(toQt(frame.text(message::TipIncomplete))), inServiceIcon_(artIcon(RouteMarkYes.data())),
      notInServiceIcon_(artIcon(RouteMarkNo.data())) {
    QStringList titles;
    for (const auto& [key, message] : Columns)
        titles.append(toQt(frame.text(message)));
    setTitles(titles);
    incompleteFont_.setBold(true);
}

void OpenModel::setRows(const std::vector<ConsistSummary>& summaries, const std::vector<int>& rows) {
    std::vector<ListRow> taken;
    taken.reserve(rows.size());
    looks_.clear();
    looks_.reserve(rows.size());
    for (const int number : rows) {
        const ConsistSummary& summary = summaries[static_cast<std::size_t>(number)];
        taken.push_back(
            {number, {toQt(summary.FullName), toQt(summary.Composition), toQt(summary.FileName)}});
        looks_.push_back({summary.RouteMark == RouteMarkYes, summary.Complete});
    }
    takeRows(std::move(taken));
}

QString OpenModel::longestText(Column column) const {
    QString longest = headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    for (const ListRow& row : rows())
        if (row.texts[column].size() > longest.size())
            longest = row.texts[column];
    return longest;
}

int OpenModel::incompleteCount() const {
    return static_cast<int>(std::ranges::count(looks_, false, &Look::complete));
}

QString OpenModel::toolTip(const Look& look) const {
    const QString& service = look.inService ? inServiceTip_ : notInServiceTip_;
    return look.complete ? service : incompleteTip_ + u'\n' + service;
}

QVariant OpenModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const Look& look = looks_[static_cast<std::size_t>(index.row())];
    const QString& text = rowAt(index).texts[static_cast<std::size_t>(index.column())];
    const bool isName = index.column() == NameColumn;
    switch (role) {
    case Qt::ToolTipRole:
        return plainTip(text + u'\n' + toolTip(look));
    case Qt::AccessibleTextRole: // what colour and icon say
        return isName ? text + u'\n' + toolTip(look) : text;
    case Qt::DecorationRole:
        return isName ? QVariant(look.inService ? inServiceIcon_ : notInServiceIcon_) : QVariant();
    case Qt::ForegroundRole:
        return look.complete ? RowModel::data(index, role) : QVariant(IncompleteColour);
    case Qt::FontRole:
        return look.complete ? QVariant() : incompleteFont_;
    default:
        return RowModel::data(index, role);
    }
}

QVariant OpenModel::headerData(int section, Qt::Orientation orientation, int role) const {
    const bool isColumn = orientation == Qt::Horizontal && section >= 0 && section < ColumnCount;
    return isColumn && role == KeyRole ? QVariant(Columns[section].first)
                                       : RowModel::headerData(section, orientation, role);
}

} // namespace zandor
