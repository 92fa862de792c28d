#include "editor/coupling.h"
#include "editor/editor_parts.h"

namespace zandor {

namespace {

bool isStock(const Editor& editor, int index) {
    const auto& materiels = editor.catalogue.here().Materiels;
    return index >= 0 && static_cast<std::size_t>(index) < materiels.size();
}

// The neighbours that the stock would get right of position `pos`; at the very front the one on the right
// alone.
bool fitsBeside(const Editor& editor, int pos, int index) {
    if (!CheckCoupling(editor, pos, index, false))
        return false;
    const ConsistDocument& document = editor.document;
    const bool between = !document.DragAtFront && pos < lastPosition(document);
    return !between || CheckCoupling(editor, pos + 1, index, false);
}

Outcome insertStock(Editor& editor, int pos, int index) {
    ConsistDocument& document = editor.document;
    if (!isStock(editor, index))
        return {};
    if (vehicleCount(document) >= MaxEntries)
        return {false, {stripFull(document)}};
    Outcome outcome;
    if (!fitsBeside(editor, pos, index) && !reactToBadCoupling(editor, outcome.told))
        return outcome;
    Materiel& materiel = editor.catalogue.here().Materiels[static_cast<std::size_t>(index)];
    document.PictureWidth = LoadMaterielPicture(editor.frame, editor.catalogue, materiel).width;
    outcome.done = InsertVehicule(editor, index, true, false);
    return outcome;
}

} // namespace

std::optional<int> lookUpVehicule(const ConsistDocument& document, int position) {
    if (!isPosition(document, position))
        return std::nullopt;
    const Vehicule& vehicule = document.Vehicules[static_cast<std::size_t>(position)];
    if (vehicule.Missing)
        return std::nullopt;
    return vehicule.FromSimulator ? -1 : vehicule.MaterielIndex;
}

void clearDrag(ConsistDocument& document) {
    document.DragActive = document.DragAtFront = document.DragAtEnd = document.StripPressed = false;
    document.DragSource = document.DragTarget = 0;
}

void dragOverStrip(Editor& editor, StripPoint point) {
    ConsistDocument& document = editor.document;
    const StripHit hit = HitTestStrip(document, point);
    if (hit.hit)
        document.DragTarget = hit.index;
    document.StripPressed = false;
    document.DragActive = true;
    document.DragAtEnd = hit.atEnd;
    document.DragAtFront = hit.atFront;
    if (hit.atEnd)
        document.DragSource = lastPosition(document);
    else
        document.DragSource = document.DragTarget > 0 ? document.DragTarget - 1 : 0;
}

Outcome dropStock(Editor& editor, int materielIndex) {
    ConsistDocument& document = editor.document;
    const int pos = document.DragActive ? document.DragSource : lastPosition(document);
    Outcome outcome = insertStock(editor, pos, materielIndex);
    clearDrag(document);
    return outcome;
}

Outcome appendStock(Editor& editor, int materielIndex) {
    clearDrag(editor.document);
    return dropStock(editor, materielIndex);
}

void pressStrip(Editor& editor, StripPoint point) {
    ConsistDocument& document = editor.document;
    clearDrag(document); // a drag from the list that left the strip may still stand
    document.StripPressed = true;
    const StripHit hit = HitTestStrip(document, point);
    if (!hit.hit)
        return;
    document.DragSource = document.DragTarget = document.selected = hit.index;
    document.DragActive = true;
    document.DragAtFront = hit.atFront;
    document.DragAtEnd = hit.atEnd;
    updateStrip(editor);
}

void moveOnStrip(Editor& editor, StripPoint point) {
    ConsistDocument& document = editor.document;
    if (!document.StripPressed || !document.DragActive)
        return;
    const StripHit hit = HitTestStrip(document, point);
    document.DragAtEnd = hit.atEnd;
    if (hit.hit)
        document.DragTarget = hit.index;
    else if (hit.atEnd) // the pointer may have jumped over the vehicles between
        document.DragTarget = lastPosition(document);
}

Release releaseStrip(Editor& editor, ReleaseZone zone) {
    ConsistDocument& document = editor.document;
    Release release;
    if (document.DragActive) {
        if (zone == ReleaseZone::Preview)
            release.lookedUp = lookUpVehicule(document, document.DragSource);
        else if (document.StripPressed && zone == ReleaseZone::Strip)
            release.told = MoveVehicule(editor, document.DragSource, document.DragTarget).told;
        else if (document.StripPressed)
            RemoveVehicule(editor);
    }
    clearDrag(document);
    updateStrip(editor);
    return release;
}

} // namespace zandor
