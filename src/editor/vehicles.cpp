#include "catalogue/messages.h"
#include "editor/coupling.h"
#include "editor/editor_parts.h"

#include <algorithm>

namespace zandor {

namespace {

constexpr int HighestNumber = 32767; // 16 bits in the file

// Behind the highest number the lowest one that no vehicle has follows.
int numberAfter(const ConsistDocument& document, int number) {
    if (number < HighestNumber)
        return number + 1;
    std::vector<bool> taken(HighestNumber + 1, false);
    for (const Vehicule& vehicule : document.Vehicules)
        if (vehicule.Number >= 0 && vehicule.Number <= HighestNumber)
            taken[static_cast<std::size_t>(vehicule.Number)] = true;
    return static_cast<int>(std::find(taken.begin(), taken.end(), false) - taken.begin());
}

void describeFrom(const Materiel& materiel, Vehicule& vehicule) {
    vehicule.Name = shownName(materiel);
    if (vehicule.Name.empty()) // stock that can't be read has but its file's name
        vehicule.Name = materiel.FileName;
    vehicule.Coupling = materiel.Coupling;
    vehicule.ImageIsGeneric = materiel.ImageIsGeneric;
    vehicule.ImageIsResource = materiel.ImageIsResource;
    vehicule.Picture = materiel.Picture;
    vehicule.Mass = materiel.Mass;
    vehicule.Size = materiel.Size;
}

void describeMissing(const RameItem& item, Vehicule& vehicule) {
    vehicule.Missing = true;
    vehicule.Name = stockFileOf(item);
    vehicule.Picture = MissingPicture;
    vehicule.ImageIsResource = true;
}

Vehicule makeVehicule(const Editor& editor, int index, bool fromMateriels, bool fromSimulator,
                      const RameItem* origin) {
    Vehicule vehicule;
    vehicule.FromSimulator = fromSimulator && !fromMateriels;
    vehicule.MaterielIndex = index;
    const Materiel* materiel = fromMateriels || fromSimulator ? materielOf(editor, vehicule) : nullptr;
    if (origin)
        vehicule.origin = *origin;
    if (materiel)
        describeFrom(*materiel, vehicule);
    else
        describeMissing(vehicule.origin ? *vehicule.origin : vehicule.origin.emplace(), vehicule);
    return vehicule;
}

// Where the vehicle comes to stand once it is out of `from`.
int destination(int from, int to, bool atEnd) {
    return from < to && !atEnd ? to - 1 : to;
}

void relocate(std::vector<Vehicule>& vehicules, int from, int dest) {
    const auto begin = vehicules.begin();
    if (from < dest)
        std::rotate(begin + from, begin + from + 1, begin + dest + 1);
    else
        std::rotate(begin + dest, begin + from, begin + from + 1);
}

// Where the vehicle at `position` stands once another, or itself, has moved.
int positionAfterMove(int position, int from, int dest) {
    if (position == from)
        return dest;
    if (position > from && position <= dest)
        return position - 1;
    return position < from && position >= dest ? position + 1 : position;
}

bool acceptsMove(Editor& editor, int from, int to, bool atEnd, Findings& told) {
    const int last = lastPosition(editor.document);
    const int left = std::clamp(atEnd ? to : to - 1, 0, last);
    const bool fits =
        CheckCoupling(editor, left, from, true) && (from >= last || CheckCoupling(editor, from, to, true));
    return fits || reactToBadCoupling(editor, told);
}

// At the drag's target, or behind the last vehicle.
int insertPosition(const ConsistDocument& document) {
    const bool amid = document.DragActive && !document.DragAtEnd && isPosition(document, document.DragTarget);
    return amid ? document.DragTarget : vehicleCount(document);
}

} // namespace

bool InsertVehicule(Editor& editor, int index, bool fromMateriels, bool fromSimulator,
                    const RameItem* origin) {
    ConsistDocument& document = editor.document;
    if (vehicleCount(document) >= MaxEntries)
        return false;
    Vehicule vehicule = makeVehicule(editor, index, fromMateriels, fromSimulator, origin);
    vehicule.Number = document.NextNumber;
    vehicule.Width = document.PictureWidth;

    const int position = insertPosition(document);
    document.Vehicules.insert(document.Vehicules.begin() + position, std::move(vehicule));

    document.NextNumber = numberAfter(document, document.NextNumber);
    document.StripWidth += document.PictureWidth;
    if (document.Loading)
        return true; // the strip is laid out once, when the whole consist stands
    document.selected = position;
    document.Modified = true;
    updateStrip(editor);
    return true;
}

Outcome MoveVehicule(Editor& editor, int from, int to) {
    ConsistDocument& document = editor.document;
    const bool atEnd = document.DragAtEnd;
    if (!isPosition(document, from) || !isPosition(document, to) || from == to || (to == from + 1 && !atEnd))
        return {true, {}};
    Outcome outcome;
    if (!acceptsMove(editor, from, to, atEnd, outcome.told))
        return outcome;
    const int dest = destination(from, to, atEnd);
    relocate(document.Vehicules, from, dest);
    document.selected = positionAfterMove(document.selected, from, dest);
    document.Modified = true;
    clearDrag(document);
    updateStrip(editor);
    outcome.done = true;
    return outcome;
}

void RemoveVehicule(Editor& editor) {
    ConsistDocument& document = editor.document;
    std::vector<Vehicule>& vehicules = document.Vehicules;
    if (!isPosition(document, document.DragSource))
        return;
    const auto removed = vehicules.begin() + document.DragSource;
    document.StripWidth -= removed->Width;
    vehicules.erase(removed);
    if (document.selected > document.DragSource)
        --document.selected;
    document.selected = std::min(document.selected, vehicleCount(document) - 1);
    document.Modified = hasVehicles(document);
    updateStrip(editor);
}

void RenumberVehicles(Editor& editor) {
    ConsistDocument& document = editor.document;
    const AppState& state = editor.frame.state;
    if (document.Loading || !document.Modified || !state.PrintNumber)
        return;
    document.NextNumber = 0;
    for (Vehicule& vehicule : document.Vehicules)
        vehicule.Number = document.NextNumber++;
    document.Modified = true;
}

void numberButtonPressed(Editor& editor) {
    AppState& state = editor.frame.state;
    if (!hasVehicles(editor.document)) {
        editor.document.Modified = false;
        editor.document.controls.numberEnabled = false;
        return;
    }
    const bool kept = state.PrintNumber;
    state.PrintNumber = true;
    editor.document.Modified = true;
    updateStrip(editor);
    state.PrintNumber = kept;
}

void flipVehicule(Editor& editor, StripPoint point) {
    const StripHit hit = HitTestStrip(editor.document, point);
    if (hit.hit) {
        editor.document.selected = hit.index;
        flipVehiculeAt(editor, hit.index);
    }
    clearDrag(editor.document);
}

void flipVehiculeAt(Editor& editor, int position) {
    Vehicule& vehicule = editor.document.Vehicules[static_cast<std::size_t>(position)];
    if (vehicule.Missing)
        return;
    vehicule.Flipped = !vehicule.Flipped;
    editor.document.Modified = true;
    updateStrip(editor);
}

Finding stripFull(const ConsistDocument& document) {
    const std::string& name =
        document.rame.FileName.empty() ? document.controls.shortName : document.rame.FileName;
    return {.message = message::TooManyFiles, .params = {{"|1", name}, {"|2", std::to_string(MaxEntries)}}};
}

} // namespace zandor
