#include "cli/records.h"
#include "cli/session.h"
#include "editor/consist_io.h"

namespace zandor {

namespace {

// The file as given, otherwise that name in the CONSISTS folder in use; the extension may be left out there.
std::optional<std::string> findConsist(Session& session, const std::string& given) {
    FileSystem& files = session.frame.files;
    const std::string path = ExpandLongPath(given);
    if (isThere(files, path))
        return path;
    if (given.find_first_of("\\/") != std::string::npos)
        return std::nullopt;
    const std::string listed = consistsPath(session.state.roots.RootPrimary()) + given;
    for (const std::string& name : {listed, listed + ".con"})
        if (isThere(files, name))
            return name;
    return std::nullopt;
}

// The stock file that a vehicle stands for, also when it is Missing.
StockPair stockOf(const Editor& editor, const Vehicule& vehicule) {
    if (const Materiel* materiel = materielOf(editor, vehicule))
        return {materiel->FileName, materiel->Folder};
    return vehicule.origin ? StockPair{stockFileOf(*vehicule.origin), vehicule.origin->Folder} : StockPair();
}

Json recordOf(const Editor& editor, const Vehicule& vehicule, int position) {
    const StockPair stock = stockOf(editor, vehicule);
    return {{"position", position},        {"number", vehicule.Number}, {"name", vehicule.Name},
            {"folder", stock.Folder},      {"file", stock.FileName},    {"flip", vehicule.Flipped},
            {"missing", vehicule.Missing}, {"width", vehicule.Width}};
}

class OpenCommand final : public Command {
  public:
    const char* name() const override { return "open"; }
    const char* help() const override { return "Open a consist as the editor does and print its strip"; }
    bool usesRoots() const override { return true; }

    void addArguments(Arguments& line) override {
        line.one("FILE", file_, "the consist: a path, or a name in the CONSISTS folder");
    }

    int run(Session& session) override {
        const std::optional<std::string> path = findConsist(session, file_);
        if (!path)
            return session.cannotRun("There is no consist " + file_);
        session.atWork = *path;
        // The catalogue stays empty: opening reads the stock that the consist names, and no other is asked
        // for.
        Catalogue catalogue;
        catalogue.pictureFolders = PictureFolders::LeftAlone;
        ReadBitmapList(session.frame, catalogue);
        ConsistDocument document;
        Editor editor{session.frame, catalogue, document};
        initialiseDocument(editor);
        if (!session.tell(openConsist(editor, *path)))
            return exitcode::Faults;
        const bool missing = print(session, editor, *path);
        return missing || session.dialogs.alerts > 0 ? exitcode::Faults : exitcode::Done;
    }

  private:
    // True when stock is missing.
    static bool print(Session& session, const Editor& editor, const std::string& path) {
        const ConsistDocument& document = editor.document;
        JsonObject object(session.result);
        object.member("name", std::string(StripQuotes(document.rame.CfgName)));
        object.member("fullName", document.rame.Name);
        object.member("file", session.shown(path));
        JsonList list = object.list("vehicles");
        int position = 0, missing = 0;
        for (const Vehicule& vehicule : document.Vehicules) {
            list.add(recordOf(editor, vehicule, position++));
            missing += vehicule.Missing ? 1 : 0;
        }
        list.close();
        object.member("totals", {{"vehicles", position},
                                 {"missing", missing},
                                 {"width", document.StripWidth},
                                 {"text", totalsText(editor, ".")}});
        object.close();
        return missing > 0;
    }

    std::string file_;
};

} // namespace

std::unique_ptr<Command> makeOpenCommand() {
    return std::make_unique<OpenCommand>();
}

} // namespace zandor
