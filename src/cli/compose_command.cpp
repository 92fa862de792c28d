#include "cli/session.h"
#include "editor/consist_io.h"
#include "text/control_characters.h"

namespace zandor {

namespace {

// One vehicle as the command line names it.
struct WantedVehicle {
    std::string given;
    std::string folder;
    std::string file; // perhaps without extension
    bool flipped = false;
    int index = -1; // in the catalogue
};

constexpr std::string_view FlipMark = ":flip";

WantedVehicle wantedVehicle(const std::string& given) {
    WantedVehicle wanted;
    wanted.given = given;
    std::string_view stock = given;
    if (endsWithIgnoringCase(stock, FlipMark)) {
        wanted.flipped = true;
        stock.remove_suffix(FlipMark.size());
    }
    wanted.file = GetFileName(stock);
    wanted.folder = stock.substr(0, stock.size() - wanted.file.size());
    while (!wanted.folder.empty() && (wanted.folder.back() == '/' || wanted.folder.back() == '\\'))
        wanted.folder.pop_back();
    return wanted;
}

int findStock(RootCatalogue& catalogue, const WantedVehicle& wanted) {
    for (const char* extension : {"", ".eng", ".wag"})
        if (const int index =
                catalogue.finder.find(catalogue.Materiels, wanted.folder, wanted.file + extension);
            index >= 0)
            return index;
    return -1;
}

bool hasControlCharacter(std::string_view text) {
    return escapeControls(text) != text;
}

// As the consist is going to bear it: blanks at its ends aren't kept.
std::string shortNameOf(std::string_view name) {
    name = trim(name);
    if (endsWithIgnoringCase(name, ".con"))
        name.remove_suffix(4);
    return std::string(trim(name));
}

class ComposeCommand final : public Command {
  public:
    const char* name() const override { return "compose"; }
    const char* help() const override { return "Make a consist of stock of the catalogue and save it"; }
    bool usesRoots() const override { return true; }

    void addArguments(Arguments& line) override {
        line.one("NAME", name_, "the short name, which the file bears too");
        line.several("FOLDER/FILE", given_,
                     "the vehicles in their order; \":flip\" behind one turns it round");
        full_ = line.text("--full", fullName_, "TEXT", "the full name; by default that of the file, or NAME");
        line.flag("--overwrite", overwrite_,
                  "put the vehicles in the place of those of an existing consist, of which a copy is kept");
        line.flag("--no-backup", noBackup_, "with --overwrite, keep no copy of the old consist");
    }

    int run(Session& session) override {
        const std::string shortName = shortNameOf(name_);
        if (filterShortName(shortName) != shortName || hasControlCharacter(shortName))
            return session.cannotRun("A file's name can't hold one of the characters of " + name_);
        if (withinFileName(shortName) != shortName)
            return session.cannotRun("The short name is too long for a file: " + name_);
        if (hasControlCharacter(fullName_))
            return session.cannotRun("The full name must be a single line without control characters");
        session.state.PrintGreen = false; // who uses what isn't asked for
        Catalogue catalogue;
        LoadCatalogue(session.frame, catalogue, ReadOnlyLoad);
        ConsistDocument document;
        Editor editor{session.frame, catalogue, document};
        std::vector<WantedVehicle> wanted;
        for (const std::string& given : given_) {
            wanted.push_back(wantedVehicle(given));
            wanted.back().index = findStock(catalogue.here(), wanted.back());
            if (wanted.back().index < 0)
                return session.cannotRun("This stock is not in the catalogue: " + given);
        }
        return compose(session, editor, shortName, wanted);
    }

  private:
    int compose(Session& session, Editor& editor, const std::string& shortName,
                const std::vector<WantedVehicle>& wanted) const {
        const std::string path = consistsPath(session.state.roots.RootPrimary()) + shortName + ".con";
        const bool exists = isThere(session.frame.files, path);
        initialiseDocument(editor);
        if (exists && overwrite_ && !session.tell(openConsist(editor, path)))
            return exitcode::Faults;
        if (!putVehicles(session, editor, wanted))
            return exitcode::Faults;
        putNames(editor, shortName);

        const EditorControls& controls = editor.document.controls;
        const bool refused =
            trim(controls.shortName).empty() || trim(controls.fullName).empty() || (exists && !overwrite_);
        editor.document.noBackup = noBackup_;
        session.atWork = path;
        if (!session.tell(SaveFileRame(editor)))
            return refused ? exitcode::Faults : exitcode::CannotRun;
        session.result << escapeControls(session.shown(path)) << "\n";
        return exitcode::Done;
    }

    // Empties the strip, then adds to its end what is wanted. False: one was refused.
    static bool putVehicles(Session& session, Editor& editor, const std::vector<WantedVehicle>& wanted) {
        ConsistDocument& document = editor.document;
        document.Vehicules.clear();
        document.StripWidth = document.NextNumber = 0;
        document.Loading = true; // the strip is laid out once, when all of it stands
        for (const WantedVehicle& vehicle : wanted) {
            session.dialogs.subject = vehicle.given;
            if (!session.tell(appendStock(editor, vehicle.index)))
                return false;
            document.Vehicules.back().Flipped = vehicle.flipped;
        }
        session.dialogs.subject.clear();
        document.Loading = false;
        document.Modified = true;
        updateStrip(editor);
        return true;
    }

    // A consist that has a file keeps its short name.
    void putNames(Editor& editor, const std::string& shortName) const {
        const bool isNew = !editor.document.HasFile;
        if (full_.given() || isNew)
            changeFullName(editor, full_.given() ? fullName_ : shortName);
        if (isNew)
            changeShortName(editor, shortName);
    }

    std::string name_;
    std::string fullName_;
    std::vector<std::string> given_;
    bool overwrite_ = false;
    bool noBackup_ = false;
    Argument full_;
};

} // namespace

std::unique_ptr<Command> makeComposeCommand() {
    return std::make_unique<ComposeCommand>();
}

} // namespace zandor
