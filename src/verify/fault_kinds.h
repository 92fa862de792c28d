// How many faults of which kind a pass has found, and which records of the lists a filter lets through.
#pragma once

#include "frame/frame.h"
#include "verify/verify_records.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zandor {

enum class FaultGroup { Line, MandatoryKey, MissingTexture, MissingSound, Duplicate };

struct FaultKind {
    FaultGroup group = FaultGroup::Line;
    int summaryText = 0; // of a Line: the number of its summary
    bool operator==(const FaultKind&) const = default;
};

struct FaultCount {
    FaultKind kind;
    int faults = 0;
    int files = 0; // that have at least one of them
};

// The kinds that were found, Lines first by their number. For duplicates: the files that are one too many,
// and the names.
std::vector<FaultCount> countFaults(const VerifResults& results);
std::string faultKindText(const Frame& frame, const FaultKind& kind);

// As it stands: everything.
struct ResultFilter {
    std::optional<FaultKind> kind;
    std::string text; // part of a name, place, key, value or summary; any case
};

// Searches the results as they were when it was made: after a change make a new one.
class ResultFinder {
  public:
    explicit ResultFinder(const VerifResults& results);

    // Positions in InvalidFiles, in MissingEntries and so on, ascending. An invalid file fits a kind when one
    // of its lines is of it, or when it lacks a mandatory key.
    std::vector<int> invalidFiles(const ResultFilter& filter) const;
    std::vector<int> missingEntries(const ResultFilter& filter) const;
    std::vector<int> duplicateEntries(const ResultFilter& filter) const;
    std::vector<int> mandatory(const ResultFilter& filter) const;

  private:
    struct Row {
        std::string text; // all that can be searched, lower case
        std::vector<FaultKind> kinds;
    };
    static std::vector<int> matching(const std::vector<Row>& rows, const ResultFilter& filter);

    std::vector<Row> files_, missing_, duplicates_, mandatory_;
};

// A fault of the list: a position in InvalidFiles and one in its Lines, each from 0.
struct FaultPlace {
    int file = 0, line = 0;
    bool operator==(const FaultPlace&) const = default;
};
// The fault behind this one among the files shown (ascending positions); behind the last one comes the first.
// Nothing: there is none but this one.
std::optional<FaultPlace> nextFault(const VerifResults& results, const std::vector<int>& shown,
                                    FaultPlace place);

} // namespace zandor
