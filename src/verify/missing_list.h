// The list of what shapes, cab views and sound sets name that isn't there.
#pragma once

#include "verify/checks.h"

#include <string>

namespace zandor {

// Below TRAINSET; the key of the list.
inline std::string ownerOf(const CheckTarget& target) {
    return target.RelDir + target.File;
}

// False when this pass has looked into the file already.
bool beginExamination(VerifWork& work, const CheckTarget& target);

// The last entry of the list when it is this target's, otherwise a new one.
MissingEntry& missingEntryOf(VerifResults& results, MissingKind kind, const CheckTarget& target);

// Takes out the entries whose Owner is empty; the others keep their order.
void CompactMissingList(VerifResults& results);

int countMissing(const VerifResults& results, MissingKind kind);       // items
int countMissingOwners(const VerifResults& results, MissingKind kind); // files that name them
int countDistinctNames(const VerifResults& results, MissingKind kind); // of items, case ignored

} // namespace zandor
