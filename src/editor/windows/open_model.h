// The rows of the open-consist dialog.
#pragma once

#include "catalogue/catalogue.h"
#include "editor/windows/row_model.h"

#include <QFont>
#include <QIcon>

#include <vector>

namespace zandor {

class OpenModel final : public RowModel {
    Q_OBJECT
  public:
    enum Column { NameColumn, CompositionColumn, FileColumn, ColumnCount };

    OpenModel(const Frame& frame, QObject* parent);

    // Replaces the rows, in the order of `rows`: numbers of summaries.
    void setRows(const std::vector<ConsistSummary>& summaries, const std::vector<int>& rows);
    QString longestText(Column column) const;
    int incompleteCount() const;

    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    struct Look {
        bool inService = false;
        bool complete = true;
    };
    QString toolTip(const Look& look) const;

    std::vector<Look> looks_; // of the rows
    QString inServiceTip_, notInServiceTip_, incompleteTip_;
    QIcon inServiceIcon_, notInServiceIcon_;
    QFont incompleteFont_;
};

} // namespace zandor
