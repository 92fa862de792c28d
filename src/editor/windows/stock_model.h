// The rows of the stock list: names, brakes and couplings.
#pragma once

#include "catalogue/stock_list.h"
#include "editor/windows/row_model.h"

#include <QIcon>

#include <array>
#include <functional>
#include <unordered_map>
#include <vector>

namespace zandor {

class StockModel final : public RowModel {
    Q_OBJECT
  public:
    enum Column { NameColumn, BrakeColumn, CouplingColumn, ColumnCount };
    // The type of a dragged row: its data is the number of the stock entry.
    static constexpr const char* MimeType = "application/x-zandor-stock";

    explicit StockModel(QObject* parent) : RowModel(ColumnCount, parent) {}

    void setRows(const std::vector<StockListRow>& rows);
    // Only the colours: which rows are unused.
    void updateUnused(const std::vector<StockListRow>& rows);
    // What a cell shows, in words: its tool tip, and what a screen reader says.
    void setDescriber(std::function<QString(int stock, Column column)> describe) {
        describe_ = std::move(describe);
    }

    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QStringList mimeTypes() const override { return {MimeType}; }
    QMimeData* mimeData(const QModelIndexList& indexes) const override;

  private:
    struct Look {
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
    QString description(const QModelIndex& index) const;

    std::vector<Look> looks_; // of the rows
    Icons icons_;
    std::function<QString(int, Column)> describe_;
};

} // namespace zandor
