#include "catalogue/stock_list.h"
#include "cli/records.h"
#include "cli/session.h"

#include <array>

namespace zandor {

namespace {

struct StockCounts {
    std::array<int, StockClassCount> classes{};
    int other = 0;
    int engines = 0;
    int wagons = 0;
};

StockCounts countStock(const Catalogue& catalogue) {
    StockCounts counts;
    for (const Materiel& materiel : catalogue.here().Materiels) {
        const int stockClass = stockClassOf(materiel);
        ++(stockClass < 0 ? counts.other : counts.classes[static_cast<std::size_t>(stockClass)]);
        ++(endsWithIgnoringCase(materiel.FileName, ".eng") ? counts.engines : counts.wagons);
    }
    return counts;
}

Json classesOf(const StockCounts& counts) {
    Json classes = Json::object();
    for (std::size_t i = 0; i < counts.classes.size(); ++i)
        classes.set(std::to_string(i), counts.classes[i]);
    classes.set("other", counts.other);
    return classes;
}

Json elementOf(const std::string& name) {
    return name;
}
template <class Record> Json elementOf(const Record& record) {
    return recordOf(record);
}

template <class Record>
void printList(JsonObject& object, std::string_view name, const std::vector<Record>& records) {
    JsonList list = object.list(name);
    for (const Record& record : records)
        list.add(elementOf(record));
    list.close();
}

class CatalogueCommand final : public Command {
  public:
    const char* name() const override { return "catalogue"; }
    const char* help() const override {
        return "Load the catalogue of a simulator folder and count what it holds";
    }
    bool usesRoots() const override { return true; }

    void addArguments(Arguments& line) override {
        line.flag("--list", list_, "print its arrays too, with who uses what");
    }

    int run(Session& session) override {
        AppState& state = session.state;
        state.PrintGreen = state.PrintGreen || list_;
        Catalogue catalogue;
        session.atWork = state.roots.RootPrimary();
        LoadCatalogue(session.frame, catalogue, ReadOnlyLoad);
        session.atWork = state.roots.RootPrimary();
        print(session, catalogue);
        return session.dialogs.alerts > 0 ? exitcode::Faults : exitcode::Done;
    }

  private:
    void print(Session& session, const Catalogue& catalogue) const {
        const StockCounts counts = countStock(catalogue);
        const std::size_t consists = catalogue.here().ConsistFiles.size();
        JsonObject object(session.result);
        object.member("root", session.shown(session.state.roots.RootPrimary()));
        object.member("classes", classesOf(counts));
        object.member("engines", counts.engines);
        object.member("wagons", counts.wagons);
        object.member("consists", consists);
        object.member("totals", {{"stock", counts.engines + counts.wagons},
                                 {"consists", consists},
                                 {"indexedConsists", catalogue.ConsistIndex.size()},
                                 {"usedStock", catalogue.StockUsage.size()}});
        if (list_) {
            printList(object, "materiels", catalogue.here().Materiels);
            printList(object, "consistFiles", catalogue.here().ConsistFiles);
            printList(object, "stockUsage", catalogue.StockUsage);
            printList(object, "consistIndex", catalogue.ConsistIndex);
        }
        object.close();
    }

    bool list_ = false;
};

} // namespace

std::unique_ptr<Command> makeCatalogueCommand() {
    return std::make_unique<CatalogueCommand>();
}

} // namespace zandor
