// The program as the one that opens the simulator's consist files, `.con`, for the user who runs it.
#pragma once

#include "platform/file_system.h"
#include "platform/processes.h"

#include <memory>
#include <string>

namespace zandor {

// How the desktop words it, in the user's language.
struct AssociationNames {
    std::string fileType; // what a consist file is
    std::string openVerb; // the command that opens one, with "&" before its key, where the desktop has no own
};

// What another program has set up is never changed. Where all is as wanted already, a call writes nothing.
// False: not all of it could be done.
class FileAssociation {
  public:
    virtual ~FileAssociation() = default;
    // `executable`: the program's native path.
    virtual bool add(const std::string& executable, const AssociationNames& names) = 0;
    virtual bool remove(const std::string& executable) = 0;
};

// Both must outlive it.
std::unique_ptr<FileAssociation> makeSystemAssociation(FileSystem& files, Processes& processes);

} // namespace zandor
