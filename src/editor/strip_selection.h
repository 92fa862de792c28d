// The selected vehicle of the strip, which the keyboard and the context menu work on. What they do is what
// the mouse does, by the same operations. Positions count from 0.
#pragma once

#include "editor/consist_document.h"

#include <string>

namespace zandor {

bool hasSelection(const ConsistDocument& document);
// Selects a vehicle, the nearest one when there is none at the position.
void selectVehicule(ConsistDocument& document, int position);

// Entry `materielIndex` put in front of the selected vehicle, at the end when none is selected; it is the
// selected one from then on. Not done: refused.
Outcome insertBeforeSelected(Editor& editor, int materielIndex);
// One place to the left (-1) or to the right (1). Not done: refused.
Outcome moveSelected(Editor& editor, int step);
void flipSelected(Editor& editor); // a Missing one stays as it is
void removeSelected(Editor& editor);
// As releaseStrip() gives it for a release on the preview.
std::optional<int> lookUpSelected(const ConsistDocument& document);

// "Vehicle 2 of 5: ..." in the user's language.
std::string describeSelected(const Editor& editor);

} // namespace zandor
