// The rows of the open-consist dialog.
#pragma once

#include "catalogue/catalogue.h"

#include <QAbstractTableModel>
#include <QCollator>
#include <QColor>
#include <QFont>
#include <QIcon>
#include <QString>

#include <array>
#include <vector>

namespace zandor {

class OpenModel final : public QAbstractTableModel {
    Q_OBJECT
  public:
    enum Column { NameColumn, CompositionColumn, FileColumn, ColumnCount };
    static constexpr int KeyRole = Qt::UserRole; // "KEY_" and the number of the summary

    OpenModel(const Frame& frame, QObject* parent);

    // Replaces the rows, in the order of `rows`; the list is unsorted until a column is clicked.
    void setRows(const std::vector<ConsistSummary>& summaries, const std::vector<int>& rows);
    void setTextColour(const QColor& colour) { textColour_ = colour; }

    void sort(int column, Qt::SortOrder order) override;
    QModelIndex indexOfKey(const QString& key) const; // invalid when it isn't listed
    QString longestText(Column column) const;
    int incompleteCount() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    struct Row {
        QString key;
        std::array<QString, ColumnCount> texts;
        bool inService = false;
        bool complete = true;
    };
    QString toolTip(const Row& row) const;

    std::vector<Row> rows_;
    QCollator names_;
    std::array<QString, ColumnCount> titles_;
    QString inServiceTip_, notInServiceTip_, incompleteTip_;
    QIcon inServiceIcon_, notInServiceIcon_;
    QColor textColour_;
    QFont incompleteFont_;
};

} // namespace zandor
