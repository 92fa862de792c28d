// fmRESULTATS: what the last pass has found, by kind and by words, in its three lists.
#pragma once

#include "verify/fault_kinds.h"
#include "verify/windows/verify_session.h"

#include <QWidget>

#include <array>
#include <memory>
#include <optional>

class QLineEdit;
class QRadioButton;
class QStackedWidget;
class QTimer;

namespace zandor {

class Captions;
class InvalidPane;
class KindBar;
class ReportPane;

class ResultsPane final : public QWidget {
    Q_OBJECT
  public:
    ResultsPane(VerifySession& session, QWidget* parent);

    void addCaptions(Captions& captions);
    void applyLanguage(); // the rest
    void clear();
    void showPass(); // the first list that has something
    void focusSearch();
    void focusResults();
    void nextFault();
    bool any() const; // there is something to show

  private:
    enum List { Invalid, Duplicates, Missing, ListCount };

    void build();
    void connectControls();
    void refresh(bool keepPlace);
    void showLists(bool keepPlace);
    bool has(List list) const;
    void chooseList(List list);
    void chooseKind(const std::optional<FaultKind>& kind);

    VerifySession& session_;
    std::unique_ptr<ResultFinder> finder_;
    std::optional<FaultKind> kind_;
    KindBar* kinds_;
    QLineEdit* tbSEARCH_;
    QTimer* searching_;
    std::array<QRadioButton*, ListCount> lists_{};
    QStackedWidget* shown_;
    InvalidPane* fmINVALIDE_;
    ReportPane *fmDOUBLONS_, *fmINTROUVABLES_;
};

} // namespace zandor
