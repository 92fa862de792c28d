// Keeps the folder of the user's thumbnails tidy: those whose stock is gone leave it, and come back with
// their stock.
#pragma once

#include "frame/frame.h"
#include "platform/letter_case.h"

#include <string>
#include <unordered_set>

namespace zandor {

struct Catalogue;

using NameSet = std::unordered_set<std::string, TextHash, std::equal_to<>>;

// Compares the thumbnails with the stock of both roots, moves them, and tells the user what was moved and,
// once, when a folder can't be written to. False: the user ended it; what was done until then stands.
bool ControlThumbnails(Frame& frame, Catalogue& catalogue);

struct ThumbnailMoves {
    int count = 0;
    std::string failedFolder; // the first one that could not be written to; empty: none
    bool ended = false;       // by the user
};
// Moves every thumbnail out of its folder whose name, in upper case without extension, isn't in use.
ThumbnailMoves MoveUnusedThumbnails(Frame& frame, const NameSet& inUse);

} // namespace zandor
