// Carries out what the main window's panes ask for on the consist under edit, and says when it has changed.
#pragma once

#include "editor/consist_document.h"

#include <QObject>

#include <functional>

namespace zandor {

// Whatever shows the document or the stock listens here. A signal comes before the messages of the operation:
// behind them everything shows what they speak of.
class DocumentEdits final : public QObject {
    Q_OBJECT
  public:
    explicit DocumentEdits(Editor& editor) : editor_(editor) {}

    Editor& editor() const { return editor_; }
    const ConsistDocument& document() const { return editor_.document; }

    // An edit that has nothing to tell.
    void change(const std::function<void(Editor&)>& operation);
    // An edit, with what it tells. Returns whether it was done.
    bool carryOut(const std::function<Outcome(Editor&)>& operation);
    // The same for what may open or save a consist, which can bring stock and changes what is used.
    bool carryOutWithFiles(const std::function<Outcome(Editor&)>& operation);

  signals:
    void documentChanged();
    void catalogueChanged();

  private:
    Editor& editor_;
};

} // namespace zandor
