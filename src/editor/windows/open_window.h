// The dialog behind cmdOPEN: all consists of the root in use, one of which is opened.
#pragma once

#include "editor/consist_summaries.h"
#include "frame/windows/qt_progress.h"

#include <QDialog>

#include <functional>
#include <vector>

class QLabel;
class QProgressBar;
class QPushButton;
class QTimer;

namespace zandor {

class ElidedLabel;
class OpenModel;
class RowOrder;
class RowView;

// exec() gives Accepted when a consist has been opened. Otherwise the consist under edit is what it was,
// HasFile included. A reading that the user ends isn't kept.
class frmOpen final : public QDialog, public ProgressView {
    Q_OBJECT
  public:
    // Opens the file of this path. False: it can't be opened, the user has been told, and the dialog stays.
    using Open = std::function<bool(const std::string& path)>;

    frmOpen(Frame& frame, Catalogue& catalogue, Open open, QWidget* parent);

    void OpenSelectedConsist(); // does nothing when the list is empty

    void showStep(int lower, int upper, int current, const QString& text) override;
    bool ended() const override { return ended_; }
    void done(int result) override;

  protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void buildList();
    void layOut();
    void connectAll();
    void applySettings();
    void start();
    std::vector<int> rowsByName() const;
    void showList();
    void sizeColumns();
    void showCounts();
    void showSelected();
    const ConsistSummary* selected() const; // nullptr: none
    void sortBy(int column);

    Frame& frame_;
    Catalogue& catalogue_;
    Open open_;
    OpenModel* model_;
    RowOrder* sorted_;
    RowView* lsvCONSISTS_;
    ElidedLabel* Label1_;
    QLabel* lblCOUNT_;
    QProgressBar* ProgressBar1_;
    QPushButton *cmdOPEN_, *cmdCANCEL_;
    QTimer* Timer1_;
    bool started_ = false;
    bool ended_ = false;
    Qt::SortOrder order_ = Qt::DescendingOrder; // of the last column click; the first one sorts upwards
};

} // namespace zandor
