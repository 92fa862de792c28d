#include "editor/consist_io.h"
#include "editor/editor_parts.h"
#include "editor/messages.h"
#include "simfiles/consist_file.h"
#include "simfiles/fault_text.h"
#include "simfiles/stock_reader.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace zandor {

namespace {

// The entry that a vehicle of a file stands for.
struct StockPlace {
    enum Kind { Primary, Simulator, Missing } kind = Missing;
    int index = 0;
};

// Finds the entries of a consist's stock, each stock once. Stock that has come to the disk since the
// catalogue was loaded gets a new entry at the end of its array: the indexes that lists and the strip hold
// stay what they were.
class StockResolver {
  public:
    explicit StockResolver(Editor& editor)
        : files_(editor.frame.files), state_(editor.frame.state),
          reader_(files_), primary_{editor.catalogue.here(), {}}, simulator_{editor.catalogue.simulator, {}} {
    }

    StockPlace resolve(const RameItem& item) {
        const auto [known, isNew] = places_.try_emplace(lowerCase(item.Folder + "\\" + stockFileOf(item)));
        if (isNew)
            known->second = search(item);
        return known->second;
    }

    // Until then the array stays as it is, and the look-up tables with it.
    void addNewEntries() {
        addEntries(primary_);
        addEntries(simulator_);
    }

  private:
    struct Shelf {
        RootCatalogue& catalogue;
        std::vector<Materiel> added;
    };

    StockPlace search(const RameItem& item) {
        if (standsUnder(state_.roots.RootPrimary(), item))
            return entryOf(primary_, StockPlace::Primary, state_.roots.RootPrimary(), item);
        // The stock of a Train Store consist may stand in the simulator's own tree.
        if (state_.roots.first == Root::Store && !state_.roots.RootMSTS.empty() &&
            standsUnder(state_.roots.RootMSTS, item))
            return entryOf(simulator_, StockPlace::Simulator, state_.roots.RootMSTS, item);
        return {};
    }

    bool standsUnder(std::string_view root, const RameItem& item) {
        return FileExists(files_, trainsetPath(root) + item.Folder + "\\" + stockFileOf(item));
    }

    StockPlace entryOf(Shelf& shelf, StockPlace::Kind kind, std::string_view root, const RameItem& item) {
        const std::vector<Materiel>& materiels = shelf.catalogue.Materiels;
        const int found = shelf.catalogue.finder.find(materiels, item.Folder, stockFileOf(item));
        if (found >= 0)
            return {kind, found};
        const std::size_t index = materiels.size() + shelf.added.size();
        if (index >= static_cast<std::size_t>(MaxEntries))
            return {}; // no index is left for it
        shelf.added.push_back(readEntry(root, item));
        return {kind, static_cast<int>(index)};
    }

    // Opening a consist repairs no stock file.
    Materiel readEntry(std::string_view root, const RameItem& item) {
        Materiel materiel;
        materiel.BasePath = trainsetPath(root);
        materiel.Folder = item.Folder;
        materiel.FileName = stockFileOf(item);
        ReadStockFile(reader_, materiel.BasePath + materiel.Folder + "\\" + materiel.FileName, materiel,
                      NameRepair::Never);
        return materiel;
    }

    static void addEntries(Shelf& shelf) {
        if (shelf.added.empty())
            return;
        std::move(shelf.added.begin(), shelf.added.end(), std::back_inserter(shelf.catalogue.Materiels));
        shelf.added.clear();
        shelf.catalogue.finder.forget();
    }

    FileSystem& files_;
    const AppState& state_;
    SimReader reader_;
    Shelf primary_, simulator_;
    std::unordered_map<std::string, StockPlace> places_;
};

std::string_view withoutExtension(std::string_view fileName) {
    return endsWithIgnoringCase(fileName, ".con") ? fileName.substr(0, fileName.size() - 4) : fileName;
}

void showNames(ConsistDocument& document) {
    EditorControls& controls = document.controls;
    const Rame& rame = document.rame;
    const std::string_view cfgName = StripQuotes(rame.CfgName);
    controls.fullName = rame.Name;
    controls.shortNameRed = !equalIgnoringCase(withoutExtension(rame.FileName), cfgName);
    controls.shortName = controls.shortNameRed ? doubleName(rame) : std::string(cfgName);
    controls.shortNameEnabled = false;
}

// A file written under another system's number format may hold a comma.
int sliderValue(std::string durability) {
    std::replace(durability.begin(), durability.end(), ',', '.');
    return static_cast<int>(std::nearbyint(std::clamp(numericValue(durability) * 1000.0, 0.0, 1e9)));
}

PictureRef loadPicture(Editor& editor, StockPlace place) {
    Catalogue& catalogue = editor.catalogue;
    if (place.kind == StockPlace::Missing)
        return shippedPicture(MissingPicture);
    std::vector<Materiel>& materiels =
        place.kind == StockPlace::Primary ? catalogue.here().Materiels : catalogue.simulator.Materiels;
    return LoadMaterielPicture(editor.frame, catalogue, materiels[static_cast<std::size_t>(place.index)]);
}

void insertItem(Editor& editor, const RameItem& item, StockPlace place) {
    editor.document.PictureWidth = loadPicture(editor, place).width;
    InsertVehicule(editor, place.index, place.kind == StockPlace::Primary,
                   place.kind == StockPlace::Simulator, &item);
    Vehicule& vehicule = editor.document.Vehicules.back();
    vehicule.Number = item.UiD;
    vehicule.Flipped = item.Flip;
    vehicule.EngineVariables = item.EngineVariables;
}

Findings insertItems(Editor& editor, const std::vector<RameItem>& items) {
    StockResolver resolver(editor);
    std::vector<StockPlace> places;
    places.reserve(items.size());
    for (const RameItem& item : items)
        places.push_back(resolver.resolve(item));
    resolver.addNewEntries();

    ConsistDocument& document = editor.document;
    document.Vehicules.reserve(items.size());
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (vehicleCount(document) >= MaxEntries)
            return {stripFull(document)};
        insertItem(editor, items[i], places[i]);
    }
    return {};
}

std::vector<StockPair> stockOf(const std::vector<RameItem>& items) {
    std::vector<StockPair> pairs;
    for (const RameItem& item : items)
        pairs.push_back({stockFileOf(item), item.Folder});
    return pairs;
}

// `reason`: of the reader, already in the user's language.
Finding aboutFile(FileSystem& files, std::string_view path, Message message, std::string_view reason = {}) {
    return {.message = message,
            .params = {{"|1", files.nativePath(path)},
                       {"|2", std::string(LineBreak)},
                       {"|3", std::string(reason)}},
            .file = std::string(path)};
}

Finding notOpened(Frame& frame, std::string_view path, const ReadAnswer& answer) {
    const bool unread = answer.outcome == ReadOutcome::TooLarge || answer.outcome == ReadOutcome::NoMemory ||
                        answer.outcome == ReadOutcome::Unreadable;
    if (unread)
        return aboutFile(frame.files, path, message::ConsistUnread, faultText(frame.language, answer));
    return aboutFile(frame.files, path,
                     frame.files.fileExists(path) ? message::NotAConsist : message::OpenFailed);
}

Finding openedFaulty(Frame& frame, std::string_view path, const ReadAnswer& answer) {
    const Message message =
        answer.flaw == Flaw::VehicleNameless ? message::OpenedWithoutVehicle : message::OpenedFaulty;
    Finding finding = aboutFile(frame.files, path, message, faultText(frame.language, answer));
    finding.line = answer.line;
    return finding;
}

std::string folderOf(std::string_view path) {
    const std::size_t end = path.find_last_of("\\/");
    return end == std::string_view::npos ? ".\\" : std::string(path.substr(0, end + 1));
}

} // namespace

Outcome openConsist(Editor& editor, std::string_view path) {
    Frame& frame = editor.frame;
    const double durability = editor.document.controls.durability / 1000.0;
    SimReader reader(frame.files);
    Rame rame;
    std::vector<RameItem> items;
    ReadAnswer answer;
    answer.outcome = ReadOutcome::OtherKind;
    if (kindOfFile(path) == FileKind::Consist)
        answer = ReadConsistFile(reader, rame, items, path, durability);
    if (!answer.accepted())
        return {false, {notOpened(frame, path, answer)}};
    ConsistDocument& document = editor.document;
    document.rame = std::move(rame);
    document.items = std::move(items);
    document.HasFile = true;
    document.ConsistFolder = folderOf(path);
    Findings told = OpenFileRame(editor);
    document.faultyFile = !answer.sound(); // a save over it would lose what wasn't read
    if (document.faultyFile)
        told.push_back(openedFaulty(frame, path, answer));
    return {true, std::move(told)};
}

Findings OpenFileRame(Editor& editor) {
    ConsistDocument& document = editor.document;
    if (!document.HasFile)
        return {};
    ResetEditor(editor);
    document.HasFile = true;
    document.Loading = true;
    showNames(document);
    document.controls.durability = sliderValue(document.rame.Durability);
    updateResistance(editor);
    document.RameStockOld = document.RameStockNew = stockOf(document.items);

    Findings told = insertItems(editor, document.items);
    document.NextNumber = document.rame.NextWagonUID;
    updateStrip(editor);
    document.Loading = false;
    editor.document.Modified = false;
    document.controls.deleteEnabled = true;
    return told;
}

} // namespace zandor
