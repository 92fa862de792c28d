// A list of rows in columns: the names in the first one, which gets the room that the others leave.
#pragma once

#include <QTreeView>

class QColor;

namespace zandor {

class RowView : public QTreeView {
    Q_OBJECT
  public:
    explicit RowView(QWidget* parent);

    void setModel(QAbstractItemModel* model) override;
    // Background and text; an invalid colour stays as it is.
    void showColours(const QColor& background, const QColor& text);
    // From then on the columns stay as they are.
    bool sizedByUser() const { return sizedByUser_; }
    void sizeColumn(int column, int width);
    void showColumn(int column, bool shown);
    // Typed letters look for names, also after a click on another column of the row.
    void keyboardSearch(const QString& text) override;

  private:
    bool sizing_ = false; // not the user is sizing a column
    bool sizedByUser_ = false;
};

} // namespace zandor
