#include "verify/verification.h"

#include "catalogue/catalogue.h"
#include "catalogue/stock_files.h"
#include "verify/ahead_stages.h"
#include "verify/checks.h"
#include "verify/messages.h"
#include "verify/missing_list.h"
#include "verify/repair_sounds.h"

#include <algorithm>
#include <span>
#include <unordered_map>
#include <utility>

namespace zandor {

namespace {

class Pass {
  public:
    Pass(Frame& frame, const VerifSelection& selection, const VerifOptions& options, VerifResults& results,
         PassOptions how)
        : frame_(frame), selection_(selection), options_(optionsFor(selection.kind, options)), how_(how),
          results_(results), work_{frame, options_, results} {
        const std::string& base = selection.stock.empty() ? work_.places.stock : selection.stock[0].BasePath;
        if (!equalIgnoringCase(base, work_.places.stock))
            work_.places = placesAround(frame.state.roots, selection.stock[0]);
    }

    PassEnd run() {
        const bool complete = checkFiles() && checkTextures(work_, how_.threads) &&
                              checkSoundSets(work_, how_.threads) && repairSounds();
        results_.counters.MissingTextures = countMissing(results_, MissingKind::Texture);
        results_.counters.MissingSounds = countMissing(results_, MissingKind::Sound);
        frame_.progress.ShowProgress(0, 1, 1, frame_.text(message::VerifyDone, {{"|1", ""}}));
        return complete ? PassEnd::Complete : PassEnd::Cancelled;
    }

  private:
    int chosen() const { return static_cast<int>(selection_.chosen.size()); }

    // Each of these: false when the user has ended the pass.
    bool checkFiles() {
        frame_.progress.ShowProgress(0, std::clamp(chosen(), 1, VerifBatch), 0,
                                     frame_.text(message::VerifyStarts));
        for (int begin = 0; begin < chosen(); begin += VerifBatch) {
            if (begin > 0 && !wantsNextBatch(begin))
                return true;
            const auto batch = std::span(selection_.chosen).subspan(static_cast<std::size_t>(begin));
            if (!checkChosen(work_, selection_, batch.first(std::min<std::size_t>(batch.size(), VerifBatch)),
                             how_.threads))
                return false;
            if (begin == 0 && options_.CheckDuplicates && !findDuplicates())
                return false;
        }
        return true;
    }

    bool wantsNextBatch(int done) {
        const std::string batch = std::to_string(VerifBatch), left = std::to_string(chosen() - done);
        std::string text = frame_.text(message::NextBatch, {{"|1", batch}, {"|2", left}, {"|3", "\r\n"}});
        if (options_.CheckTextures)
            text = frame_.text(message::NextBatchTextures, {{"|1", text}, {"|2", "\r\n"}});
        if (options_.CheckSounds)
            text = frame_.text(message::NextBatchSounds, {{"|1", text}, {"|2", "\r\n"}});
        text = frame_.text(message::NextBatchAsk, {{"|1", text}});
        return frame_.show(text, style::YesNo + style::Question) == answer::Yes;
    }

    // Each chosen file with the like-named ones below it in the list, chosen or not; those no longer count.
    bool findDuplicates() {
        std::unordered_map<std::string, std::vector<int>> byName;
        for (int i = 0; i < selection_.size(); ++i)
            byName[lowerCase(selection_.nameOf(i))].push_back(i);
        const std::string shown = frame_.text(message::SeekingDuplicates);
        const int count = std::min(chosen(), VerifBatch);
        int done = 0;
        for (const int index : selection_.chosen) {
            if (!frame_.progress.yield())
                return false;
            frame_.progress.ShowProgress(0, count, std::min(done++, count), shown);
            takeDuplicates(index, byName.find(lowerCase(selection_.nameOf(index)))->second);
        }
        return true;
    }

    void takeDuplicates(int index, std::vector<int>& alike) {
        const auto below = std::ranges::upper_bound(alike, index);
        if (below == alike.end())
            return;
        DuplicateEntry& entry = results_.DuplicateEntries.emplace_back();
        entry.Name = placeOf(index);
        for (auto other = below; other != alike.end(); ++other)
            entry.Others.push_back(placeOf(*other));
        alike.erase(below, alike.end());
    }

    std::string placeOf(int index) const {
        const StockFileEntry& stock = selection_.stock[static_cast<std::size_t>(index)];
        return stock.Folder + "\\" + stock.File;
    }

    // What a repair may mend leaves the list, and comes back if it is still wrong then; or as it was, when
    // the user ends the pass before that is known.
    bool repairSounds() {
        if (!options_.RepairSounds)
            return true;
        frame_.progress.ShowProgress(0, 1, 0, frame_.text(message::RepairingSounds));
        std::vector<MissingEntry> broken;
        for (MissingEntry& entry : results_.MissingEntries)
            if (entry.Kind == MissingKind::Sound && !entry.File.empty())
                broken.push_back(std::exchange(entry, {}));
        CompactMissingList(results_);
        for (const MissingEntry& entry : broken) {
            const std::string folder = entry.Owner.substr(0, entry.Owner.size() - entry.File.size());
            work_.queues.RepairTargets.push_back({entry.Dir, folder, entry.File});
        }
        const SoundRepair repair = RepairSoundFiles(work_);
        results_.counters.RepairedSoundFiles = repair.repaired;
        results_.counters.SoundRepairFailures = static_cast<int>(repair.failed.size());
        tellUnrepaired(repair.failed);
        const std::size_t checked = repair.done ? recheckSounds() : 0;
        std::move(broken.begin() + static_cast<std::ptrdiff_t>(checked), broken.end(),
                  std::back_inserter(results_.MissingEntries));
        return checked == broken.size();
    }

    void tellUnrepaired(const std::vector<std::string>& paths) {
        bool shows = true;
        for (const std::string& path : paths) {
            const std::string shown = frame_.files.nativePath(path);
            const std::string text =
                frame_.text(message::SoundSetUnrepaired, {{"|1", shown}, {"|2", "\r\n"}});
            shows = shows && frame_.dialogs.showRepeated(text, style::Exclamation, frame_.state.Title);
        }
    }

    // How many of the targets were looked into.
    std::size_t recheckSounds() {
        const std::vector<CheckTarget>& targets = work_.queues.RepairTargets;
        const std::string shown = frame_.text(message::RecheckingSounds);
        for (std::size_t i = 0; i < targets.size(); ++i) {
            if (!frame_.progress.yield())
                return i;
            frame_.progress.ShowProgress(0, static_cast<int>(targets.size()), static_cast<int>(i), shown);
            CheckSoundFile(work_, targets[i]);
        }
        return targets.size();
    }

    Frame& frame_;
    const VerifSelection& selection_;
    const VerifOptions options_;
    const PassOptions how_;
    VerifResults& results_;
    VerifWork work_;
};

} // namespace

VerifSelection listCandidates(Frame& frame, VerifiedKind kind, const std::vector<std::string>& consistFiles) {
    VerifSelection selection;
    selection.kind = kind;
    if (kind == VerifiedKind::Consists) {
        selection.consists = consistFiles;
        return selection;
    }
    const std::string base = trainsetPath(frame.state.roots.RootPrimary());
    for (const std::string& folder : ListStockFolders(frame, base, false))
        addCandidates(frame.files, selection, base, folder);
    return selection;
}

void addCandidates(FileSystem& files, VerifSelection& selection, const std::string& base,
                   const std::string& folder) {
    const std::string_view extension = selection.kind == VerifiedKind::Engines ? ".eng" : ".wag";
    for (std::string& file : listFiles(files, base + folder + "\\", extension))
        if (!equalIgnoringCase(file, UncataloguedWagon))
            selection.stock.push_back({std::move(file), folder, base});
}

VerifOptions optionsFor(VerifiedKind kind, VerifOptions options) {
    VerifOptions fitting;
    fitting.CheckName = options.CheckName;
    if (kind == VerifiedKind::Consists)
        return fitting;
    options.RepairSounds = options.RepairSounds && options.CheckSounds;
    return options;
}

PassEnd RunVerification(Frame& frame, const VerifSelection& selection, const VerifOptions& options,
                        VerifResults& results, PassOptions how) {
    results = {};
    return Pass(frame, selection, options, results, how).run();
}

} // namespace zandor
