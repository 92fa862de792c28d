// A file opened in the text editor beside the program, at the place of a fault, and the wait for its end.
#pragma once

#include "frame/finding.h"
#include "frame/frame.h"

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

namespace zandor {

// Serves the interface while the editor runs. A window hands in an object whose constructor takes its enabled
// state away and whose destructor gives it back, so that it comes back however the wait ends; wait() runs the
// event loop.
class EditorWait {
  public:
    virtual ~EditorWait() = default;
    // False: the window is gone, and nobody waits any longer; the editor goes on.
    virtual bool wait(std::chrono::milliseconds time) = 0;
};
inline constexpr std::chrono::milliseconds EditorWaitStep{50};

// The editor's name; where the system isn't Windows a program without the extension does as well.
inline constexpr const char* EditorName = "Skrivo";
inline constexpr int EditorLaunchFailed =
    10; // the exit code of an editor that found nothing to open the file

// Native paths of the editors that are there, in the order in which they are tried: in the program folder,
// then where the executables are. Empty: the commands of the editor are off.
std::vector<std::string> editorPrograms(Frame& frame);

// What the editor is called with. Joined by blanks the texts are the line `PATH /§ TEXT / LINE -1`, or
// `PATH -1` without a position; each of them is one argument, blanks within it and all, so that nothing has
// to be cut apart again: path, "/§", text, "/", number, "-1". A system that takes a program's arguments as
// one line quotes those that hold a blank. `nativePath`: the file; `line` from 1.
std::vector<std::string> editorArguments(const std::string& nativePath, const std::string& searchText,
                                         int line);

struct [[nodiscard]] EditorRun {
    bool done = false;    // the editor ran and has ended
    bool changed = false; // the file is another than before; only looked at with `reload`
    Findings told{};      // that there is no editor, or that it can't be started
};
// `searchText` may be empty, `line` 0: no position.
EditorRun EditFileExternal(Frame& frame, std::string_view path, bool reload, const std::string& searchText,
                           int line, EditorWait& wait);

} // namespace zandor
