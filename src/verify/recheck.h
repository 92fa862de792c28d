// One file checked again after it was changed: the lists, the mandatory keys and the catalogue follow.
#pragma once

#include "catalogue/catalogue.h"
#include "verify/checks.h"
#include "verify/external_editor.h"

#include <optional>
#include <string_view>

namespace zandor {

// `path`: of a consist, or of stock under TRAINSET of the primary root. Its record in InvalidFiles is made
// anew, in the place that it had (a file that had none comes last), or goes. Returns its position, from 0, or
// nothing when no fault is left. What the check tells at once goes through Dialogs.
std::optional<int> RecheckAfterEdit(VerifWork& work, Catalogue& catalogue, std::string_view path);

// The catalogue's entry of a stock file of the primary root, from the file as it is now; one that can't be
// read stays as it was. False: there is no such entry.
bool rereadStock(Frame& frame, Catalogue& catalogue, std::string_view folder, std::string_view file);

// The external editor on a file, then the recheck when that has changed it. `line`, if any, is one of the
// file's faults: the editor opens at it, in the file `opened`, where it stands.
EditorRun editAndRecheck(VerifWork& work, Catalogue& catalogue, std::string_view path,
                         const std::string& opened, const ErrorLine* line, EditorWait& wait);

} // namespace zandor
