#include "frame/association.h"
#include "frame/messages.h"

namespace zandor {

void applyAssociation(Frame& frame, FileAssociation& association, const ProgramFolders& folders) {
    const std::string executable = executablePath(folders);
    if (readFlag(frame.profiles, "Associate", frame.state.IniPath))
        association.add(executable, {frame.text(message::FileTypeName), frame.text(message::OpenVerb)});
    else
        association.remove(executable);
}

} // namespace zandor
