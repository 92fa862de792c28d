// What follows a pass: the list of invalid files, and the moving and deleting of files that stand in it. The
// catalogue and the consist under edit follow each change of the disk.
#pragma once

#include "editor/consist_document.h"
#include "frame/finding.h"
#include "verify/verify_records.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zandor {

// What FillResultList shows: only records that have a File, in their order.
void compactInvalidFiles(std::vector<InvalidFile>& files);

VerifiedKind kindOf(const InvalidFile& file); // by its extension
std::string invalidPath(const InvalidFile& file);

// The captions beside the list: lblDossier, empty for a consist, and lblSelection.
std::string placeCaption(const InvalidFile& file);
std::string selectionCaption(const Frame& frame, const InvalidFile& file);
// What the pointer over one of the two lists brings up.
enum class ResultList { Files, Keys };
Message resultHint(VerifiedKind kind, ResultList list);

// What became of the files that were to be moved or deleted.
struct [[nodiscard]] FilesGone {
    int gone = 0; // files that are no longer where they were, and no longer in the lists
    Findings told{};
};

// `chosen`: positions in InvalidFiles, from 0; those that went are taken out of it. One file is asked for in
// a file dialog, several go to the folders "Rames", "Motrices" and "Wagons" of the backup folder after one
// question. A copy is read back before its original is deleted; whatever fails leaves the original. Yields
// once a file: nobody else may change the results meanwhile.
FilesGone moveInvalidFiles(Editor& editor, VerifResults& results, const std::vector<int>& chosen);
// The same without a copy, after one question.
FilesGone deleteInvalidFiles(Editor& editor, VerifResults& results, const std::vector<int>& chosen);

// A folder in the desktop's own file manager. Not done: there is no such folder, or nothing shows it.
Outcome openFolder(Frame& frame, std::string_view folder);

} // namespace zandor
