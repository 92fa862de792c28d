// What is known of one simulator folder: its stock and consists, and who uses what. Arrays are zero-based and
// hold one free slot (empty key text) when logically empty; every walk skips such a slot.
#pragma once

#include "catalogue/pictures.h"
#include "catalogue/stock_use_index.h"
#include "frame/frame.h"
#include "simfiles/consist_file.h"
#include "simfiles/materiel.h"
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
};

struct StockUse {
    std::string Folder;
    std::string FileName; // with extension
    int Count = 0;
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

// Copies of the arrays of one root, so that going back to it reads no file.
struct CatalogueSnapshot {
    bool valid = false;
    std::string root;
    std::vector<std::string> ConsistFiles;
    std::vector<Materiel> Materiels;
    std::vector<std::string> RamesEnService;
    std::vector<ConsistSummary> ConsistSummaries;
    bool summariesRead = false;
};

struct Catalogue {
    std::vector<Materiel> Materiels{
        1}; // engines first, then wagons, in folder and directory order; never sorted
    std::vector<std::string> ConsistFiles{1};
    std::vector<std::string> StockFolders{1};
    std::vector<std::string> BitmapPrefixes{1}; // the lines of Bitmaps.ini
    std::vector<ConsistEntry> ConsistIndex{1};
    std::vector<StockUse> StockUsage{1};
    std::vector<std::string> RamesEnService{1}; // the consist files that services name
    std::vector<ConsistSummary> ConsistSummaries{1};
    bool summariesRead = false;     // ConsistSummaries has a row for every consist
    CatalogueSnapshot snapshots[2]; // the simulator's, the Train Store's
    bool complete = true;           // false: the user ended the last load, so it is no good as a snapshot

    std::vector<std::string> passedOver; // paths of the files that the last load left unread
    StockUseIndex stockUseIndex;         // of StockUsage
    PictureSizes pictureSizes;           // of the thumbnails loaded so far
    PictureFolders pictureFolders = PictureFolders::MadeAsNeeded;
};

struct LoadOptions {
    NameRepair repair = NameRepair::Allowed;
    PictureFolders pictureFolders = PictureFolders::MadeAsNeeded; // LeftAlone: no thumbnail is moved either
};
inline constexpr LoadOptions ReadOnlyLoad{NameRepair::Never, PictureFolders::LeftAlone}; // writes no file

// The whole loading sequence for RootPrimary. False: the user ended it, and what was loaded so far stands.
bool LoadCatalogue(Frame& frame, Catalogue& catalogue, LoadOptions options = {});

void ListConsistFiles(Frame& frame, Catalogue& catalogue, std::string_view root);
void ListStockFolders(Frame& frame, Catalogue& catalogue, std::string_view trainsetPath, bool stopAtLimit);
// False: the user ended it.
bool ScanStockFiles(Frame& frame, Catalogue& catalogue);
bool ScanConsists(Frame& frame, Catalogue& catalogue);
// The reading of every stock file, the last step of the load. False: the user ended it.
bool readAllStock(Frame& frame, Catalogue& catalogue, LoadOptions options = {});

void SaveCatalogueSnapshot(const AppState& state, Catalogue& catalogue, std::string_view root);
bool RestoreCatalogueSnapshot(Catalogue& catalogue, std::string_view root);
// The rows of the open-consist dialog no longer count: its next opening reads the consists.
void forgetSummaries(Catalogue& catalogue);
// A root has got another path: its snapshot no longer counts.
void dropSnapshot(const AppState& state, Catalogue& catalogue, bool simulatorRoot);

// The catalogue part of a change of roots: a valid snapshot, else a full load. False: the user ended the
// load.
bool reloadCatalogue(Frame& frame, Catalogue& catalogue);

// The record of StockUsage, folder and file compared with case ignored, nullptr when there is none. Consists
// may spell one stock in several cases, each with a record of its own: one that counts comes before one that
// doesn't.
StockUse* findStockUse(Catalogue& catalogue, std::string_view folder, std::string_view file);
const StockUse* findStockUse(const Catalogue& catalogue, std::string_view folder, std::string_view file);
StockUse& appendStockUse(Catalogue& catalogue, std::string_view folder, std::string_view file, int count);

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

std::string trainsetPath(std::string_view root); // root + "\TRAINS\TRAINSET\"
std::string consistsPath(std::string_view root); // root + "\TRAINS\CONSISTS\"

} // namespace zandor
