// The checks of single files. Each adds what it finds to the results, and what is to be looked into later to
// the queues; none asks anything or stops the pass.
#pragma once

#include "frame/frame.h"
#include "simfiles/sim_file.h"
#include "verify/file_readings.h"
#include "verify/pass_files.h"
#include "verify/verify_records.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace zandor {

// Where a pass over stock looks; folders with "\" at their end.
struct VerifPlaces {
    std::string stock;    // TRAINSET, or what plays it, of the files that are checked
    std::string trainset; // the same for the files that they name
    std::string sounds;   // the simulator's own sounds; empty when there is none
    // For stock that lies anywhere: its folder, the only one whose waves a repair takes, and the TRAINSET in
    // which it will lie, where the files are that it names by "..\\".
    std::string folder, installed;
};
// Stock of the primary root, which names files of the simulator's folder, whichever of the roots is primary.
VerifPlaces placesOf(const Roots& roots);
// Stock that lies anywhere: what it names lies beside it, or where it will be when it is installed.
VerifPlaces placesAround(const Roots& roots, const StockFileEntry& stock);

// What the checks of one pass share.
struct VerifWork {
    Frame& frame;
    const VerifOptions& options;
    VerifResults& results;
    VerifPlaces places = placesOf(frame.state.roots);
    VerifQueues queues{};
    PassFiles onDisk{frame.files};
    SimReader reader{frame.files};
    TargetReader targetReader{frame.files};

    std::unordered_map<std::string, DescribedShape> descriptions{}; // by path, lower case
    bool showsQuoteFailures = true, showsMandatory = true;          // until the user has seen enough of them
    std::unordered_set<std::string> examined{}; // owners of shapes, cab views and sound sets, lower case
};

// What a check of a consist is for: to list its faults, or only to tell whether there is one.
enum class Quiet { No, Yes };

// `file`: its name; looked for under both roots. A path in `fullPath` goes before that. Returns whether a
// fault was found.
bool CheckConsistFile(VerifWork& work, std::string_view file, Quiet quiet = Quiet::No,
                      std::string_view fullPath = {});
// Under VerifPlaces::stock. Repairs quotes when the options say so. What the user must be told of at once
// goes through Dialogs::showRepeated. A file that can't be opened adds nothing; one that isn't stock lacks
// all keys.
void CheckStockFile(VerifWork& work, std::string_view folder, std::string_view file);
// The same for one that was read already. False when it must be read once more, now: its quotes are to be
// repaired, or no memory was left for it.
bool checkReadStock(VerifWork& work, std::string_view folder, std::string_view file, StockToCheck& reading);
// A text shape or a cab view: the textures that it names. A shape that isn't text is passed over.
void CheckShapeFile(VerifWork& work, const CheckTarget& target);
// A sound set: the waves that it names.
void CheckSoundFile(VerifWork& work, const CheckTarget& target);
// The same for files that were read already, and that this pass hasn't looked into before.
void checkShapeReading(VerifWork& work, const CheckTarget& target, const TargetReading& reading);
void checkSoundReading(VerifWork& work, const CheckTarget& target, const TargetReading& reading);

void AddInvalidFile(VerifResults& results, InvalidFile file);
void AddErrorLine(VerifResults& results, ErrorLine line); // to the last invalid file

} // namespace zandor
