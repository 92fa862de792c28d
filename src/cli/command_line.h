// The command line as one call, so that a test can run it in its own process.
#pragma once

#include "platform/processes.h"
#include "platform/registry.h"
#include "platform/system.h"

#include <ostream>
#include <string>
#include <vector>

namespace zandor {

// Everything outside that a command may touch.
struct Surroundings {
    FileSystem& files;
    Registry& registry;
    Processes& processes;
    ProgramFolders folders;
};

// `args` without the program's name, in UTF-8. The result goes to `out` when all of it stands, nothing
// before; messages go to `err`, a line each. Returns the exit code: 0 done, 1 faults found, 2 could not run.
int runCommandLine(const std::vector<std::string>& args, const Surroundings& surroundings, std::ostream& out,
                   std::ostream& err);
// The same on this system.
int runCommandLine(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

} // namespace zandor
