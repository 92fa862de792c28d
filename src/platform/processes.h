// Other programs: an external editor, the viewer that the user's system has for a file.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace zandor {

// A program that was started. Letting go of it doesn't end it.
class Process {
  public:
    virtual ~Process() = default;
    // Nothing while it runs; -1 for a program that didn't end by itself. Doesn't wait.
    virtual std::optional<int> exitCode() = 0;
};

class Processes {
  public:
    virtual ~Processes() = default;
    // `program`: a native path, or a name that is looked up as a shell does. Null: it can't be started.
    virtual std::unique_ptr<Process> start(const std::string& program,
                                           const std::vector<std::string>& arguments) = 0;
    // Has the system open a file (native path) with the user's program for it. False: that can't be started.
    virtual bool openFile(const std::string& path) = 0;
};

std::unique_ptr<Processes> makeSystemProcesses();

} // namespace zandor
