#include "editor/strip_selection.h"

#include "editor/editor_parts.h"
#include "editor/messages.h"

#include <algorithm>

namespace zandor {

namespace {

Message statusOf(const Vehicule& vehicule) {
    if (vehicule.Missing)
        return message::StatusVehicleMissing;
    return vehicule.Flipped ? message::StatusVehicleFlipped : message::StatusVehicle;
}

} // namespace

bool hasSelection(const ConsistDocument& document) {
    return isPosition(document, document.selected);
}

void selectVehicule(ConsistDocument& document, int position) {
    document.selected = hasVehicles(document) ? std::clamp(position, 0, lastPosition(document)) : -1;
}

Outcome insertBeforeSelected(Editor& editor, int materielIndex) {
    ConsistDocument& document = editor.document;
    const int position = document.selected;
    if (!hasSelection(document))
        return appendStock(editor, materielIndex);
    clearDrag(document);
    document.DragActive = true;
    document.DragTarget = position;
    document.DragSource = std::max(0, position - 1);
    document.DragAtFront = position == 0;
    return dropStock(editor, materielIndex);
}

Outcome moveSelected(Editor& editor, int step) {
    ConsistDocument& document = editor.document;
    const int from = document.selected, to = from + step;
    if (!hasSelection(document) || !isPosition(document, to))
        return {true, {}};
    clearDrag(document);
    document.DragAtEnd = to == lastPosition(document) && step > 0;
    Outcome outcome = MoveVehicule(editor, from, step > 0 && !document.DragAtEnd ? to + 1 : to);
    clearDrag(document);
    selectVehicule(document, outcome.done ? to : from);
    return outcome;
}

void flipSelected(Editor& editor) {
    if (hasSelection(editor.document))
        flipVehiculeAt(editor, editor.document.selected);
}

void removeSelected(Editor& editor) {
    ConsistDocument& document = editor.document;
    if (!hasSelection(document))
        return;
    clearDrag(document);
    document.DragSource = document.selected;
    RemoveVehicule(editor);
    clearDrag(document);
    selectVehicule(document, document.selected);
}

std::optional<int> lookUpSelected(const ConsistDocument& document) {
    return lookUpVehicule(document, document.selected);
}

std::string describeSelected(const Editor& editor) {
    const ConsistDocument& document = editor.document;
    if (!hasSelection(document))
        return editor.frame.text(message::StatusNoVehicle);
    const Vehicule& vehicule = document.Vehicules[static_cast<std::size_t>(document.selected)];
    return editor.frame.text(statusOf(vehicule), {{"|1", std::to_string(document.selected + 1)},
                                                  {"|2", std::to_string(vehicleCount(document))},
                                                  {"|3", vehicule.Name},
                                                  {"|4", std::to_string(vehicule.Number)}});
}

} // namespace zandor
