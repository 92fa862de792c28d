#include "editor/windows/document_edits.h"

namespace zandor {

void DocumentEdits::change(const std::function<void(Editor&)>& operation) {
    operation(editor_);
    emit documentChanged();
}

bool DocumentEdits::carryOut(const std::function<Outcome(Editor&)>& operation) {
    const Outcome outcome = operation(editor_);
    emit documentChanged();
    return showOutcome(editor_.frame, outcome);
}

bool DocumentEdits::carryOutWithFiles(const std::function<Outcome(Editor&)>& operation) {
    return carryOut([&](Editor& editor) {
        Outcome outcome = operation(editor);
        emit catalogueChanged();
        return outcome;
    });
}

} // namespace zandor
