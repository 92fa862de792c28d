#include "catalogue/catalogue.h"
#include "editor/consist_io.h"
#include "editor/editor_parts.h"
#include "editor/messages.h"
#include "frame/startup.h"

#include <algorithm>

namespace zandor {

int vehicleCount(const ConsistDocument& document) {
    return static_cast<int>(document.Vehicules.size());
}

bool hasVehicles(const ConsistDocument& document) {
    return !document.Vehicules.empty();
}

const Materiel* materielOf(const Editor& editor, const Vehicule& vehicule) {
    if (vehicule.Missing)
        return nullptr;
    const Catalogue& catalogue = editor.catalogue;
    const std::vector<Materiel>& materiels =
        (vehicule.FromSimulator ? catalogue.simulator : catalogue.here()).Materiels;
    const auto index = static_cast<std::size_t>(vehicule.MaterielIndex);
    return index < materiels.size() ? &materiels[index] : nullptr;
}

bool isEngine(const Editor& editor, const Vehicule& vehicule) {
    if (const Materiel* materiel = materielOf(editor, vehicule))
        return endsWithIgnoringCase(materiel->FileName, ".eng");
    return vehicule.origin && vehicule.origin->IsEngine;
}

void ResetEditor(Editor& editor) {
    ConsistDocument& document = editor.document;
    document.Vehicules.clear();
    ++document.stripChanges;
    document.RameStockOld.clear();
    document.RameStockNew.clear();
    document.Loading = document.faultyFile = false;
    document.selected = -1;
    document.NextNumber = document.PictureWidth = document.StripWidth = 0;
    clearDrag(document);
    document.HasFile = document.Modified = false;

    // The durability stays as the user has it.
    EditorControls controls;
    controls.durability = document.controls.durability;
    document.controls = std::move(controls);
    updateResistance(editor);
}

void beginNewConsist(Editor& editor) {
    ConsistDocument& document = editor.document;
    ResetEditor(editor);
    document.rame = {};
    document.rame.Serial = document.rame.NextWagonUID = document.NextNumber;
    document.rame.Durability = formatDurability(document.controls.durability / 1000.0);
    document.rame.MaxVelocity = EngineMaxVelocity;
    document.items.clear();
}

void initialiseDocument(Editor& editor) {
    beginNewConsist(editor);
}

bool AskSaveChanges(Editor& editor) {
    const ConsistDocument& document = editor.document;
    Frame& frame = editor.frame;
    if (!document.Modified)
        return false;
    const std::string question = document.HasFile
                                     ? frame.text(message::AskSaveExisting, {{"|1", document.rame.Name}})
                                     : frame.text(message::AskSaveNew);
    const int given = frame.show(question, style::YesNo + style::Question);
    frame.state.LastAnswer = std::to_string(given);
    return given == answer::Yes;
}

Outcome offerToSave(Editor& editor) {
    if (!AskSaveChanges(editor))
        return {true, {}};
    return SaveFileRame(editor);
}

Outcome newConsist(Editor& editor) {
    Outcome outcome = offerToSave(editor);
    if (outcome.done)
        beginNewConsist(editor);
    return outcome;
}

Outcome closeEditor(Editor& editor, std::vector<IniValue> alsoKept) {
    Outcome outcome = offerToSave(editor);
    if (outcome.done) {
        editor.document.HasFile = false;
        writeClosingSettings(editor.frame, std::move(alsoKept));
    }
    return outcome;
}

bool ReloadAfterOptions(Editor& editor) {
    AppState& state = editor.frame.state;
    state.Busy = true;
    beginNewConsist(editor);
    const bool complete = reloadCatalogue(editor.frame, editor.catalogue);
    state.Busy = false;
    return complete;
}

} // namespace zandor
