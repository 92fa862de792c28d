// The rows of the stock list, sorted by name.
#pragma once

#include "catalogue/stock_list.h"

#include <QAbstractTableModel>
#include <QColor>
#include <QString>

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

    // Replaces the rows. Classes whose couplings the list leaves out have an empty third column.
    void setRows(const Frame& frame, std::vector<StockListRow> rows, bool showCouplings);
    // Only the colours: which rows are unused.
    void updateUnused(const std::vector<StockListRow>& rows);
    void setTitles(const QStringList& titles);
    void setTextColour(const QColor& colour) { textColour_ = colour; }

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
        QString key, sortText;
        QString texts[ColumnCount];
        bool hasCab = false;
        bool unused = false;
    };
    void sortRows();

    std::vector<Row> rows_;
    QStringList titles_;
    QColor textColour_;
    Qt::SortOrder order_ = Qt::AscendingOrder;
};

// "Bar / Chain" for "bar_chain" and the like in the user's language; a word that has no name stays as it is.
QString couplingText(const Frame& frame, std::string_view coupling);
QString brakeText(const Frame& frame, std::string_view brakeSystem);

} // namespace zandor
