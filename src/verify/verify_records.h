// What the verifier is asked for, what it works on and what it finds. Plain records: the window, the command
// line and the tests read the same ones.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace zandor {

// What kind of file a pass looks at; one kind a pass.
enum class VerifiedKind { Consists, Engines, Wagons };

struct VerifOptions {
    bool CheckName = false;       // the name in the file must be that of the file
    bool CheckTextures = false;   // of the shapes and cab views that stock names
    bool RepairQuotes = false;    // put quotes around Sound values, in the file
    bool CheckSounds = false;     // the waves of the sound sets that stock names
    bool RepairSounds = false;    // rewrite waves' places in sound sets; with CheckSounds alone
    bool CheckDuplicates = false; // one file name in several folders
};

// One candidate of a pass over stock. Consists go by their file's name alone.
struct StockFileEntry {
    std::string File;     // with extension
    std::string Folder;   // under TRAINSET
    std::string BasePath; // root + "\TRAINS\TRAINSET\"
};

// One fault of a file.
struct ErrorLine {
    std::string Summary;               // shown in the list of keys
    std::string Long;                  // shown as details
    std::string Value;                 // the faulty value, as tested
    std::string Key;                   // the key's path and source text
    int Line = 0;                      // of the file, from 1; 0: nowhere
    int summaryText = 0, longText = 0; // the numbers of the two messages
};

struct InvalidFile {
    std::string Root;   // the folder above Folder, with "\" at its end
    std::string Folder; // under TRAINSET; empty for a consist
    std::string File;
    std::string Name; // the name that the file itself gives
    std::vector<ErrorLine> Lines;
};

struct DuplicateEntry {
    std::string Name; // folder + "\" + file of the first one
    std::vector<std::string> Others;
};

enum class MissingKind { Texture = -1, Sound = 0 };

struct MissingItem {
    std::string Name;   // as the file has it
    std::string Detail; // the file's line, or EmptyFileMark
    int Line = 0;       // from 1; 0: the whole file
};
inline constexpr const char* EmptyFileMark = "ZERO_OCTET_FILE";

// What one shape, cab view or sound set names that isn't there.
struct MissingEntry {
    MissingKind Kind = MissingKind::Texture;
    std::string Owner; // that file's path below TRAINSET; each stands once in the list
    std::string File;  // of a sound set: its name, and the folder where it lies
    std::string Dir;
    std::vector<MissingItem> Items;
};

// A file that the later stages of a pass look into.
struct CheckTarget {
    std::string Dir;    // absolute, with "\" at its end
    std::string RelDir; // below TRAINSET, with "\" at its end
    std::string File;
};

// A key that stock can't do without and that a file lacks.
struct MandatoryFault {
    std::string folder, file;
    std::string key; // "Size", "Coupling\Type", "Mass" or "Type"
};

struct VerifCounters {
    int files = 0; // looked at
    int QuoteRepairCount = 0, QuoteRepairFailures = 0;
    int RepairedSoundFiles = 0, SoundRepairFailures = 0;
    int MissingTextures = 0, MissingSounds = 0; // items
};

// Everything that a pass has found; it stays until the next one.
struct VerifResults {
    std::vector<InvalidFile> InvalidFiles;
    std::vector<DuplicateEntry> DuplicateEntries;
    std::vector<MissingEntry> MissingEntries;
    std::vector<MandatoryFault> mandatory;
    VerifCounters counters;
};

inline bool isClean(const VerifResults& results) {
    return results.InvalidFiles.empty() && results.DuplicateEntries.empty() &&
           results.MissingEntries.empty() && results.mandatory.empty();
}

// What the stages of a pass hand to each other.
struct VerifQueues {
    std::vector<CheckTarget> ShapeTargets;
    std::vector<CheckTarget> SoundTargets;
    std::vector<CheckTarget> RepairTargets;
};

} // namespace zandor
