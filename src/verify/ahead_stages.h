// The stages of a pass that look into many files, which are read ahead on several threads and judged on the
// caller's, one by one and in order: what is found, told and asked is the same with any number of threads,
// see readAhead().
#pragma once

#include "verify/checks.h"
#include "verify/verification.h"

#include <span>
#include <vector>

namespace zandor {

// Each of these: false when the user has ended the pass.
// Those of one batch, `chosen` being positions in the selection.
bool checkChosen(VerifWork& work, const VerifSelection& selection, std::span<const int> chosen, int threads);
bool checkTextures(VerifWork& work, int threads);  // of VerifQueues::ShapeTargets
bool checkSoundSets(VerifWork& work, int threads); // of VerifQueues::SoundTargets

} // namespace zandor
