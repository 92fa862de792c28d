// The lists of the verifier's tab: rows in columns, with a hint where there are none.
#pragma once

#include "editor/windows/row_model.h"
#include "editor/windows/row_view.h"

#include <vector>

namespace zandor {

class ResultModel final : public RowModel {
    Q_OBJECT
  public:
    // `figures`: the column that holds numbers; -1: none.
    ResultModel(int columns, int figures, QObject* parent) : RowModel(columns, parent), figures_(figures) {}

    void setRows(std::vector<ListRow> rows) { takeRows(std::move(rows)); }
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    int figures_;
};

class ResultView final : public RowView {
    Q_OBJECT
  public:
    ResultView(ResultModel& model, const char* name, QWidget* parent);

    ResultModel& rows() const { return model_; }
    void setEmptyHint(const QString& hint);

    int currentNumber() const;              // of the record; -1: none
    std::vector<int> chosenNumbers() const; // ascending by row
    int chosenCount() const;
    void showRow(int row); // current and in sight; none when there is no such row
    // Selects the rows for which `wanted` holds, and no others.
    template <class Wanted> void chooseRows(Wanted wanted) {
        std::vector<bool> chosen;
        chosen.reserve(model_.rows().size());
        for (const ListRow& row : model_.rows())
            chosen.push_back(wanted(row.number));
        choose(chosen);
    }
    // The columns behind the first one become as wide as these texts.
    void fitColumns(const QStringList& longest);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void choose(const std::vector<bool>& rows);

    ResultModel& model_;
    QString hint_;
};

} // namespace zandor
