// Opening a consist into the editor and saving it.
#pragma once

#include "editor/consist_document.h"

#include <string_view>

namespace zandor {

// Reads the file, sets HasFile and opens it. False: there is no such file or it isn't a consist; nothing
// changes.
bool openConsist(Editor& editor, std::string_view path);

// Brings document.rame and its items, already read, onto the strip.
void OpenFileRame(Editor& editor);

// Asks whether unsaved changes are to be saved, and saves them. False: the user wanted it and it did not
// complete.
bool offerToSave(Editor& editor);

// Checks the names, keeps a backup, writes, updates the use counts, reports. Modified is cleared on success.
void SaveFileRame(Editor& editor);

// The index update after a save.
void UpdateStockUse(Editor& editor, bool hadFile, const std::string& fullName, const std::string& fileName,
                    const std::string& folder);

} // namespace zandor
