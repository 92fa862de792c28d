// One run of a command: the settings in effect, the simulator's folders, and where the results go. Nothing
// here writes the settings file, so that a command works for a user whose home can't be written to.
#pragma once

#include "cli/command.h"
#include "cli/command_line.h"
#include "cli/console_dialogs.h"
#include "cli/result_text.h"
#include "frame/finding.h"
#include "simfiles/sim_file.h"

#include <ostream>
#include <string>
#include <string_view>

namespace zandor {

// What a command line may say beside the arguments of its command; an empty text leaves it to the settings.
struct CommonOptions {
    std::string root;     // the simulator's folder
    std::string tstore;   // the Train Store's
    std::string primary;  // "msts" or "tstore"
    std::string settings; // a settings file instead of the user's own
    std::string language;
};

class Session {
  public:
    Session(const Surroundings& surroundings, const CommonOptions& options, ResultText& result,
            std::ostream& err);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // Settings, language and, for a command that uses them, the root folders. False: the user was told why
    // the command can't run.
    enum class Folders { None, IfKnown, Needed };
    bool prepare(Folders roots);

    // Tell in one line what is wrong, and return the exit code that goes with it. Controls are escaped.
    int cannotRun(std::string_view text);
    int fault(std::string_view text);

    // What an operation has found, a line each to the error output. Returns whether the operation is done.
    bool tell(const Outcome& outcome);

    // The path as messages and results show it.
    std::string shown(std::string_view path) { return frame.files.nativePath(path); }

    ResultText& result;
    std::ostream& err;
    AppState state;
    std::string atWork; // path of the file or folder that is read or written, for when memory runs out

  private:
    bool prepareLanguage();
    bool prepareRoots(Folders roots);
    bool takeGivenFolder(std::string_view option, const std::string& given, std::string& root);
    void takeRootsOfSettings();
    bool refuse(std::string_view text); // false, once the user was told

    const CommonOptions& options_;
    const ProgramFolders& folders_;
    ProfileFiles profiles_;

    class SilentProgress final : public Progress {
      public:
        explicit SilentProgress(std::string& atWork) : atWork_(atWork) {}
        void ShowProgress(int, int, int, std::string_view) override {}
        void atFile(std::string_view path) override { atWork_ = path; }
        bool yield() override { return true; }

      private:
        std::string& atWork_;
    } progress_;

  public:
    ConsoleDialogs dialogs;
    Frame frame;
};

// Reads a simulator file as a whole. Done: the reader holds its keys; `answer` tells whether the file is
// malformed. Another exit code: there is no such file or it is none of the simulator's, and the user was
// told.
int readWholeFile(Session& session, SimReader& reader, const std::string& path, const ReadRequest& request,
                  ReadAnswer& answer);

// What a reader's answer says; empty for a sound one.
std::string faultOf(const Session& session, const ReadAnswer& answer);

} // namespace zandor
