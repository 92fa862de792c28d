#include "frame/association.h"

namespace zandor {

void applyAssociation(Frame& frame, FileAssociation& association, const ProgramFolders& folders) {
    const std::string executable = executablePath(folders);
    if (readFlag(frame.profiles, "Associate", frame.state.IniPath))
        association.add(executable, {frame.text(Message::FileTypeName), frame.text(Message::OpenVerb)});
    else
        association.remove(executable);
}

} // namespace zandor
