// The repair of sound sets: each wave that isn't where its set says is looked for by name in the simulator's
// own Sound folder and in those of all stock, and its place is written into the set.
#pragma once

#include "verify/checks.h"

namespace zandor {

// Rewrites the sets of `work.queues.RepairTargets`. Returns how many were written; progress a set. False in
// `done`: the user ended it.
struct SoundRepair {
    bool done = true;
    int repaired = 0;
    std::vector<std::string> failed; // paths of sets that couldn't be written
};
SoundRepair RepairSoundFiles(VerifWork& work);

} // namespace zandor
