// Opening a consist into the editor and saving it.
#pragma once

#include "editor/consist_document.h"

#include <string_view>

namespace zandor {

// Reads the file, sets HasFile and opens it. Not done: there is no such file or it isn't a consist; nothing
// changes.
Outcome openConsist(Editor& editor, std::string_view path);

// Brings document.rame and its items, already read, onto the strip.
Findings OpenFileRame(Editor& editor);

// True when there are unsaved changes and the user wants them saved.
bool AskSaveChanges(Editor& editor);

// Asks whether unsaved changes are to be saved, and saves them. Not done: the user wanted it and it did not
// complete.
Outcome offerToSave(Editor& editor);

// Checks the names, keeps a backup, writes, updates the use counts. Modified is cleared on success. Asks only
// before something is lost: vehicles that couldn't be read, the only copy of a file.
Outcome SaveFileRame(Editor& editor);

// The index update after a save.
void UpdateStockUse(Editor& editor, bool hadFile, const std::string& fullName, const std::string& fileName,
                    const std::string& folder);

} // namespace zandor
