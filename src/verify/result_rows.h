// What the lists of the verifier's tab show: the candidates, the files with faults and the faults of a file,
// each as a row that leads back to its record.
#pragma once

#include "verify/fault_kinds.h"
#include "verify/verification.h"

#include <optional>
#include <string>
#include <vector>

namespace zandor {

// What a filter of the candidates searches: file and folder, lower case; one text a candidate.
std::vector<std::string> candidateTexts(const VerifSelection& candidates);
std::string candidatePath(const Frame& frame, const VerifSelection& candidates, int index);

// A file with faults: a record of InvalidFiles, the mandatory keys that it lacks, or both.
struct FaultyFile {
    int invalid = -1;           // position in InvalidFiles; -1: none
    std::vector<int> mandatory; // positions in VerifResults::mandatory
};
// Those that the filter lets through, in the order of InvalidFiles; behind them those that lack keys alone.
std::vector<FaultyFile> faultyFiles(const VerifResults& results, const ResultFinder& finder,
                                    const ResultFilter& filter);
std::string fileOf(const VerifResults& results, const FaultyFile& file);
std::string folderOf(const VerifResults& results, const FaultyFile& file);
std::string pathOf(const Frame& frame, const VerifResults& results, const FaultyFile& file);

// Positions in InvalidFiles for files that are to be moved or deleted: one that lacks keys alone gets a
// record without lines, which goes again with dropBareRecords().
std::vector<int> recordsFor(const Frame& frame, VerifResults& results, const std::vector<FaultyFile>& files);
void dropBareRecords(VerifResults& results);

// A fault of such a file: a line of its record, or a key that it lacks.
struct FileFault {
    int line = -1;      // position in InvalidFile::Lines; -1: none
    int mandatory = -1; // position in VerifResults::mandatory; -1: none
    FaultKind kind;
};
std::vector<FileFault> faultsOf(const VerifResults& results, const FaultyFile& file);

// What is wrong: in short, and at length in one paragraph.
std::string summaryOf(const Frame& frame, const VerifResults& results, const FaultyFile& file,
                      const FileFault& fault);
std::string detailsOf(const Frame& frame, const VerifResults& results, const FaultyFile& file,
                      const FileFault& fault);

// A place in the two lists: a row of the files and one of the file's faults.
struct FaultRow {
    int file = 0, fault = 0;
    bool operator==(const FaultRow&) const = default;
};
// The first fault of this kind (nothing: of any) at or behind a place; behind the last file comes the first.
std::optional<FaultRow> seekFault(const VerifResults& results, const std::vector<FaultyFile>& files,
                                  FaultRow from, const std::optional<FaultKind>& kind);

} // namespace zandor
