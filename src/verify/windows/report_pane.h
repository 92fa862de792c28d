// fmDOUBLONS and fmINTROUVABLES: a list of the pass as a text to read, and to save.
#pragma once

#include "verify/report.h"
#include "verify/windows/verify_session.h"

#include <QTextEdit>

#include <vector>

class QPushButton;
class QTimer;

namespace zandor {

class Captions;

// A long text comes in parts, between which the window lives.
class ReportView final : public QTextEdit {
    Q_OBJECT
  public:
    explicit ReportView(QWidget* parent);
    void showReport(Report report);
    const Report& report() const { return report_; }
    bool isComplete() const { return next_ >= report_.paragraphs.size(); }

  private:
    void addSome();
    void add(const Paragraph& paragraph, bool first);

    Report report_;
    std::size_t next_ = 0; // of its paragraphs, the first that isn't shown yet
    QTimer* adding_;
};

class ReportPane final : public QWidget {
    Q_OBJECT
  public:
    enum Kind { Duplicates, Missing };
    ReportPane(VerifySession& session, Kind kind, QWidget* parent);

    void addCaptions(Captions& captions);
    // Positions in the list of the results.
    void showEntries(const std::vector<int>& entries);

  private:
    Report reportOf(const std::vector<int>& entries) const;
    Message proposedName() const;
    void save();

    VerifySession& session_;
    Kind kind_;
    ReportView* text_;
    QPushButton* save_;
};

} // namespace zandor
