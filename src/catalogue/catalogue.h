// What is known of the two roots: their stock and consists, and who uses what.
#pragma once

#include "catalogue/pictures.h"
#include "catalogue/stock_use_index.h"
#include "frame/frame.h"
#include "simfiles/consist_file.h"
#include "simfiles/materiel.h"
#include "simfiles/route.h"
#include "simfiles/sim_file.h"
#include "simfiles/stock_reader.h"
#include "text/text.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace zandor {

inline constexpr int MaxEntries = 32766; // 16-bit indexes in list keys and vehicles

struct StockPair {
    std::string FileName; // with extension
    std::string Folder;
    bool operator==(const StockPair&) const = default;
};

struct ConsistEntry {
    std::string FileName; // the .con name
    std::string DisplayName;
    std::string FolderPath;       // root + "\TRAINS\CONSISTS\"
    std::vector<StockPair> Items; // one per vehicle, duplicates kept
    bool Used = false;
    bool operator==(const ConsistEntry&) const = default;
};

struct StockUse {
    std::string Folder;
    std::string FileName; // with extension
    int Count = 0;
    bool operator==(const StockUse&) const = default;
};

// One row of the open-consist dialog.
struct ConsistSummary {
    std::string FullName;
    std::string FileName;    // the .con name; empty marks a free slot
    std::string Composition; // "2 engines and 5 wagons" in the user's language
    std::string RouteMark;   // RouteMarkYes or RouteMarkNo
    bool Complete = true;    // all stock is there
    int Engines = 0, Wagons = 0;
};
inline constexpr std::string_view RouteMarkYes = "ROUTE_YES", RouteMarkNo = "ROUTE_NO"; // a service's consist

// The index of the first entry of this folder and file, case ignored, or -1. Walks no array: the look-up
// table is made anew when `materiels` has changed in length or storage since the last call, or names another
// stock where it points. Whoever fills an array anew in its place calls forget().
class MaterielFinder {
  public:
    int find(const std::vector<Materiel>& materiels, std::string_view folder, std::string_view file);
    void forget() { known_ = nullptr; }

  private:
    void index(const std::vector<Materiel>& materiels);

    const void* known_ = nullptr;
    std::size_t size_ = 0;
    std::unordered_map<std::string, int, TextHash, std::equal_to<>> byName_;
};

// What is known of one root. It stays when the other root comes into use: going back to it reads no file.
struct RootCatalogue {
    std::string loadedFrom; // the root's path; empty until a load of it has come to its end
    std::vector<Materiel>
        Materiels; // engines first, then wagons, in folder and directory order; never sorted
    std::vector<std::string> ConsistFiles;
    std::vector<RouteMSTS> Routes;           // by the names of their folders
    std::vector<std::string> RamesEnService; // the consist files that services name
    std::vector<ConsistSummary> ConsistSummaries;
    bool summariesRead = false; // ConsistSummaries has a row for every consist
    MaterielFinder finder;      // of Materiels
};

struct Catalogue {
    RootCatalogue simulator, store;
    Root current = Root::Simulator; // which of them is in use

    RootCatalogue& of(Root root) { return root == Root::Simulator ? simulator : store; }
    const RootCatalogue& of(Root root) const { return root == Root::Simulator ? simulator : store; }
    RootCatalogue& here() { return of(current); }
    const RootCatalogue& here() const { return of(current); }

    std::vector<std::string> BitmapPrefixes; // the lines of Bitmaps.ini
    // Of the consists of both roots, as the scan at the start found them.
    std::vector<ConsistEntry> ConsistIndex;
    std::vector<StockUse> StockUsage;
    StockUseIndex stockUseIndex; // of StockUsage

    std::vector<std::string> passedOver; // paths of the files that the last load left unread
    PictureSizes pictureSizes;           // of the thumbnails loaded so far
    PictureFolders pictureFolders = PictureFolders::MadeAsNeeded;
};

struct LoadOptions {
    NameRepair repair = NameRepair::Allowed;
    PictureFolders pictureFolders = PictureFolders::MadeAsNeeded; // LeftAlone: no thumbnail is moved either
    int threads = 0; // that read the files: see readAhead(); what comes of it is the same with any number
};
inline constexpr LoadOptions ReadOnlyLoad{NameRepair::Never, PictureFolders::LeftAlone}; // writes no file

// The whole loading sequence for the root that comes first. False: the user ended it, and what was loaded so
// far stands.
bool LoadCatalogue(Frame& frame, Catalogue& catalogue, LoadOptions options = {});

void ListConsistFiles(Frame& frame, Catalogue& catalogue, std::string_view root);
// At most as many as positions can number; the user is told when there are more.
std::vector<std::string> ListStockFolders(Frame& frame, std::string_view trainsetPath, bool stopAtLimit);
// False: the user ended it.
bool ScanStockFiles(Frame& frame, Catalogue& catalogue, const std::vector<std::string>& folders,
                    LoadOptions options = {});
bool ScanConsists(Frame& frame, Catalogue& catalogue, LoadOptions options = {});
// The reading of every stock file, the last step of the load. False: the user ended it.
bool readAllStock(Frame& frame, Catalogue& catalogue, LoadOptions options = {});

// The rows of the open-consist dialog no longer count: its next opening reads the consists.
void forgetSummaries(RootCatalogue& catalogue);

// To be called when AppState's roots have changed, their order or their paths: goes to the one that comes
// first, and loads it unless it has been loaded from this path before. False: the user ended the load.
bool reloadCatalogue(Frame& frame, Catalogue& catalogue);

// The record of StockUsage, folder and file compared with case ignored, nullptr when there is none. Consists
// may spell one stock in several cases, each with a record of its own: one that counts comes before one that
// doesn't.
StockUse* findStockUse(Catalogue& catalogue, std::string_view folder, std::string_view file);
const StockUse* findStockUse(const Catalogue& catalogue, std::string_view folder, std::string_view file);
StockUse& appendStockUse(Catalogue& catalogue, std::string_view folder, std::string_view file, int count);

std::string trainsetPath(std::string_view root); // root + "\TRAINS\TRAINSET\"
std::string consistsPath(std::string_view root); // root + "\TRAINS\CONSISTS\"

} // namespace zandor
