#include "catalogue/catalogue.h"
#include "cli/json_output.h"
#include "cli/session.h"
#include "cli/verify_output.h"
#include "platform/sim_path.h"
#include "platform/system.h"
#include "text/control_characters.h"
#include "verify/verification.h"

#include <algorithm>
#include <chrono>
#include <iostream>
#include <optional>

namespace zandor {

namespace {

// Keeps what the pass tells for the result; every question gets the answer of the command line.
class PassDialogs final : public Dialogs {
  public:
    explicit PassDialogs(bool yes) : yes_(yes) {}

    int ShowMessage(const std::string& text, int messageStyle, const std::string&, const std::string&,
                    int) override {
        texts.push_back(text);
        if ((messageStyle & 0x0F) != style::YesNo)
            return answer::Ok;
        return yes_ ? answer::Yes : answer::No;
    }
    std::optional<std::string> askOpenFile(const std::string&, const std::string&, const std::string&,
                                           const std::string&) override {
        return std::nullopt;
    }
    std::optional<std::string> askSaveFile(const std::string&, const std::string&, const std::string&,
                                           const std::string&, const std::string&) override {
        return std::nullopt;
    }

    std::vector<std::string> texts;

  private:
    bool yes_;
};

// One line of the terminal, which is gone when the pass is over; elsewhere nothing.
class TerminalProgress final : public Progress {
  public:
    TerminalProgress(std::ostream& err, std::string& atWork)
        : err_(err), atWork_(atWork), draws_(err.rdbuf() == std::cerr.rdbuf() && errorsGoToTerminal()) {}
    ~TerminalProgress() override { clear(); }

    void ShowProgress(int, int upper, int current, std::string_view text) override {
        const auto now = std::chrono::steady_clock::now();
        if (!draws_ || now - drawn_ < std::chrono::milliseconds(100))
            return;
        drawn_ = now;
        const std::string line = "[" + std::to_string(current) + "/" + std::to_string(upper) + "] ";
        err_ << "\r" << firstCharacters(line + oneLine(text), 79) << "\x1B[K" << std::flush;
    }
    void atFile(std::string_view path) override { atWork_ = path; }
    bool yield() override { return true; }
    void clear() {
        if (drawn_ != Clock::time_point())
            err_ << "\r\x1B[K" << std::flush;
        drawn_ = {};
    }

  private:
    using Clock = std::chrono::steady_clock;
    std::ostream& err_;
    std::string& atWork_;
    bool draws_;
    Clock::time_point drawn_{};
};

struct KindName {
    std::string_view name;
    VerifiedKind kind;
    std::string_view extension;
};
constexpr KindName Kinds[] = {{"consists", VerifiedKind::Consists, ".con"},
                              {"engines", VerifiedKind::Engines, ".eng"},
                              {"wagons", VerifiedKind::Wagons, ".wag"}};

// Finds the candidates that the command line names, in any case, with or without folder and extension.
class Candidates {
  public:
    Candidates(VerifSelection& selection, std::string_view extension)
        : selection_(selection), extension_(extension) {
        for (int i = 0; i < selection.size(); ++i)
            byName_[lowerCase(selection.nameOf(i))].push_back(i);
    }

    void chooseAll() {
        for (int i = 0; i < selection_.size(); ++i)
            selection_.chosen.push_back(i);
    }
    // False: there is none of that name.
    bool choose(const std::string& given) {
        const std::string name = GetFileName(given);
        std::string folder = given.substr(0, given.size() - name.size());
        while (folder.ends_with('/') || folder.ends_with('\\'))
            folder.pop_back();
        return chooseFile(name, folder) || chooseFile(name + extension_, folder);
    }
    // A consist that the other root alone has. False: it has none of that name.
    bool addOfOtherRoot(Session& session, const std::string& given) {
        const std::string& root = session.state.roots.RootSecondary();
        if (selection_.kind != VerifiedKind::Consists || root.empty() ||
            given.find_first_of("/\\") != std::string::npos)
            return false;
        for (const std::string& name : {given, given + extension_})
            if (endsWithIgnoringCase(name, extension_) &&
                FileExists(session.frame.files, consistsPath(root) + name)) {
                selection_.consists.push_back(name);
                selection_.chosen.push_back(selection_.size() - 1);
                return true;
            }
        return false;
    }
    // In the order of the list, each once.
    void sort() {
        std::vector<int>& chosen = selection_.chosen;
        std::sort(chosen.begin(), chosen.end());
        chosen.erase(std::unique(chosen.begin(), chosen.end()), chosen.end());
    }

  private:
    bool chooseFile(const std::string& name, const std::string& folder) {
        const auto found = byName_.find(lowerCase(name));
        if (found == byName_.end())
            return false;
        const std::size_t before = selection_.chosen.size();
        for (const int index : found->second)
            if (folder.empty() || isIn(index, folder))
                selection_.chosen.push_back(index);
        return selection_.chosen.size() > before;
    }
    bool isIn(int index, const std::string& folder) const {
        return selection_.kind != VerifiedKind::Consists &&
               equalIgnoringCase(selection_.stock[static_cast<std::size_t>(index)].Folder, folder);
    }

    VerifSelection& selection_;
    std::string extension_;
    std::unordered_map<std::string, std::vector<int>> byName_;
};

class VerifyCommand final : public Command {
  public:
    const char* name() const override { return "verify"; }
    const char* help() const override { return "Check consists or stock, and repair what can be repaired"; }
    bool usesRoots() const override { return true; }
    bool needsRoots() const override { return folder_.empty(); }

    void addArguments(Arguments& line) override {
        line.oneOf("KIND", kind_, {"consists", "engines", "wagons"},
                   "what to check: consists, engines or wagons");
        line.any("NAME", given_, "the files, as NAME or FOLDER/NAME; by default all");
        line.flag("--names", options_.CheckName, "the name in a file must be that of the file");
        line.flag("--textures", options_.CheckTextures, "look for the textures of shapes and cab views");
        const Argument sounds =
            line.flag("--sounds", options_.CheckSounds, "look for the waves of sound sets");
        line.flag("--duplicates", options_.CheckDuplicates, "look for files of one name in several folders");
        line.flag("--repair-quotes", options_.RepairQuotes, "put missing quotes around sounds, in the files");
        line.flag("--repair-sounds", options_.RepairSounds,
                  "write the places of waves that lie elsewhere into sound sets")
            .needs(sounds);
        const Argument yes = line.flag("--yes", yes_, "answer questions with yes");
        line.flag("--no", no_, "answer questions with no, as by default").excludes(yes);
        line.flag("--json", json_, "print JSON instead of a report");
        line.text("--folder", folder_, "DIR", "check one stock folder, wherever it lies");
    }

    int run(Session& session) override {
        const KindName& kind = *std::ranges::find_if(
            Kinds, [this](const KindName& row) { return equalIgnoringCase(row.name, kind_); });
        VerifSelection selection;
        if (const int exitCode = list(session, kind.kind, selection); exitCode != exitcode::Done)
            return exitCode;
        Candidates candidates(selection, kind.extension);
        if (given_.empty())
            candidates.chooseAll();
        for (const std::string& name : given_)
            if (!candidates.choose(name) && !candidates.addOfOtherRoot(session, name))
                return session.cannotRun("There is no such file among the " + std::string(kind.name) + ": " +
                                         name);
        candidates.sort();
        return verify(session, selection);
    }

  private:
    int list(Session& session, VerifiedKind kind, VerifSelection& selection) const {
        FileSystem& files = session.frame.files;
        if (folder_.empty()) {
            const std::string consists = consistsPath(session.state.roots.RootPrimary());
            selection = listCandidates(session.frame, kind,
                                       kind == VerifiedKind::Consists ? listFiles(files, consists, ".con")
                                                                      : std::vector<std::string>());
            return exitcode::Done;
        }
        if (kind == VerifiedKind::Consists)
            return session.cannotRun("--folder takes engines or wagons");
        const std::string folder = ExpandLongPath(folder_);
        const SimPath path = parseSimPath(folder);
        if (path.parts.empty() || !FolderExists(files, folder))
            return session.cannotRun("--folder: there is no folder " + folder_);
        selection.kind = kind;
        if (files.listFolder(folder).empty())
            return session.cannotRun("--folder: there is nothing to read in " + folder_);
        addCandidates(files, selection, folderKey(path, path.parts.size() - 1),
                      std::string(path.parts.back()));
        return exitcode::Done;
    }

    int verify(Session& session, const VerifSelection& selection) const {
        Frame& outer = session.frame;
        PassDialogs dialogs(yes_);
        TerminalProgress progress(session.err, session.atWork);
        Frame frame{outer.state,     outer.files, outer.profiles, outer.registry,
                    outer.processes, dialogs,     progress,       outer.language};
        VerifResults results;
        RunVerification(frame, selection, options_, results);
        progress.clear();
        if (json_)
            printVerification(session, results, dialogs.texts);
        else
            printVerification(session, results, dialogs.texts,
                              closingReport(frame, selection, options_, results));
        return foundNothing(results) ? exitcode::Done : exitcode::Faults;
    }

    // What was repaired was wrong.
    static bool foundNothing(const VerifResults& results) {
        const VerifCounters& counters = results.counters;
        return isClean(results) &&
               counters.QuoteRepairCount + counters.QuoteRepairFailures + counters.RepairedSoundFiles == 0;
    }

    std::string kind_;
    std::vector<std::string> given_;
    VerifOptions options_;
    bool yes_ = false, no_ = false;
    bool json_ = false;
    std::string folder_;
};

} // namespace

std::unique_ptr<Command> makeVerifyCommand() {
    return std::make_unique<VerifyCommand>();
}

} // namespace zandor
