// A list of rows in columns, in which typed letters look for names.
#pragma once

#include <QTreeView>

namespace zandor {

class RowView : public QTreeView {
    Q_OBJECT
  public:
    using QTreeView::QTreeView;

    // A click on another column of the row leaves the letters to the names, in the first one.
    void keyboardSearch(const QString& text) override {
        if (currentIndex().column() > 0)
            setCurrentIndex(currentIndex().siblingAtColumn(0));
        QTreeView::keyboardSearch(text);
    }
};

} // namespace zandor
