// The rows of a list in columns, each of which stands for a numbered record; and the order in which they are
// shown.
#pragma once

#include <QAbstractTableModel>
#include <QCollator>
#include <QColor>
#include <QSortFilterProxyModel>
#include <QString>

#include <vector>

namespace zandor {

struct ListRow {
    int number = 0;             // of the record, from 0
    std::vector<QString> texts; // of the first columns; the others hold icons
};

// Which icons, colours and words go with a row is the list's own.
class RowModel : public QAbstractTableModel {
    Q_OBJECT
  public:
    enum Role {
        KeyRole = Qt::UserRole, // "KEY_" and the number
        NumberRole
    };

    RowModel(int columns, QObject* parent) : QAbstractTableModel(parent), columns_(columns) {}

    void setTitles(const QStringList& titles);
    void setTextColour(const QColor& colour) { textColour_ = colour; }
    const std::vector<ListRow>& rows() const { return rows_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  protected:
    void takeRows(std::vector<ListRow> rows);
    const ListRow& rowAt(const QModelIndex& index) const {
        return rows_[static_cast<std::size_t>(index.row())];
    }

  private:
    int columns_;
    std::vector<ListRow> rows_;
    QStringList titles_;
    QColor textColour_;
};

// Sorts as the language does. Rows that are equal stay in the order of the model, as all do until a column is
// sorted.
class RowOrder final : public QSortFilterProxyModel {
    Q_OBJECT
  public:
    RowOrder(RowModel& rows, QObject* parent);

    void setNameOrder(const QCollator& names);
    void sort(int column, Qt::SortOrder order) override;
    QModelIndex indexOf(int number) const; // of a row; invalid when it isn't listed

  protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

  private:
    void makeKeys(int column) const;

    RowModel& rows_;
    QCollator names_;
    mutable std::vector<QCollatorSortKey> keys_; // of the sorted column; empty: to be made
};

} // namespace zandor
