#include "verify/windows/result_view.h"

#include "frame/windows/qt_text.h"

#include <QApplication>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QPainter>

#include <algorithm>

namespace zandor {

namespace {
constexpr int RowGap = 5; // pixels
} // namespace

QVariant ResultModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    if (role == Qt::ToolTipRole)
        return plainTip(rowAt(index).texts[static_cast<std::size_t>(index.column())]);
    if (role == Qt::TextAlignmentRole && index.column() == figures_)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    if (role == Qt::SizeHintRole)
        return QSize(0, QFontMetrics(QApplication::font("QAbstractItemView")).height() + RowGap);
    return RowModel::data(index, role);
}

QVariant ResultModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role == Qt::TextAlignmentRole && section == figures_)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    return RowModel::headerData(section, orientation, role);
}

ResultView::ResultView(ResultModel& model, const char* name, QWidget* parent)
    : RowView(parent), model_(model) {
    setObjectName(name);
    setModel(&model);
    setTextElideMode(Qt::ElideMiddle);
    header()->setSectionsClickable(false);
}

void ResultView::setEmptyHint(const QString& hint) {
    hint_ = hint;
    viewport()->update();
}

int ResultView::currentNumber() const {
    return currentIndex().isValid() ? currentIndex().data(RowModel::NumberRole).toInt() : -1;
}

std::vector<int> ResultView::chosenNumbers() const {
    std::vector<bool> chosen(model_.rows().size());
    for (const QItemSelectionRange& range : selectionModel()->selection())
        std::fill(chosen.begin() + range.top(), chosen.begin() + range.bottom() + 1, true);
    std::vector<int> numbers;
    for (std::size_t row = 0; row < chosen.size(); ++row)
        if (chosen[row])
            numbers.push_back(model_.rows()[row].number);
    return numbers;
}

int ResultView::chosenCount() const {
    int count = 0;
    for (const QItemSelectionRange& range : selectionModel()->selection())
        count += range.height();
    return count;
}

void ResultView::showRow(int row) {
    const QModelIndex index = model_.index(row, 0);
    setCurrentIndex(index);
    if (index.isValid())
        scrollTo(index);
}

void ResultView::choose(const std::vector<bool>& rows) {
    QItemSelection selection;
    const int last = model_.columnCount() - 1;
    for (std::size_t begin = 0; begin < rows.size();) {
        std::size_t end = begin + 1;
        while (end < rows.size() && rows[end] == rows[begin])
            ++end;
        if (rows[begin])
            selection.append(QItemSelectionRange(model_.index(static_cast<int>(begin), 0),
                                                 model_.index(static_cast<int>(end) - 1, last)));
        begin = end;
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

void ResultView::fitColumns(const QStringList& longest) {
    if (sizedByUser())
        return;
    for (int i = 0; i < longest.size(); ++i) {
        const QString title = model_.headerData(i + 1, Qt::Horizontal, Qt::DisplayRole).toString();
        const int text = std::max(fontMetrics().horizontalAdvance(longest[i]),
                                  header()->fontMetrics().horizontalAdvance(title));
        sizeColumn(i + 1, text + 3 * fontMetrics().averageCharWidth());
    }
}

void ResultView::paintEvent(QPaintEvent* event) {
    RowView::paintEvent(event);
    if (model_.rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const QRect place = viewport()->rect().adjusted(12, 12, -12, -12);
    painter.drawText(place, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, hint_);
}

} // namespace zandor
