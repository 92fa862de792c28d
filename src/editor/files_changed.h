// Files that others than the editor have changed or taken from the disk: the catalogue, the use counts and
// the consist under edit follow.
#pragma once

#include "editor/consist_document.h"

#include <string>
#include <string_view>
#include <vector>

namespace zandor {

// A consist or a stock file that isn't there any more.
struct GoneFile {
    std::string base; // the folder above `folder`, ended by "\": CONSISTS or TRAINSET of one of the two roots
    std::string folder; // under TRAINSET; empty for a consist
    std::string name;   // with extension
};

// Stock leaves a free slot in its array, since positions there are identities; on the strip it becomes a
// Missing vehicle, which a save writes back. A consist leaves ConsistFiles, ConsistIndex and the counts of
// its stock.
void forgetFiles(Editor& editor, const std::vector<GoneFile>& gone);

// A consist file that has come to stand in the folder of one of the roots; any other path is passed over.
void noteConsistFile(Editor& editor, std::string_view path);

// A consist that has changed. One that can't be read any more counts as it did.
void rereadConsist(Frame& frame, Catalogue& catalogue, std::string_view path);

} // namespace zandor
