// The repair of Sound values that stand without quotes: they are put in the file, and nothing else changes.
#pragma once

#include "verify/checks.h"

#include <string>
#include <vector>

namespace zandor {

// A Sound key's value that doesn't begin with a quote.
bool lacksQuotes(const SimHit& hit);

// Repairs what of `hits`, the keys of the stock file `path` as just read, lacks quotes, all in one write; the
// hits then say what the file says. What can't be repaired is counted, and the user is told.
void repairQuotes(VerifWork& work, const std::string& path, std::vector<SimHit>& hits);

} // namespace zandor
