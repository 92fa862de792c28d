// One pass of the verifier over a selection of files, without a window. What it does is told through
// Frame::progress (its text and bar; yield() once a file, false ends the pass and keeps what was found), the
// question for the next batch is asked through Frame::dialogs.
#pragma once

#include "frame/finding.h"
#include "frame/frame.h"
#include "verify/verify_records.h"

#include <string>
#include <vector>

namespace zandor {

inline constexpr int VerifBatch = 50000; // files of one batch; the user is asked before the next

// The candidates of one kind, and which of them are chosen.
struct VerifSelection {
    VerifiedKind kind = VerifiedKind::Engines;
    std::vector<std::string> consists; // file names; empty for stock
    std::vector<StockFileEntry> stock; // empty for consists
    std::vector<int> chosen;           // positions in one of the two, ascending

    const std::string& nameOf(int index) const {
        return kind == VerifiedKind::Consists ? consists[static_cast<std::size_t>(index)]
                                              : stock[static_cast<std::size_t>(index)].File;
    }
    int size() const {
        return static_cast<int>(kind == VerifiedKind::Consists ? consists.size() : stock.size());
    }
};

// The candidates: all consists of the catalogue's list, or all stock of one kind under the primary root in
// the order of the folders, without default.wag. Nothing is chosen.
VerifSelection listCandidates(Frame& frame, VerifiedKind kind, const std::vector<std::string>& consistFiles);

// Adds those of one folder of `base`, which is TRAINSET or plays it and ends in "\".
void addCandidates(FileSystem& files, VerifSelection& selection, const std::string& base,
                   const std::string& folder);

// What isn't to be done with files of this kind is off.
VerifOptions optionsFor(VerifiedKind kind, VerifOptions options);

enum class PassEnd { Complete, Cancelled };
// How a pass works; what comes of it is the same.
struct PassOptions {
    int threads = 0; // that read the files: see readAhead()
};
PassEnd RunVerification(Frame& frame, const VerifSelection& selection, const VerifOptions& options,
                        VerifResults& results, PassOptions how = {});

// What the pass has found, in words, for the one message at its end.
std::string closingReport(const Frame& frame, const VerifSelection& selection, const VerifOptions& options,
                          const VerifResults& results);

} // namespace zandor
