#include "catalogue/thumbnails.h"

#include "catalogue/catalogue.h"
#include "catalogue/messages.h"
#include "catalogue/stock_files.h"

#include <algorithm>
#include <array>
#include <set>

namespace zandor {

namespace {

constexpr std::string_view BitmapExtension = ".bmp";
constexpr std::string_view LineBreak = "\r\n"; // in messages

// Stock of the simulator's own whose pictures are a matter of the program.
// clang-format off
constexpr std::array<std::string_view, 94> BuiltInPictures{
    "2000", "2000ACARRIAGE", "2000BCARRIAGE", "2000REARENG", "30000", "30000CAR", "310", "310CAR1", "310CAR2",
    "310GRCAR1", "310TENDER", "310WDCAR1", "380", "380CAR1", "380TENDER", "ACELA", "ACELABISTROCAR",
    "ACELACAR", "ACELAENDCAR", "ACELAFIRSTCLASS", "ACELAHHL", "ACELAHHLBC", "ACELAHHLCAFE", "ACELAHHLCAR",
    "ACELAHHLCO", "DASH9", "GENESIS", "GP38", "GWRFIRST", "GWRLUGGCAR", "GWRMAILCAR", "GWRREST", "GWRTHIRD",
    "KIHA140", "KIHA31", "KIHA31A", "METROCARRIAGE", "METROLINER", "OE380CARDIN", "OEBARCAR", "OESERVCAR",
    "OESLEEPCAR", "PENDENNIS", "PENDENNISTENDER", "ROYALSCOTSCLASS", "ROYALSCOTTENDER", "SCOTSCAR1",
    "SCOTSCAR3", "SCOTSFIRSTCLASS", "SCOTSMAILCAR", "SCOTSMAN", "SCOTSTENDER", "SCOTSTHIRDCLASS", "SD40",
    "SERIES7000", "SERIES7000CARA", "SERIES7000CARB", "SERIES7000CARC", "SERIES7000CARD", "SERIES7000CARG",
    "SERIES7000CARH", "SERIES7000CARI", "SERIES7000ENGR", "SUPERLINER", "US2BNSFCAR", "US2CHEMICAR",
    "US2DBLEHGTFRGHTBL", "US2DBLEHGTFRGHTRD", "US2EMPLOGGERCAR", "US2FCARRE2", "US2FCARRF2", "US2FCARYE2",
    "US2FCARYF2", "US2FREIGHT6", "US2FREIGHT7", "US2FREIGHT8", "US2FREIGHTCAR1", "US2FREIGHTCAR3",
    "US2FREIGHTCAR4", "US2FREIGHTCAR5", "US2FREIGHTCARYEL1", "US2FULLLOGGERCAR", "US2GRAINCAR",
    "US2HOPPERCAR", "US2WOODCHIPPER", "US2FREIGHTCEMENT", "US2FREIGHTREFRIGE", "US2CABOOSE", "UKBRAKE",
    "UKFIRST", "UKRESTAURANT", "UKSECOND", "CLASS50", "SD402",
};
// clang-format on

std::string_view withoutEnding(std::string_view file) { // of four characters
    return file.substr(0, file.size() - BitmapExtension.size());
}

std::string unusablePath(const AppState& state) {
    return state.ProgramFolder + "\\Unusable_Thumbnails\\";
}

// The lines of Bitmaps.ini in upper case. One look-up for each length that a line has finds those that a name
// begins with.
class PrefixIndex {
  public:
    explicit PrefixIndex(const std::vector<std::string>& lines) {
        for (std::size_t i = 0; i < lines.size(); ++i)
            if (!lines[i].empty())
                lengths_.insert(positions_.try_emplace(upperCase(lines[i]), i).first->first.size());
    }

    // The first line of the file that `name` begins with; empty when there is none.
    std::string_view find(std::string_view name) const {
        auto first = positions_.end();
        for (const std::size_t length : lengths_) {
            if (length > name.size())
                break;
            const auto found = positions_.find(name.substr(0, length));
            if (found != positions_.end() && (first == positions_.end() || found->second < first->second))
                first = found;
        }
        return first == positions_.end() ? std::string_view() : std::string_view(first->first);
    }

  private:
    std::unordered_map<std::string, std::size_t, TextHash, std::equal_to<>> positions_;
    std::set<std::size_t> lengths_;
};

// The thumbnails of a folder: their files by the name in upper case.
using ThumbnailFiles = std::unordered_map<std::string, std::string, TextHash, std::equal_to<>>;

ThumbnailFiles listThumbnails(FileSystem& files, const std::string& folder) {
    ThumbnailFiles listed;
    for (std::string& file : listFiles(files, folder, BitmapExtension)) {
        std::string name = upperCase(withoutEnding(file));
        listed.try_emplace(std::move(name), std::move(file));
    }
    return listed;
}

bool collectPass(Frame& frame, const std::vector<std::string>& folders, const std::string& basePath,
                 const StockPass& pass, std::vector<std::string>& names) {
    const std::string shown = frame.text(pass.listing);
    const int last = static_cast<int>(folders.size()) - 1;
    int index = 0;
    for (const std::string& folder : folders) {
        if (!frame.progress.yield())
            return false;
        for (const std::string& file : listStockFiles(frame.files, basePath + folder + "\\", pass.extension))
            names.emplace_back(withoutEnding(file));
        frame.progress.ShowProgress(0, last, index++, shown);
    }
    return true;
}

// Adds the names of a root's stock. False: the user ended it.
bool collectNames(Frame& frame, std::string_view root, std::string_view program,
                  std::vector<std::string>& names) {
    if (root.empty())
        return true;
    frame.progress.ShowProgress(0, 255, 0, frame.text(message::ThumbnailsOf) + std::string(program));
    const std::string basePath = trainsetPath(root);
    const std::vector<std::string> folders = ListStockFolders(frame, basePath, false);
    return std::ranges::all_of(StockPasses, [&](const StockPass& pass) {
        return collectPass(frame, folders, basePath, pass, names);
    });
}

// Finds out which thumbnails are in use, and brings back those that are again.
class ThumbnailSearch {
  public:
    ThumbnailSearch(Frame& frame, const Catalogue& catalogue)
        : files_(frame.files), folder_(thumbnailsPath(frame.state)),
          unusableFolder_(unusablePath(frame.state)), prefixes_(catalogue.BitmapPrefixes),
          there_(listThumbnails(files_, folder_)), unusable_(listThumbnails(files_, unusableFolder_)) {}

    void look(std::string_view stock) {
        std::string name = upperCase(stock);
        if (const std::string_view line = prefixes_.find(name); !line.empty()) {
            if (there_.contains(
                    name)) // a line that differs in case takes no thumbnail of the stock's own away
                inUse.insert(name);
            name = line;
        }
        if (there_.contains(name))
            inUse.insert(std::move(name));
        else if (std::ranges::find(BuiltInPictures, name) == BuiltInPictures.end())
            restore(name);
    }

    NameSet inUse;
    int restored = 0;
    std::string failedFolder;

  private:
    void restore(const std::string& name) {
        const auto kept = unusable_.extract(name);
        if (kept.empty())
            return;
        const std::string source = unusableFolder_ + kept.mapped();
        if (!CopyFileOver(files_, source, folder_ + kept.mapped())) {
            failedFolder = folder_;
            return;
        }
        files_.deleteFile(source);
        ++restored;
        there_.emplace(name, kept.mapped());
        inUse.insert(name);
    }

    FileSystem& files_;
    const std::string folder_, unusableFolder_;
    const PrefixIndex prefixes_;
    ThumbnailFiles there_, unusable_;
};

std::string checkingText(const Frame& frame) {
    return frame.text(message::CheckingThumbnails, {{"|1", frame.state.Title}});
}

bool lookAtAll(Frame& frame, ThumbnailSearch& search, const std::vector<std::string>& names) {
    const std::string shown = checkingText(frame);
    const int last = static_cast<int>(names.size()) - 1;
    int index = 0;
    for (const std::string& name : names) {
        if (!frame.progress.yield())
            return false;
        search.look(name);
        frame.progress.ShowProgress(0, last, index++, shown);
    }
    return true;
}

// Nothing for a count of 0.
std::string countText(const Frame& frame, int count, Message one, Message many) {
    if (count == 0)
        return {};
    const std::string figure = std::to_string(count);
    return frame.text(
        count == 1 ? one : many,
        {{"|1", figure}, {"|2", "Thumbnails"}, {"|3", "Unusable_Thumbnails"}, {"|4", frame.state.Title}});
}

void report(Frame& frame, int moved, int restored, const std::string& failedFolder) {
    std::string text = countText(frame, moved, message::OneThumbnailMoved, message::ManyThumbnailsMoved);
    const std::string back =
        countText(frame, restored, message::OneThumbnailRestored, message::ManyThumbnailsRestored);
    if (!text.empty() && !back.empty())
        text.append(LineBreak).append(LineBreak);
    text += back;
    if (!text.empty())
        frame.show(text, style::Information);
    if (failedFolder.empty())
        return;
    const std::string native = frame.files.nativePath(failedFolder);
    frame.show(frame.text(message::ThumbnailFolderFailed, {{"|1", native}, {"|2", LineBreak}}),
               style::Exclamation);
}

// The folder that could not be written to, or nothing.
std::string moveAway(FileSystem& files, const std::string& from, const std::string& to,
                     const std::string& file) {
    if (!CopyFileOver(files, from + file, to + file))
        return to;
    return files.deleteFile(from + file) ? std::string() : from;
}

} // namespace

bool ControlThumbnails(Frame& frame, Catalogue& catalogue) {
    const AppState& state = frame.state;
    if (const std::string folder = unusablePath(state); !FolderExists(frame.files, folder))
        frame.files.createFolder(folder.substr(0, folder.size() - 1));
    std::vector<std::string> names;
    if (!collectNames(frame, state.roots.RootMSTS, "... Train Simulator", names) ||
        !collectNames(frame, state.roots.RootTStore, "... Train Store", names))
        return false;

    ThumbnailSearch search(frame, catalogue);
    if (!lookAtAll(frame, search, names))
        return false;
    const ThumbnailMoves moves = MoveUnusedThumbnails(frame, search.inUse);
    report(frame, moves.count, search.restored,
           search.failedFolder.empty() ? moves.failedFolder : search.failedFolder);
    return !moves.ended;
}

ThumbnailMoves MoveUnusedThumbnails(Frame& frame, const NameSet& inUse) {
    ThumbnailMoves moves;
    const std::string from = thumbnailsPath(frame.state), to = unusablePath(frame.state);
    const std::string shown = checkingText(frame);
    const std::vector<std::string> thumbnails = listFiles(frame.files, from, BitmapExtension);
    const int last = static_cast<int>(thumbnails.size()) - 1;
    std::string moved; // two names that differ in case would take each other's place
    for (int index = 0; index <= last; ++index) {
        const std::string& file = thumbnails[static_cast<std::size_t>(index)];
        const std::string name = upperCase(withoutEnding(file));
        if (!frame.progress.yield()) {
            moves.ended = true;
            return moves;
        }
        if (!inUse.contains(name) && name != moved) {
            const std::string failed = moveAway(frame.files, from, to, file);
            moves.count += failed.empty() ? 1 : 0;
            if (moves.failedFolder.empty())
                moves.failedFolder = failed;
            moved = name;
        }
        frame.progress.ShowProgress(0, last, index, shown);
    }
    return moves;
}

} // namespace zandor
