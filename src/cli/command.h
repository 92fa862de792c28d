// What each command of zandor-cli is: its name, its arguments, its help and what it does, side by side in one
// file.
#pragma once

#include "cli/arguments.h"

#include <memory>
#include <string_view>
#include <vector>

namespace zandor {

class Session;

namespace exitcode {
inline constexpr int Done = 0;
inline constexpr int Faults = 1;    // it ran, and something is wrong with what it looked at
inline constexpr int CannotRun = 2; // wrong arguments, no such file or folder, a file that can't be written
} // namespace exitcode

class Command {
  public:
    virtual ~Command() = default;
    virtual const char* name() const = 0;
    virtual const char* help() const = 0;
    // True: the command works on a simulator folder, and takes the options that name it.
    virtual bool usesRoots() const { return false; }
    // Whether it can't run without such a folder; asked when its arguments are known.
    virtual bool needsRoots() const { return usesRoots(); }
    virtual void addArguments(Arguments& line) = 0;
    // Prints to the session; returns an exit code.
    virtual int run(Session& session) = 0;
};

std::unique_ptr<Command> makeKeysCommand();
std::unique_ptr<Command> makeStockCommand();
std::unique_ptr<Command> makeConsistCommand();
std::unique_ptr<Command> makeCatalogueCommand();
std::unique_ptr<Command> makeComposeCommand();
std::unique_ptr<Command> makeOpenCommand();
std::unique_ptr<Command> makeVerifyCommand();
std::unique_ptr<Command> makeRoutesCommand();
std::unique_ptr<Command> makeServicesCommand();
std::unique_ptr<Command> makeActivitiesCommand();

} // namespace zandor
