#include "editor/windows/row_view.h"

#include <QHeaderView>

namespace zandor {

namespace {
constexpr int NameColumn = 0;
} // namespace

RowView::RowView(QWidget* parent) : QTreeView(parent) {
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    QHeaderView* columns = header();
    columns->setStretchLastSection(false);
    columns->setSectionsMovable(false);
    columns->setSectionsClickable(true);
    columns->setMinimumSectionSize(6 * fontMetrics().averageCharWidth());
    connect(columns, &QHeaderView::sectionResized, this, [this](int column) {
        if (column != NameColumn && !sizing_)
            sizedByUser_ = true;
    });
}

void RowView::setModel(QAbstractItemModel* model) {
    sizing_ = true; // the sections come with the model
    QTreeView::setModel(model);
    header()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    sizing_ = false;
}

void RowView::showColours(const QColor& background, const QColor& text) {
    QPalette colours = palette();
    if (background.isValid())
        colours.setColor(QPalette::Base, background);
    if (text.isValid())
        colours.setColor(QPalette::Text, text);
    setPalette(colours);
}

void RowView::sizeColumn(int column, int width) {
    sizing_ = true;
    header()->resizeSection(column, width);
    sizing_ = false;
}

void RowView::showColumn(int column, bool shown) {
    sizing_ = true;
    setColumnHidden(column, !shown);
    sizing_ = false;
}

void RowView::keyboardSearch(const QString& text) {
    if (currentIndex().column() > NameColumn)
        setCurrentIndex(currentIndex().siblingAtColumn(NameColumn));
    QTreeView::keyboardSearch(text);
}

} // namespace zandor
