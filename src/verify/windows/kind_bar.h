// A row of buttons, one for each kind of fault that was found, with how many there are: the one that is down
// is the filter.
#pragma once

#include "verify/fault_kinds.h"

#include <QWidget>

#include <optional>
#include <vector>

class QButtonGroup;
class QToolButton;

namespace zandor {

class ButtonBar;

class KindBar final : public QWidget {
    Q_OBJECT
  public:
    explicit KindBar(QWidget* parent);

    // The button of `chosen` is down; without one, or when it isn't among them, the first one, for all.
    void showCounts(const Frame& frame, const std::vector<FaultCount>& counts,
                    const std::optional<FaultKind>& chosen);

  signals:
    void chosen(const std::optional<FaultKind>& kind);

  private:
    void add(const QString& text, const QString& tip, const std::optional<FaultKind>& kind, bool down);

    ButtonBar* row_;
    QButtonGroup* group_;
    std::vector<QToolButton*> buttons_;
};

} // namespace zandor
