// Whether the desktop opens consist files with this program, as the user has set it.
#pragma once

#include "frame/frame.h"
#include "platform/association.h"
#include "platform/system.h"

namespace zandor {

// To be called at every start, and when the setting Associate has changed: adds the association, or removes
// what an earlier call added.
void applyAssociation(Frame& frame, FileAssociation& association, const ProgramFolders& folders);

} // namespace zandor
