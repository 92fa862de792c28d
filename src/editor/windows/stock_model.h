// The rows of the stock list, sorted by name.
#pragma once

#include "catalogue/stock_list.h"

#include <QAbstractTableModel>
#include <QCollator>
#include <QColor>
#include <QIcon>
#include <QString>

#include <array>
#include <functional>
#include <unordered_map>
#include <vector>

namespace zandor {

class StockModel final : public QAbstractTableModel {
    Q_OBJECT
  public:
    enum Column { NameColumn, BrakeColumn, CouplingColumn, ColumnCount };
    static constexpr int KeyRole = Qt::UserRole; // "KEY_" and the number of the stock entry
    // The type of a dragged row: its data is the key.
    static constexpr const char* MimeType = "application/x-zandor-stock";

    explicit StockModel(QObject* parent) : QAbstractTableModel(parent) {}

    void setRows(std::vector<StockListRow> rows);
    // Only the colours: which rows are unused.
    void updateUnused(const std::vector<StockListRow>& rows);
    void setTitles(const QStringList& titles);
    // What a cell shows, in words: its tool tip, and what a screen reader says.
    void setDescriber(std::function<QString(const QString& key, Column column)> describe) {
        describe_ = std::move(describe);
    }
    void setTextColour(const QColor& colour) { textColour_ = colour; }
    void setNameOrder(const QCollator& names);

    void sort(int column, Qt::SortOrder order) override; // always by name, whatever the column
    Qt::SortOrder order() const { return order_; }
    QModelIndex indexOfKey(const QString& key) const; // invalid when it isn't listed

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QStringList mimeTypes() const override { return {MimeType}; }
    QMimeData* mimeData(const QModelIndexList& indexes) const override;

  private:
    struct Row {
        QString key, text;
        QCollatorSortKey sortKey;
        std::array<int, ColumnCount> icons; // 0: none
        bool unused = false;
    };
    // Made when they are first shown.
    class Icons {
      public:
        QIcon of(int number) const;

      private:
        mutable std::unordered_map<int, QIcon> known_;
    };
    void sortRows();
    QString description(const Row& row, int column) const {
        return describe_ ? describe_(row.key, static_cast<Column>(column)) : QString();
    }

    std::vector<Row> rows_;
    QCollator names_;
    Icons icons_;
    std::function<QString(const QString&, Column)> describe_;
    QStringList titles_;
    QColor textColour_;
    Qt::SortOrder order_ = Qt::AscendingOrder;
};

} // namespace zandor
