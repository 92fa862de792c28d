#include "cli/records.h"
#include "cli/session.h"

#include <algorithm>

namespace zandor {

namespace {

// The three names that the readers find a file by.
Materiel materielAt(std::string_view path) {
    Materiel materiel;
    materiel.FileName = GetFileName(path);
    path.remove_suffix(std::min(path.size(), materiel.FileName.size() + 1));
    materiel.Folder = GetFileName(path);
    materiel.BasePath = path.substr(0, path.size() - materiel.Folder.size());
    return materiel;
}

bool isStockKind(std::string_view path) {
    const FileKind kind = kindOfFile(path);
    return kind == FileKind::Engine || kind == FileKind::Wagon;
}

class StockCommand final : public Command {
  public:
    const char* name() const override { return "stock"; }
    const char* help() const override { return "Print what engine and wagon files say"; }

    void addArguments(Arguments& line) override {
        line.several("FILE", files_, "the files: .eng or .wag");
        const Argument quick = line.flag("--quick", quick_, "read by how lines begin, not in full");
        line.flag("--repair", repair_, "rewrite a wagon file that has several Name keys").excludes(quick);
    }

    int run(Session& session) override {
        int exitCode = exitcode::Done;
        SimReader reader(session.frame.files);
        JsonList list(session.result);
        for (const std::string& file : files_) {
            const std::string path = session.atWork = ExpandLongPath(file);
            if (!FileExists(session.frame.files, path)) {
                exitCode = session.cannotRun("There is no file " + file);
                continue;
            }
            bool faulty = false;
            list.add(read(session, reader, file, path, faulty));
            if (faulty)
                exitCode = std::max(exitCode, exitcode::Faults);
        }
        list.close();
        session.result << "\n";
        return exitCode;
    }

  private:
    Json read(Session& session, SimReader& reader, const std::string& file, const std::string& path,
              bool& faulty) const {
        Materiel materiel = materielAt(path);
        StockReading reading;
        std::string fault;
        if (!isStockKind(path)) {
            fault = "Not an engine or a wagon file";
        } else if (quick_) {
            const ReadResult result = QuickStockReader(session.frame.files).QuickReadStock(materiel);
            if (result != ReadResult::Done)
                reading.answer = unreadAnswer(session.frame.files, path, result);
            fault = faultOf(session, reading.answer);
        } else {
            reading =
                ReadStockFile(reader, path, materiel, repair_ ? NameRepair::Allowed : NameRepair::Never);
            fault = faultOf(session, reading.answer);
            if (repair_ && reading.needsRepair && !reading.repaired && fault.empty())
                fault = "The file could not be rewritten";
        }

        Json record{{"file", file}};
        addRecord(record, materiel);
        if (reading.needsRepair)
            record.set("needsRepair", !reading.repaired);
        if (reading.repaired)
            record.set("repaired", true);
        faulty = !fault.empty();
        if (faulty)
            record.set("error", {{"number", errorNumber(reading.answer)}, {"text", fault}});
        return record;
    }

    std::vector<std::string> files_;
    bool quick_ = false;
    bool repair_ = false;
};

} // namespace

std::unique_ptr<Command> makeStockCommand() {
    return std::make_unique<StockCommand>();
}

} // namespace zandor
