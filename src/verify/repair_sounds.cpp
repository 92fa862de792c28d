#include "verify/repair_sounds.h"

#include "platform/letter_case.h"
#include "platform/sim_path.h"
#include "simfiles/text_edit.h"
#include "verify/messages.h"
#include "verify/signed_text.h"
#include "verify/sound_places.h"
#include "verify/sound_scan.h"

#include <algorithm>
#include <optional>
#include <unordered_map>

namespace zandor {

namespace {

// The same for every spelling of one path.
std::string pathKey(std::string_view path) {
    const SimPath parsed = parseSimPath(path);
    return lowerCase(folderKey(parsed, parsed.parts.size()));
}

bool liesIn(std::string_view path, std::string_view folder) {
    return !folder.empty() && pathKey(path).starts_with(pathKey(folder));
}

// The waves of all stock under the simulator's folder by their names, each with the first stock that has it.
class WaveIndex {
  public:
    // False: the user ended it.
    bool fill(VerifWork& work) {
        const std::string& trainset = work.places.trainset;
        const std::string& only = work.places.folder;
        for (const FolderEntry& entry : work.frame.files.listFolder(trainset)) {
            if (!entry.isFolder || (!only.empty() && !equalIgnoringCase(entry.name, only)))
                continue;
            if (!work.frame.progress.yield())
                return false;
            for (const std::string& wave : work.onDisk.filesOf(trainset + entry.name + "\\Sound", ".wav"))
                stockOf_.try_emplace(lowerCase(wave), entry.name);
        }
        return true;
    }

    const std::string* stockWith(std::string_view wave) const {
        const auto found = stockOf_.find(lowerCase(wave));
        return found == stockOf_.end() ? nullptr : &found->second;
    }

  private:
    std::unordered_map<std::string, std::string> stockOf_;
};

// The way from a folder to TRAINSET as sound sets write it, with "/" at its end: "../../" from the Sound
// folder of stock, "../TRAINS/TRAINSET/" from the simulator's own.
std::string wayToTrainset(std::string_view folder, std::string_view trainset) {
    const SimPath from = parseSimPath(folder), to = parseSimPath(trainset);
    std::size_t shared = 0;
    while (shared < from.parts.size() && shared < to.parts.size() &&
           equalIgnoringCase(from.parts[shared], to.parts[shared]))
        ++shared;
    std::string way;
    for (std::size_t i = shared; i < from.parts.size(); ++i)
        way += "../";
    for (std::size_t i = shared; i < to.parts.size(); ++i)
        way.append(to.parts[i]) += '/';
    return way;
}

// Where one set's waves are to be found from now on.
class SetRepair {
  public:
    SetRepair(VerifWork& work, const WaveIndex& waves, const CheckTarget& target)
        : waves_(waves), places_(work.onDisk, work.places.sounds, target),
          toTrainset_(
              wayToTrainset(target.Dir + std::string(folderPart(target.File)), work.places.trainset)) {}

    std::vector<TextEdit> editsOf(std::string_view text) {
        std::vector<TextEdit> edits;
        for (const WaveName& wave : findWaves(text)) {
            const std::string name = textOf(text, wave);
            const std::optional<std::string> better = newName(name);
            if (better && *better != name)
                edits.push_back({wave.place, quotedWhereNeeded(text, wave, *better)});
        }
        return edits;
    }

  private:
    // Outside of quotes a bracket or a blank would end it.
    static std::string quotedWhereNeeded(std::string_view text, const WaveName& wave,
                                         const std::string& name) {
        const std::size_t before = text.substr(0, wave.place.begin).find_last_not_of(" \t");
        const bool isQuoted = before != std::string_view::npos && text[before] == '"';
        return isQuoted || name.find_first_of(" ()#") == std::string::npos ? name : '"' + name + '"';
    }
    // Nothing: it is reached as it is, or nowhere.
    std::optional<std::string> newName(const std::string& name) {
        if (places_.reaches(name))
            return std::nullopt;
        const std::string plain(lastComponent(name));
        if (places_.isDefault(plain))
            return plain;
        const std::string* stock = waves_.stockWith(plain);
        return stock ? std::optional(toTrainset_ + *stock + "/Sound/" + plain) : std::nullopt;
    }

    const WaveIndex& waves_;
    SoundPlaces places_;
    std::string toTrainset_;
};

// A name may lead anywhere by "..\": what lies outside of both roots, and outside of the folder that is
// checked, belongs to somebody else.
bool mayWrite(const VerifWork& work, const CheckTarget& target) {
    const Roots& roots = work.frame.state.roots;
    const std::string path = target.Dir + target.File;
    const std::string& folder = work.places.folder;
    return liesIn(path, roots.RootMSTS) || liesIn(path, roots.RootTStore) ||
           liesIn(path, folder.empty() ? target.Dir : work.places.stock + folder);
}

// A place could hold what changes the meaning of its line, such as a bracket where no quotes are.
bool namesTheSame(std::string_view before, std::string_view after) {
    const std::vector<WaveName> old = findWaves(before), now = findWaves(after);
    return std::equal(old.begin(), old.end(), now.begin(), now.end(),
                      [&](const WaveName& one, const WaveName& other) {
                          const std::string oldName = textOf(before, one), newName = textOf(after, other);
                          return lastComponent(oldName) == lastComponent(newName);
                      });
}

EditOutcome repairSet(VerifWork& work, const WaveIndex& waves, const CheckTarget& target) {
    const std::string path = target.Dir + target.File;
    std::string bytes;
    if (readSignedText(work.frame.files, path, FileKind::Sound, bytes) != SignedText::Read)
        return EditOutcome::Same;
    EditableText file = editableText(std::move(bytes));
    const std::vector<TextEdit> edits = SetRepair(work, waves, target).editsOf(file.text);
    if (edits.empty())
        return EditOutcome::Same;
    const std::string before = file.text;
    if (!mayWrite(work, target) || !replaceSpans(file.text, edits) || !namesTheSame(before, file.text))
        return EditOutcome::Refused;
    return writeEdited(work.frame.files, path, file);
}

void repairNext(VerifWork& work, const WaveIndex& waves, const CheckTarget& target, SoundRepair& result) {
    const EditOutcome outcome = repairSet(work, waves, target);
    if (outcome == EditOutcome::Written)
        ++result.repaired;
    else if (outcome != EditOutcome::Same)
        result.failed.push_back(target.Dir + target.File);
}

} // namespace

SoundRepair RepairSoundFiles(VerifWork& work) {
    SoundRepair result;
    const std::vector<CheckTarget>& targets = work.queues.RepairTargets;
    work.examined.clear(); // what is repaired is looked into again
    WaveIndex waves;
    result.done = targets.empty() || waves.fill(work);
    std::unordered_set<std::string> seen; // stock of several folders may name one set
    for (std::size_t i = 0; i < targets.size() && result.done; ++i) {
        Progress& progress = work.frame.progress;
        progress.ShowProgress(0, static_cast<int>(targets.size()), static_cast<int>(i),
                              work.frame.text(message::RepairingSoundFile, {{"|1", targets[i].File}}));
        result.done = progress.yield();
        if (result.done && seen.insert(pathKey(targets[i].Dir + targets[i].File)).second)
            repairNext(work, waves, targets[i], result);
    }
    return result;
}

} // namespace zandor
